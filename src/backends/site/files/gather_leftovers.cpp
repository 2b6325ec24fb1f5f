#include "backends/site/files/gather_leftovers.h"

#include "platform/tool_files.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/whole_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

constexpr std::string_view directiveFile = toolFiles::directiveFile;
constexpr std::string_view cabinetMakerCopy = toolFiles::cabinetMaker;
constexpr std::string_view diskFolder = toolFiles::diskFolder;
constexpr std::string_view setupList = toolFiles::setupList;
constexpr std::string_view setupReport = toolFiles::setupReport;

constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t longestText = 1U << 20;
constexpr std::size_t longestProgram = 64U << 20;

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Whether a name is NAME_WPN_YYYYMMDD_HHMMSS, with what stands before `ending`, and that ending.
bool isResult(std::string_view name, std::string_view ending)
{
    constexpr std::string_view mark = toolFiles::resultMark;
    constexpr std::size_t dateSize = 8;
    constexpr std::size_t stampSize = 15;
    const auto at = name.rfind(mark);
    if (at == std::string_view::npos || !endsWith(name, ending)) return false;
    name.remove_prefix(at + mark.size());
    name.remove_suffix(std::min(ending.size(), name.size()));
    if (name.size() < stampSize || name[dateSize] != '_' || !isNumber(name.substr(0, dateSize)) ||
        !isNumber(name.substr(dateSize + 1, stampSize - dateSize - 1)))
        return false;
    name.remove_prefix(stampSize);
    return name.empty() || (name.front() == '_' && isNumber(name.substr(1)));
}

/// Takes a line with its end off a text; nothing when the text has no whole line.
std::optional<std::string_view> takeLine(std::string_view& text)
{
    const auto end = text.find(lineEnd);
    if (end == std::string_view::npos) return {};
    const auto line = text.substr(0, end);
    text.remove_prefix(end + lineEnd.size());
    return line;
}

/// The line of a file to pack, in quotation marks.
bool isMember(std::string_view line)
{
    if (line.size() < 2 || line.front() != '"' || line.back() != '"') return false;
    line = line.substr(1, line.size() - 2);
    const auto separator = line.rfind('\\');
    if (separator == std::string_view::npos) return false;
    line.remove_prefix(separator + 1);
    return line == "Application.csv" || line == "System.csv" || isResult(line, ".mdb");
}

bool isListOfACabinet(std::string_view text)
{
    constexpr std::string_view cabinets = "\r\n[cabinets]\r\n; number,disk,file\r\n1,1,\"";
    const auto at = text.find(cabinets);
    if (!startsWith(text, "[disks]\r\n; number,folder\r\n1,\"disk1\"") ||
        at == std::string_view::npos)
        return false;
    text.remove_prefix(at + cabinets.size());
    return isCabinetOfAGather(text.substr(0, text.find('"')));
}

bool isReportOnACabinet(std::string_view text)
{
    constexpr std::string_view title = "Cabinet         ";
    const auto line = takeLine(text);
    return line && startsWith(*line, title) && isCabinetOfAGather(line->substr(title.size())) &&
           text.find("Compression     MSZIP\r\n") != std::string_view::npos;
}

/// A sweep of one folder.
class Sweep {
public:
    Sweep(const RootFolder& folder, const std::function<std::string()>& cabinetMaker)
        : folder_(folder), cabinetMaker_(cabinetMaker)
    {}

    /// What is left there, which goes unless it is only looked for.
    std::vector<std::string> run(bool removes)
    {
        const auto names = folder_.names("");
        hasDatabase_ = std::any_of(names.begin(), names.end(),
                                   [](const auto& name) { return isResult(name, ".mdb"); });
        isOfTool_ = std::any_of(names.begin(), names.end(), [](const auto& name) {
            return equalIgnoringCase(name, toolFiles::blankDatabase);
        });
        std::vector<std::string> left;
        for (const auto& name : names)
            if (isLeft(name) && (!removes || remove(name))) left.push_back(name);
        // An empty folder tells nothing by itself.
        const std::string disk(diskFolder);
        const auto facts = factsIfOurs(disk);
        if (left.empty() || !facts || facts->kind != FileKind::folder) return left;
        if (removes)
            folder_.removeEmptyFolder(disk);
        else if (folder_.names(disk).empty())
            left.push_back(disk);
        return left;
    }

private:
    /// What may not be removed stays.
    bool remove(const std::string& name) const
    try {
        folder_.removeFile(name);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }

    /// Of what a name stands for itself; nothing where that is not this user's own.
    std::optional<FileFacts> factsIfOurs(const std::string& name) const
    {
        auto facts = folder_.unfollowedFacts(name);
        if (facts && !isOurs(*facts)) facts.reset();
        return facts;
    }

    /// What may not be looked at stays too.
    bool isLeft(const std::string& name) const
    try {
        if (isReplacementFile(name)) return isUnfinished(name);
        if (name == directiveFile) return isPlain(name) && isDirectiveFileOfAGather(text(name));
        if (name == setupList) return isPlain(name) && isListOfACabinet(text(name));
        if (name == setupReport) return isPlain(name) && isReportOnACabinet(text(name));
        if (name != cabinetMakerCopy || !isPlain(name)) return false;
        // The same bytes lie in every folder of the tool. A gather copies the program to where its
        // database is by then.
        if (isOfTool_ || !hasDatabase_) return false;
        const std::string program = text(name, longestProgram);
        return !program.empty() && program == cabinetMaker_();
    } catch (const RunTimeError&) {
        return false;
    }

    /// Whether it is what the cabinet maker was writing when it was killed.
    bool isUnfinished(const std::string& name) const
    {
        const auto facts = factsIfOurs(name);
        return facts && isLeftReplacementFile(name, *facts);
    }

    bool isPlain(const std::string& name) const
    {
        // A gather gives its files one name; another one is somebody's who keeps it.
        const auto facts = factsIfOurs(name);
        return facts && facts->kind == FileKind::file && facts->hardLinks <= 1;
    }

    std::string text(const std::string& name, std::size_t limit = longestText) const
    {
        return readWholeFile(folder_, name, runTimeErrors::fileNotFound, limit);
    }

    const RootFolder& folder_;
    const std::function<std::string()>& cabinetMaker_;
    bool hasDatabase_ = false; ///< a gather's lies there
    bool isOfTool_ = false;    ///< it is a folder of the tool's own files
};

} // namespace

bool isCabinetOfAGather(std::string_view name)
{
    return isResult(name, ".cab");
}

bool isDirectiveFileOfAGather(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    constexpr std::string_view cabinet = ".Set CabinetNameTemplate=..\\";
    constexpr std::array<std::string_view, 5> heads = {".Option EXPLICIT", cabinet,
                                                       ".Set Cabinet=on", ".Set Compress=on",
                                                       ".Set MaxDiskSize=CDROM"};
    if (startsWith(text, mark)) text.remove_prefix(mark.size());
    if (text.empty()) return true;
    bool ours = false;
    for (const auto head : heads) {
        const auto line = takeLine(text);
        const bool named = head == cabinet;
        if (!line) return ours && startsWith(head, text);
        const bool fits =
            named ? startsWith(*line, head) && isCabinetOfAGather(line->substr(head.size()))
                  : *line == head;
        if (!fits) return false;
        ours = ours || named;
    }
    while (const auto line = takeLine(text))
        if (!isMember(*line)) return false;
    return text.empty() || text.front() == '"';
}

void sweepGatherLeftovers(const RootFolder& folder,
                          const std::function<std::string()>& cabinetMaker)
{
    try {
        Sweep(folder, cabinetMaker).run(true);
    } catch (const RunTimeError&) {
        return; // a folder that may not be listed keeps what it has
    }
}

std::vector<std::string> gatherLeftovers(const RootFolder& folder,
                                         const std::function<std::string()>& cabinetMaker)
try {
    return Sweep(folder, cabinetMaker).run(false);
} catch (const RunTimeError&) {
    return {};
}
