#include "hosts/common/gather/gather_outcome.h"

#include "backends/site/files/result_folder.h"
#include "core/error_trap.h"
#include "core/registry_store.h"
#include "gather/pipeline.h"
#include "hosts/common/gather/cabinet_names.h"
#include "hosts/common/gather/gather_report.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/tool_files.h"
#include "platform/trace_database.h"
#include "runtime/text.h"
#include "wizards/gather_progress.h"
#include "wizards/gather_welcome.h"

#include <algorithm>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view pipelineProc = "[mdlLogs]processLogs";
constexpr std::string_view filtersProc = "[mdlLogs]saveUniqueFilters";
constexpr std::string_view packingProc = "[mdlLogs]compressResults";

/// What a line may raise that is malformed: it is copied or stored as it can be.
bool isOfAMalformedLine(int error)
{
    switch (error) {
    case runTimeErrors::invalidCall:
    case runTimeErrors::typeMismatch:
    case runTimeErrors::invalidPropertyValue:
    case traceDatabaseErrors::fieldTooSmall:
    case traceDatabaseErrors::zeroLength:
        return true;
    default:
        return false;
    }
}

/// Whether an error that a gather went on after may have cost the person a result.
bool costsAResult(const RunTimeError& error, std::string_view procName)
{
    return beginsWith(procName, "[mdlLogs]") &&
           (procName == packingProc || !isOfAMalformedLine(error.number()));
}

/// What an error tells, as a part of a sentence: some end in a point of their own.
std::string causeOf(const RunTimeError& error)
{
    std::string cause = error.description();
    while (!cause.empty() && cause.back() == '.') cause.pop_back();
    return cause;
}

/// The leaf that stands in bold; null between the logs.
const TreeNode* currentLeaf(const TreeView& steps)
{
    for (int index = 1; index <= steps.count(); ++index)
        if (steps.item(index).bold()) return &steps.item(index);
    return nullptr;
}

/// The entries of a job's list.
std::vector<std::string> namesIn(const StringArray& list)
{
    std::vector<std::string> names;
    for (int index = 1; index <= list.upperBound(); ++index)
        if (!list.at(index).empty()) names.push_back(list.at(index));
    return names;
}

std::string formattedName(const std::string& log)
{
    const std::size_t dot = std::min(log.find('.'), log.size());
    return log.substr(0, dot) + std::string(logFileNames::formattedTag) + log.substr(dot);
}

/// Whether a frame would look at a file of this name.
bool mayBeOfAFrame(const std::string& name)
{
    using namespace logFileNames;
    const std::string folded = lowerCase(name);
    const bool log = beginsWith(folded, diagnosticPrefix) || beginsWith(folded, dataPrefix);
    return log && !isFormattedCopy(name) && folded.size() > ending.size() &&
           folded.compare(folded.size() - ending.size(), ending.size(), ending) == 0;
}

std::string captureName(const std::string& eventLog)
{
    return eventLog + ".csv";
}

bool holds(const std::vector<std::string>& names, const std::string& wanted)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return equalIgnoringCase(name, wanted); });
}

/// What packing makes beside its input and removes again.
constexpr std::string_view passingNames[] = {"setup.rpt", "setup.inf", "ZMK.DDF", "disk1",
                                             "cabmaker.exe"};

bool isPassing(const std::string& name)
{
    return std::any_of(std::begin(passingNames), std::end(passingNames), [&](std::string_view own) {
        return equalIgnoringCase(name, std::string(own));
    });
}

/// False too where it can't be told.
bool isFolder(const FileSystem& files, const std::string& path)
try {
    return files.folderExists(path);
} catch (const RunTimeError&) {
    return false;
}

/// What lies in a folder, if there is one, as far as the machine tells; `failed` says why there may
/// be more.
std::vector<fs::directory_entry> entriesOf(const std::string& folder, std::error_code& failed)
{
    std::vector<fs::directory_entry> entries;
    failed.clear();
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed))
        entries.push_back(*entry);
    if (failed == std::errc::no_such_file_or_directory) failed.clear();
    return entries;
}

/// Null where there is no folder that may be listed.
std::unique_ptr<ResultFolder> folderAt(const std::string& path)
try {
    return std::make_unique<ResultFolder>(path);
} catch (const RunTimeError&) {
    return nullptr;
}

/// Many logs that failed in one way, or by one cause in several, are told in one sentence.
void addTogether(std::vector<Sentence>& sentences, const std::vector<Sentence>& gaps)
{
    constexpr std::size_t toldOneByOne = 3;
    std::map<std::pair<std::string_view, std::string>, std::vector<Sentence>> alike;
    for (const Sentence& gap : gaps)
        alike[{gap.pattern, gap.inserts.size() > 1 ? gap.inserts[1] : ""}].push_back(gap);
    std::map<std::string, std::vector<std::string>> cutShort; // logs by cause, the first one first
    for (const auto& [way, group] : alike) {
        if (group.size() <= toldOneByOne || way.second.empty()) {
            sentences.insert(sentences.end(), group.begin(), group.end());
            continue;
        }
        for (const Sentence& gap : group)
            if (auto& logs = cutShort[way.second]; !holds(logs, gap.inserts[0]))
                logs.push_back(gap.inserts[0]);
    }
    for (const auto& [cause, logs] : cutShort)
        sentences.push_back(
            {gatherSentences::logsCutShort, {std::to_string(logs.size()), logs.front(), cause}});
}

} // namespace

std::vector<Sentence> GatherOutcome::sentences() const
{
    std::vector<Sentence> all;
    if (cancelled) all.push_back({gatherSentences::cancelled, {}});
    all.insert(all.end(), missing.begin(), missing.end());
    if (emptyFrame) all.push_back({gatherSentences::emptyFrame, {}});
    if (cabinetMakerReplaced) all.push_back({gatherSentences::cabinetMakerReplaced, {}});
    if ((cancelled || !missing.empty()) && !files.empty())
        all.push_back({gatherSentences::kept, {destination}});
    return all;
}

GatherWatch::GatherWatch(ToolContext& tool, GatherReport& report, const ppgGatherLogs03Step& page,
                         MachinePath machinePath)
    : tool_(tool), report_(report), steps_(page.treeviewSteps),
      machinePath_(std::move(machinePath)), standard_(page.job().m_bStandardLogs),
      timeFrame_(page.job().m_bTimeFrameLogs), logs_(namesIn(page.job().getOrvanLogs())),
      eventLogs_(namesIn(page.job().getWindowsLogs())),
      destination_(page.job().m_LogDestinationDirectory), before_(filesThere())
{
    report_.forgetReadings();
    folder_ = folderAt(machinePath_(destination_));
    listener_.emplace(tool_, [this](const RunTimeError& error, std::string_view procName) {
        note(error, procName);
    });
}

GatherWatch::~GatherWatch() = default;

/// The bytes of the program that a gather copies to its destination. Raises 53, 62, and 70 where
/// that is the program itself.
std::string GatherWatch::cabinetMaker() const
{
    const std::string program = "\\cabmaker.exe";
    std::error_code none;
    if (fs::equivalent(machinePath_(tool_.platform.module.folder() + program),
                       machinePath_(destination_ + program), none))
        throw RunTimeError(runTimeErrors::permissionDenied);
    return tool_.platform.files.openForReading(tool_.platform.module.folder() + "\\cabmaker.exe")
        ->readAll();
}

void GatherWatch::messageShown()
{
    const TreeNode* leaf = currentLeaf(steps_);
    if (leaf) add({Stage::serverLog, leaf->text(), false, ""});
}

void GatherWatch::note(const RunTimeError& error, std::string_view procName)
{
    if (!costsAResult(error, procName)) return;
    const bool tooMany = error.number() == errorCountExceeded;
    if (procName == packingProc) return add({Stage::packing, "", tooMany, causeOf(error)});
    const TreeNode* leaf = currentLeaf(steps_);
    if (leaf) {
        const bool server = leaf->parent() && leaf->parent()->text() == mdlLogs::orvanLogsBranch;
        add({server ? Stage::serverLog : Stage::eventLog, leaf->text(), tooMany, causeOf(error)});
        return;
    }
    if (!troubleAt(Stage::run) && procName == pipelineProc)
        destinationMade_ = fs::is_directory(machinePath_(destination_));
    // The one file that the pipeline reads by itself is a definition, before the logs.
    Stage stage = Stage::run;
    if (procName == filtersProc)
        stage = Stage::filters;
    else if (procName == pipelineProc && error.number() == runTimeErrors::inputPastEnd)
        stage = Stage::definitions;
    add({stage, "", tooMany, tooMany ? "too many errors" : causeOf(error)});
}

/// The first trouble is the cause: that a trap gives up behind it says no more. Malformed lines,
/// which are no trouble each, come here when a trap gives up for them alone.
void GatherWatch::add(Trouble trouble)
{
    const auto first = std::find_if(troubles_.begin(), troubles_.end(), [&](const Trouble& known) {
        return known.stage == trouble.stage && known.log == trouble.log;
    });
    if (first == troubles_.end())
        troubles_.push_back(std::move(trouble));
    else if (trouble.tooManyErrors)
        first->gaveUp = true;
}

const GatherWatch::Trouble* GatherWatch::troubleAt(Stage stage, std::string_view log) const
{
    for (const Trouble& trouble : troubles_)
        if (trouble.stage == stage && trouble.log == log) return &trouble;
    return nullptr;
}

std::map<std::string, GatherWatch::Stamp> GatherWatch::filesThere() const
{
    std::map<std::string, Stamp> files;
    std::error_code none;
    for (const auto& entry : entriesOf(machinePath_(destination_), none))
        if (entry.is_regular_file(none))
            files[entry.path().filename().string()] = {entry.last_write_time(none),
                                                       entry.file_size(none)};
    return files;
}

std::optional<Sentence> GatherWatch::refusal() const
{
    if (timeFrame_ && folder_) folder_->sweepLeftovers([this] { return cabinetMaker(); });
    return refusalBeside({});
}

std::optional<Sentence> GatherWatch::foreseenRefusal() const
{
    if (!timeFrame_ || !folder_) return refusalBeside({});
    return refusalBeside(folder_->leftovers([this] { return cabinetMaker(); }));
}

/// Why the run must not begin, when what is left of a gather that was killed is no reason.
std::optional<Sentence> GatherWatch::refusalBeside(const std::vector<std::string>& leftovers) const
{
    const std::string folder = machinePath_(destination_);
    std::error_code none;
    for (const auto& entry : entriesOf(folder, none)) {
        const std::string name = entry.path().filename().string();
        if (std::find(leftovers.begin(), leftovers.end(), name) != leftovers.end()) continue;
        if (timeFrame_ && isPassing(name))
            return Sentence{gatherSentences::wouldBeLost, {name, folder}};
        if (mayBeOfThisRun(name) && !fs::is_regular_file(entry.symlink_status(none)))
            return Sentence{gatherSentences::notPlain, {name, folder}};
    }
    return {};
}

bool GatherWatch::isCapture(const std::string& name) const
{
    return std::any_of(eventLogs_.begin(), eventLogs_.end(), [&](const std::string& log) {
        return equalIgnoringCase(name, captureName(log));
    });
}

/// The moments in the names of a time frame's results are not known before they are made.
bool GatherWatch::mayBeOfThisRun(const std::string& name) const
{
    const fs::path ending = fs::path(name).extension();
    const bool named = ending == toolFiles::databaseEnding || ending == toolFiles::cabinetEnding;
    if (timeFrame_ && named && name.find(toolFiles::resultMark) != std::string::npos) return true;
    return isCapture(name) || (!timeFrame_ && isOfThisRun(name));
}

/// Another program may write to the folder too: only a gather's own names count.
bool GatherWatch::isOfThisRun(const std::string& name) const
{
    const auto named = [&](const std::string& wanted) { return equalIgnoringCase(name, wanted); };
    if (isCapture(name)) return true;
    if (timeFrame_)
        return name == fs::path(machinePath_(tool_.g_strTraceDatabase)).filename() ||
               (name.find(toolFiles::resultMark) != std::string::npos &&
                fs::path(name).extension() == toolFiles::cabinetEnding);
    const auto isCopied = [&](const std::string& log) { return named(formattedName(log)); };
    return std::any_of(logs_.begin(), logs_.end(), isCopied);
}

/// A file that was there already is of this run when it was written anew: a cabinet may take the
/// place of that of a gather in the same second.
void GatherWatch::findFiles(GatherOutcome& outcome) const
{
    for (const auto& [name, stamp] : filesThere()) {
        const auto known = before_.find(name);
        if (known != before_.end() && known->second == stamp) continue;
        if (!isOfThisRun(name)) continue;
        outcome.files.push_back(name);
        const fs::path path = fs::path(outcome.destination) / name;
        if (!timeFrame_) continue;
        if (path.extension() == toolFiles::cabinetEnding)
            outcome.cabinet = outcome.cabinet.value_or(path.string());
        else if (path.extension() == toolFiles::databaseEnding)
            outcome.database = path.string();
    }
}

GatherOutcome GatherWatch::outcome() const
{
    GatherOutcome outcome;
    outcome.destination = machinePath_(destination_);
    outcome.cancelled = cancelled_;
    std::error_code none;
    outcome.destinationThere = fs::is_directory(outcome.destination, none);
    if (!outcome.destinationThere) {
        tellOfDestination(outcome);
        return outcome;
    }
    outcome.destinationSwapped = folder_ && !folder_->isAt(outcome.destination);
    if (outcome.destinationSwapped)
        outcome.missing.push_back({gatherSentences::destinationGone, {outcome.destination}});
    findFiles(outcome);
    if (timeFrame_) tellOfDatabase(outcome);
    const std::size_t toldBefore = outcome.missing.size();
    tellOfLogs(outcome);
    // A log that was not read to its end may have lines of the frame.
    if (cancelled_ || outcome.missing.size() > toldBefore) outcome.emptyFrame = false;
    tellOfEventLogs(outcome);
    if (timeFrame_) tellOfCabinet(outcome);
    return outcome;
}

void GatherWatch::tellOfDestination(GatherOutcome& outcome) const
{
    const Trouble* trouble = troubleAt(Stage::run);
    if (trouble && !destinationMade_)
        outcome.missing.push_back(
            {gatherSentences::destinationNotMade, {outcome.destination, trouble->why}});
    else
        outcome.missing.push_back({gatherSentences::destinationGone, {outcome.destination}});
}

void GatherWatch::tellOfDatabase(GatherOutcome& outcome) const
{
    const Trouble* run = troubleAt(Stage::run);
    if (!outcome.database) {
        outcome.missing.push_back({gatherSentences::noDatabase, {run ? run->why : "it has gone"}});
        return;
    }
    outcome.rows = report_.storedRows();
    outcome.emptyFrame = !run && outcome.rows.empty();
    if (run) outcome.missing.push_back({gatherSentences::databaseIncomplete, {run->why}});
    if (const Trouble* definitions = troubleAt(Stage::definitions))
        outcome.missing.push_back({gatherSentences::definitionsIncomplete, {definitions->why}});
    if (const Trouble* filters = troubleAt(Stage::filters))
        outcome.missing.push_back({gatherSentences::filtersIncomplete, {filters->why}});
}

void GatherWatch::tellOfCabinet(GatherOutcome& outcome) const
{
    const ProcessReport maker = tool_.platform.processes.lastReport();
    outcome.cabinetMakerReplaced = outcome.cabinet && maker.replaced;
    if (outcome.cabinet) return tellOfCabinetsContents(outcome);
    const std::string program = tool_.platform.module.folder() + "\\cabmaker.exe";
    const Trouble* packing = troubleAt(Stage::packing);
    if (!maker.failure.empty())
        outcome.missing.push_back({gatherSentences::noCabinetBecause, {maker.failure}});
    else if (!tool_.platform.files.fileExists(program))
        outcome.missing.push_back({gatherSentences::noCabinetMaker, {machinePath_(program)}});
    else if (packing)
        outcome.missing.push_back({gatherSentences::noCabinetBecause, {packing->why}});
    else
        outcome.missing.push_back({gatherSentences::noCabinet, {}});
}

/// What the gather packs is what it finds: a file that it could not look at is not in the cabinet.
void GatherWatch::tellOfCabinetsContents(GatherOutcome& outcome) const
{
    std::vector<std::string> packed;
    for (const std::string& name : outcome.files)
        if (fs::path(name).extension() == toolFiles::cabinetEnding)
            for (std::string& member : namesInCabinet(fs::path(outcome.destination) / name))
                packed.push_back(std::move(member));
    for (const std::string& name : outcome.files) {
        const bool wanted = name == "Application.csv" || name == "System.csv" ||
                            fs::path(name).extension() == toolFiles::databaseEnding;
        if (wanted && !holds(packed, name))
            outcome.missing.push_back(
                {gatherSentences::logUnseen, {name, "it is not in the cabinet"}});
    }
}

void GatherWatch::tellOfCurrentLog(GatherOutcome& outcome) const
{
    const std::string current = getRegistryText(
        tool_, std::string(logProcessesKey) + "\\" + standardGatherProcess, currentLogValue);
    if (current.empty())
        outcome.missing.push_back({gatherSentences::noCurrentLog, {standardGatherProcess}});
    else
        outcome.missing.push_back(
            {gatherSentences::currentLogGone, {standardGatherProcess, current}});
}

/// The logs that the server writes now, of every process: a frame lists what lies in the folder,
/// and misses none. Where the folder itself can't be seen, they are no news.
void GatherWatch::tellOfCurrentLogs(GatherOutcome& outcome) const
{
    const std::string& folder = tool_.g_strLogFolder;
    if (report_.listingFailure(folder) || !isFolder(tool_.platform.files, folder)) return;
    const std::string processes = logProcessesKey;
    const auto names = tool_.platform.registry.subkeys(registryRoot::localMachine, processes);
    for (const std::string& process : names.value_or(std::vector<std::string>{})) {
        const std::string current =
            getRegistryText(tool_, processes + "\\" + process, currentLogValue);
        if (current.empty()) continue;
        try {
            if (!tool_.platform.files.fileExists(current)) tool_.platform.files.file(current);
        } catch (const RunTimeError& error) {
            if (error.number() == runTimeErrors::fileNotFound)
                outcome.missing.push_back({gatherSentences::currentLogGone, {process, current}});
            else
                outcome.missing.push_back(
                    {gatherSentences::currentLogUnseen, {process, current, causeOf(error)}});
        }
    }
}

/// Logs of a frame that the listing passes over without a word, with the reasons: links that lead
/// out of the site or nowhere, or could not be followed, pipes and the like. `failed` says why
/// there may be more.
std::map<std::string, std::string> GatherWatch::passedOver(std::error_code& failed) const
{
    const std::string& folder = tool_.g_strLogFolder;
    std::map<std::string, std::string> logs;
    std::error_code none;
    for (const auto& entry : entriesOf(machinePath_(folder), failed)) {
        const std::string name = entry.path().filename().string();
        const bool ordinary =
            entry.is_directory(none) || (entry.is_regular_file(none) && !entry.is_symlink(none));
        if (ordinary || !mayBeOfAFrame(name)) continue;
        try {
            if (!tool_.platform.files.fileExists(folder + "\\" + name))
                tool_.platform.files.file(folder + "\\" + name);
            if (!report_.wasListed(folder + "\\" + lowerCase(name.substr(0, 5)) + "*.txt", name))
                logs[name] = "it could not be followed when the logs were listed";
        } catch (const RunTimeError& error) {
            logs[name] = causeOf(error);
        }
    }
    return logs;
}

/// What the pages that list the logs could not list, or not look at.
void GatherWatch::tellOfListing(GatherOutcome& outcome) const
{
    const std::string& folder = tool_.g_strLogFolder;
    const auto failure = report_.listingFailure(folder);
    if (failure)
        outcome.missing.push_back({gatherSentences::logsNotListed, {folder, *failure}});
    else if (timeFrame_ && !isFolder(tool_.platform.files, folder))
        outcome.missing.push_back({gatherSentences::noLogFolder, {folder}});
    std::map<std::string, std::string> logs;
    if (timeFrame_ && !failure && isFolder(tool_.platform.files, folder)) {
        std::error_code failed;
        logs = passedOver(failed);
        if (failed)
            outcome.missing.push_back({gatherSentences::logsNotListed, {folder, failed.message()}});
    }
    for (const auto& [log, why] : report_.unseenLogs(folder)) logs.emplace(log, why);
    std::vector<Sentence> unseen;
    for (const auto& [log, why] : logs)
        if (!holds(logs_, log)) unseen.push_back({gatherSentences::logUnseen, {log, why}});
    addTogether(outcome.missing, unseen);
}

/// A cancel leaves logs untouched, which is no news; without a database no log had a chance.
void GatherWatch::tellOfLogs(GatherOutcome& outcome) const
{
    if (!standard_) tellOfListing(outcome);
    if (standard_ && logs_.empty()) tellOfCurrentLog(outcome);
    if (timeFrame_) tellOfCurrentLogs(outcome);
    if (timeFrame_ && (!outcome.database || troubleAt(Stage::run))) return;
    std::vector<Sentence> gaps;
    for (const std::string& log : logs_)
        for (Sentence& gap : gapsOf(log, outcome)) gaps.push_back(std::move(gap));
    addTogether(outcome.missing, gaps);
}

std::vector<Sentence> GatherWatch::gapsOf(const std::string& log,
                                          const GatherOutcome& outcome) const
{
    std::vector<Sentence> gaps;
    if (auto gap = gapOf(log, outcome)) gaps.push_back(std::move(*gap));
    const LogSight* sight = report_.reading(tool_.g_strLogFolder + "\\" + log);
    if (!sight) return gaps;
    if (!sight->rowsLostBecause.empty())
        gaps.push_back({gatherSentences::linesNotStored,
                        {log, sight->rowsLostBecause, std::to_string(sight->rowsLost)}});
    if (sight->cut)
        gaps.push_back({gatherSentences::logCut, {log}});
    else if (sight->vanished)
        gaps.push_back({gatherSentences::logVanished, {log}});
    return gaps;
}

/// What a trap, a box or a missing copy tells of a log.
std::optional<Sentence> GatherWatch::gapOf(const std::string& log,
                                           const GatherOutcome& outcome) const
{
    const Trouble* trouble = troubleAt(Stage::serverLog, log);
    const bool written = timeFrame_ || holds(outcome.files, formattedName(log));
    if (!trouble) {
        if (written || cancelled_) return {};
        return Sentence{gatherSentences::logNotCopied, {log, "the copy has gone"}};
    }
    if (trouble->tooManyErrors) return Sentence{gatherSentences::tooManyMalformedLines, {log}};
    if (trouble->why.empty())
        return Sentence{gatherSentences::logNotFound, {log, tool_.g_strLogFolder}};
    const LogSight* sight = report_.reading(tool_.g_strLogFolder + "\\" + log);
    const bool brokenOff =
        sight && !sight->readToEnd && (trouble->gaveUp || !sight->unread.empty());
    if (brokenOff)
        return Sentence{gatherSentences::logReadSoFar,
                        {log, trouble->why, std::to_string(sight->lines)}};
    if (timeFrame_) {
        if (sight && !sight->rowsLostBecause.empty()) return {};
        return Sentence{gatherSentences::logReadInPart, {log, trouble->why}};
    }
    return Sentence{written ? gatherSentences::logCopiedInPart : gatherSentences::logNotCopied,
                    {log, trouble->why}};
}

void GatherWatch::tellOfEventLogs(GatherOutcome& outcome) const
{
    for (const std::string& log : eventLogs_) {
        const Trouble* trouble = troubleAt(Stage::eventLog, log);
        if (trouble)
            outcome.missing.push_back({gatherSentences::eventLogNotCaptured, {log, trouble->why}});
        else if (!cancelled_ && !holds(outcome.files, captureName(log)))
            outcome.missing.push_back(
                {gatherSentences::eventLogNotCaptured, {log, "its file has gone"}});
    }
}
