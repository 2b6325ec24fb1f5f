#include "gather/packaging.h"

#include "core/error_trap.h"
#include "core/utility.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "platform/tool_files.h"
#include "runtime/required_object.h"
#include "server/workstation_info.h"
#include "text/code_page.h"

namespace {

constexpr const char* cabinetMakerCommand = "cabmaker"; ///< as it is called
constexpr std::int32_t endlessly = -1;

std::string inFolder(const std::string& folder, const char* name)
{
    return folder + "\\" + name;
}

/// The name of a result made now.
std::string resultName(ToolContext& tool, const std::string& ending)
{
    return workstationInfo(tool).ComputerName() + toolFiles::resultMark +
           fileStamp(tool.platform.clock.now()) + ending;
}

/// Whether the single-byte encoding has every character of a text.
bool fitsOneByte(const std::string& text)
{
    std::string shown;
    windows1252().appendUtf8(shown, windows1252().bytesOf(text));
    return shown == text;
}

/// A text in quotation marks, with those that it has itself doubled.
std::string quoted(const std::string& text)
{
    std::string all = "\"";
    for (const char c : text) all += c == '"' ? "\"\"" : std::string(1, c);
    return all + "\"";
}

/// The directive file's lines: in the single-byte encoding where that can name the results, else in
/// UTF-8 behind its mark.
class Directives {
public:
    Directives(ToolContext& tool, ErrorTrap& step, bool utf8)
        : tool_(tool), step_(step), utf8_(utf8)
    {}

    void create(const std::string& path)
    {
        step_([&] { file_ = tool_.platform.files.createTextFile(path); });
    }

    void line(const std::string& text)
    {
        const std::string mark = utf8_ && first_ ? "\xEF\xBB\xBF" : "";
        first_ = false;
        step_([&] {
            required(file_).writeLine(mark + (utf8_ ? text : windows1252().bytesOf(text)));
        });
    }

    /// The line of a file to pack; none when the file is not there.
    void member(const std::string& path)
    {
        const bool exists =
            step_.value(false, [&] { return tool_.platform.files.fileExists(path); });
        if (exists) line(quoted(path));
    }

    void close()
    {
        step_([&] { required(file_).close(); });
    }

private:
    ToolContext& tool_;
    ErrorTrap& step_;
    bool utf8_;
    bool first_ = true;
    std::unique_ptr<TextWriter> file_;
};

void writeDirectives(ToolContext& tool, ErrorTrap& step, const std::string& destination,
                     const std::string& databasePath)
{
    Directives directives(tool, step, !fitsOneByte(destination + databasePath));
    directives.create(inFolder(destination, toolFiles::directiveFile));
    const std::string cabinet =
        step.value("", [&] { return resultName(tool, toolFiles::cabinetEnding); });
    directives.line(".Option EXPLICIT");
    directives.line(".Set CabinetNameTemplate=..\\" + cabinet);
    directives.line(".Set Cabinet=on");
    directives.line(".Set Compress=on");
    directives.line(".Set MaxDiskSize=CDROM");
    directives.member(destination + "\\Application.csv");
    directives.member(destination + "\\System.csv");
    directives.member(databasePath);
    directives.close();
}

/// Runs the cabinet maker from beside its input: its paths are relative to there.
void runCabinetMaker(ToolContext& tool, ErrorTrap& step, const std::string& destination)
{
    FileSystem& files = tool.platform.files;

    step([&] { files.changeDrive(files.driveName(destination)); });
    step([&] { files.changeFolder(destination); });
    step([&] {
        files.copyFile(inFolder(tool.platform.module.folder(), toolFiles::cabinetMaker),
                       inFolder(destination, toolFiles::cabinetMaker));
    });
    const std::string command = quoted(inFolder(destination, cabinetMakerCommand)) + " /f " +
                                quoted(inFolder(destination, toolFiles::directiveFile));
    step.log("Command: " + command, logLevel::info);
    const std::int32_t process =
        step.value(0, [&] { return tool.platform.processes.start(command, WindowStyle::hidden); });
    step([&] { waitForProcess(tool, process, endlessly); });
}

void cleanUp(ToolContext& tool, ErrorTrap& step, const std::string& destination)
{
    FileSystem& files = tool.platform.files;
    step([&] { files.deleteFile(inFolder(destination, toolFiles::setupReport)); });
    step([&] { files.deleteFile(inFolder(destination, toolFiles::setupList)); });
    step([&] { files.deleteFile(inFolder(destination, toolFiles::directiveFile)); });
    step([&] { files.removeFolder(inFolder(destination, toolFiles::diskFolder)); });
    step([&] { files.deleteFile(inFolder(destination, toolFiles::cabinetMaker)); });
}

} // namespace

std::string mdlLogs::createNewDB(ToolContext& tool, const std::string& destination)
{
    ErrorTrap step{tool, "mdlLogs", "createNewDB"};

    step.enterProc();
    std::string path = step.value(
        "", [&] { return destination + "\\" + resultName(tool, toolFiles::databaseEnding); });
    step([&] {
        tool.platform.files.copyFile(
            inFolder(tool.platform.module.folder(), toolFiles::blankDatabase), path);
    });
    step([&] { tool.platform.files.clearAttributes(path); });
    step.exitProc();
    return path;
}

void mdlLogs::compressResults(ToolContext& tool, const std::string& destination,
                              const std::string& databasePath)
{
    ErrorTrap step{tool, "mdlLogs", "compressResults"};
    step.enterProc();
    writeDirectives(tool, step, destination, databasePath);
    runCabinetMaker(tool, step, destination);
    cleanUp(tool, step, destination);
    step.exitProc();
}
