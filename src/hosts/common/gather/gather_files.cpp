#include "hosts/common/gather/gather_files.h"

#include "backends/site/files/result_folder.h"
#include "core/tool_context.h"
#include "hosts/common/gather/folder_entries.h"
#include "hosts/common/gather/gather_sentences.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/tool_files.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/machine_path.h"
#include "system/root_folder.h"

#include <algorithm>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// What packing makes beside its input and removes again.
constexpr std::string_view passingNames[] = {"setup.rpt", "setup.inf", "ZMK.DDF", "disk1",
                                             "cabmaker.exe"};

bool isPassing(const std::string& name)
{
    return std::any_of(std::begin(passingNames), std::end(passingNames), [&](std::string_view own) {
        return equalIgnoringCase(name, std::string(own));
    });
}

/// Null where there is no folder that may be listed.
std::unique_ptr<ResultFolder> folderAt(const std::string& path)
try {
    return std::make_unique<ResultFolder>(path);
} catch (const RunTimeError&) {
    return nullptr;
}

} // namespace

GatherFiles::GatherFiles(const ToolContext& tool, const GatherJob& job, MachinePath machinePath)
    : tool_(tool), job_(job), machinePath_(std::move(machinePath)), before_(filesThere()),
      asItWas_(folderAt(folder()))
{}

GatherFiles::~GatherFiles() = default;

std::string GatherFiles::folder() const
{
    return machinePath_(job_.destination);
}

bool GatherFiles::swapped() const
{
    return asItWas_ && !asItWas_->isAt(folder());
}

/// The bytes of the program that a gather copies to its destination. Raises 53, 62, and 70 where
/// that is the program itself.
std::string GatherFiles::cabinetMaker() const
{
    const std::string program = "\\cabmaker.exe";
    std::error_code none;
    if (fs::equivalent(filePathOf(machinePath_(tool_.platform.module.folder() + program)),
                       filePathOf(machinePath_(job_.destination + program)), none))
        throw RunTimeError(runTimeErrors::permissionDenied);
    return tool_.platform.files.openForReading(tool_.platform.module.folder() + program)->readAll();
}

std::map<std::string, GatherFiles::Stamp> GatherFiles::filesThere() const
{
    std::map<std::string, Stamp> files;
    std::error_code none;
    for (const auto& entry : entriesOf(folder(), none))
        if (entry.is_regular_file(none))
            files[entry.path().filename().string()] = {entry.last_write_time(none),
                                                       entry.file_size(none)};
    return files;
}

std::optional<Sentence> GatherFiles::refusal() const
{
    if (job_.timeFrame && asItWas_) asItWas_->sweepLeftovers([this] { return cabinetMaker(); });
    return refusalBeside({});
}

std::optional<Sentence> GatherFiles::foreseenRefusal() const
{
    if (!job_.timeFrame || !asItWas_) return refusalBeside({});
    return refusalBeside(asItWas_->leftovers([this] { return cabinetMaker(); }));
}

/// Why the run must not begin, when what is left of a gather that was killed is no reason.
std::optional<Sentence> GatherFiles::refusalBeside(const std::vector<std::string>& leftovers) const
{
    const std::string destination = folder();
    std::error_code none;
    for (const auto& entry : entriesOf(destination, none)) {
        const std::string name = entry.path().filename().string();
        if (std::find(leftovers.begin(), leftovers.end(), name) != leftovers.end()) continue;
        if (job_.timeFrame && isPassing(name))
            return Sentence{gatherSentences::wouldBeLost, {name, destination}};
        if (mayBeOfThisRun(name) && !fs::is_regular_file(entry.symlink_status(none)))
            return Sentence{gatherSentences::notPlain, {name, destination}};
    }
    return {};
}

bool GatherFiles::isCapture(const std::string& name) const
{
    return std::any_of(job_.eventLogs.begin(), job_.eventLogs.end(), [&](const std::string& log) {
        return equalIgnoringCase(name, captureName(log));
    });
}

/// The moments in the names of a time frame's results are not known before they are made.
bool GatherFiles::mayBeOfThisRun(const std::string& name) const
{
    const fs::path ending = filePathOf(name).extension();
    const bool named = ending == toolFiles::databaseEnding || ending == toolFiles::cabinetEnding;
    if (job_.timeFrame && named && name.find(toolFiles::resultMark) != std::string::npos)
        return true;
    return isCapture(name) || (!job_.timeFrame && isOfThisRun(name));
}

/// Another program may write to the folder too: only a gather's own names count.
bool GatherFiles::isOfThisRun(const std::string& name) const
{
    const auto named = [&](const std::string& wanted) { return equalIgnoringCase(name, wanted); };
    if (isCapture(name)) return true;
    if (job_.timeFrame)
        return name == lastNameOf(machinePath_(tool_.g_strTraceDatabase)) ||
               (name.find(toolFiles::resultMark) != std::string::npos &&
                filePathOf(name).extension() == toolFiles::cabinetEnding);
    const auto isCopied = [&](const std::string& log) { return named(formattedName(log)); };
    return std::any_of(job_.logs.begin(), job_.logs.end(), isCopied);
}

/// A file that was there already is of this run when it was written anew: a cabinet may take the
/// place of that of a gather in the same second.
std::vector<std::string> GatherFiles::written() const
{
    std::vector<std::string> names;
    for (const auto& [name, stamp] : filesThere()) {
        const auto known = before_.find(name);
        if (known != before_.end() && known->second == stamp) continue;
        if (isOfThisRun(name)) names.push_back(name);
    }
    return names;
}
