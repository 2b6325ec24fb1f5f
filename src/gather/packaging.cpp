#include "gather/packaging.h"

#include "core/error_trap.h"
#include "core/utility.h"
#include "gather/object_reference.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "server/workstation_info.h"

namespace {

constexpr const char* templateName = "\\blankWPNDB.mdb";
constexpr const char* directiveName = "\\ZMK.DDF";
constexpr const char* cabinetMaker = "\\cabmaker";
constexpr std::int32_t endlessly = -1;

/// The name of a result made now.
std::string resultName(ToolContext& tool, const std::string& ending)
{
    return workstationInfo(tool).ComputerName() + "_WPN_" + fileStamp(tool.platform.clock.now()) +
           ending;
}

/// The line of a file to pack; none when the file is not there.
void writeMember(ToolContext& tool, ErrorTrap& step, const std::unique_ptr<TextWriter>& directives,
                 const std::string& path)
{
    bool exists = false;
    step([&] { exists = tool.platform.files.fileExists(path); });
    if (exists)
        step([&] { objectOf(directives).writeLine(windows1252().bytesOf("\"" + path + "\"")); });
}

void writeDirectives(ToolContext& tool, ErrorTrap& step, const std::string& destination,
                     const std::string& databasePath)
{
    std::unique_ptr<TextWriter> directives;
    std::string cabinet;
    const auto write = [&](const std::string& line) {
        step([&] { objectOf(directives).writeLine(line); });
    };
    step([&] { directives = tool.platform.files.createTextFile(destination + directiveName); });
    step([&] { cabinet = resultName(tool, ".cab"); });
    write(".Option EXPLICIT");
    write(".Set CabinetNameTemplate=..\\" + windows1252().bytesOf(cabinet));
    write(".Set Cabinet=on");
    write(".Set Compress=on");
    write(".Set MaxDiskSize=CDROM");
    writeMember(tool, step, directives, destination + "\\Application.csv");
    writeMember(tool, step, directives, destination + "\\System.csv");
    writeMember(tool, step, directives, databasePath);
    step([&] { objectOf(directives).close(); });
}

/// Runs the cabinet maker from beside its input: its paths are relative to there.
void runCabinetMaker(ToolContext& tool, ErrorTrap& step, const std::string& destination)
{
    FileSystem& files = tool.platform.files;
    const std::string program = std::string(cabinetMaker) + ".exe";
    std::int32_t process = 0;

    step([&] { files.changeDrive(files.driveName(destination)); });
    step([&] { files.changeFolder(destination); });
    step([&] { files.copyFile(tool.platform.module.folder() + program, destination + program); });
    const std::string command =
        "\"" + destination + cabinetMaker + "\" /f \"" + destination + directiveName + "\"";
    step.log("Command: " + command, logLevel::info);
    step([&] { process = tool.platform.processes.start(command, WindowStyle::hidden); });
    step([&] { waitForProcess(tool, process, endlessly); });
}

void cleanUp(ToolContext& tool, ErrorTrap& step, const std::string& destination)
{
    FileSystem& files = tool.platform.files;
    step([&] { files.deleteFile(destination + "\\setup.rpt"); });
    step([&] { files.deleteFile(destination + "\\setup.inf"); });
    step([&] { files.deleteFile(destination + directiveName); });
    step([&] { files.removeFolder(destination + "\\disk1"); });
    step([&] { files.deleteFile(destination + cabinetMaker + ".exe"); });
}

} // namespace

std::string mdlLogs::createNewDB(ToolContext& tool, const std::string& destination)
{
    ErrorTrap step{tool, "mdlLogs", "createNewDB"};
    std::string path;

    step.enterProc();
    step([&] { path = destination + "\\" + resultName(tool, ".mdb"); });
    step([&] { tool.platform.files.copyFile(tool.platform.module.folder() + templateName, path); });
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
