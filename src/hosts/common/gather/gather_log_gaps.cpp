#include "hosts/common/gather/gather_log_gaps.h"

#include "core/registry_store.h"
#include "core/tool_context.h"
#include "hosts/common/gather/folder_entries.h"
#include "hosts/common/gather/gather_report.h"
#include "hosts/common/gather/gather_sentences.h"
#include "hosts/common/gather/gather_troubles.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "platform/registry.h"
#include "runtime/text.h"
#include "wizards/gather_welcome.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

/// Whether a frame would look at a file of this name.
bool mayBeOfAFrame(const std::string& name)
{
    using namespace logFileNames;
    const std::string folded = lowerCase(name);
    const bool log = beginsWith(folded, diagnosticPrefix) || beginsWith(folded, dataPrefix);
    return log && !isFormattedCopy(name) && folded.size() > ending.size() &&
           folded.compare(folded.size() - ending.size(), ending.size(), ending) == 0;
}

/// False too where it can't be told.
bool isFolder(const FileSystem& files, const std::string& path)
try {
    return files.folderExists(path);
} catch (const RunTimeError&) {
    return false;
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
            if (auto& logs = cutShort[way.second]; !holdsName(logs, gap.inserts[0]))
                logs.push_back(gap.inserts[0]);
    }
    for (const auto& [cause, logs] : cutShort)
        sentences.push_back(
            {gatherSentences::logsCutShort, {std::to_string(logs.size()), logs.front(), cause}});
}

/// Collects the gaps of a run's logs.
class LogGaps {
public:
    LogGaps(const FollowedGather& run, const GatherOutcome& outcome) : run_(run), outcome_(outcome)
    {}

    std::vector<Sentence> take();

private:
    bool folderThere() const;
    std::string currentLogOf(const std::string& process) const;
    void missing(std::string_view sentence, std::vector<std::string> inserts);
    void tellOfListing();
    std::map<std::string, std::string> passedOver(std::error_code& failed) const;
    void tellOfStandardLog();
    void tellOfCurrentLogs();
    std::vector<Sentence> gapsOf(const std::string& log) const;
    std::optional<Sentence> gapOf(const std::string& log) const;
    const LogSight* sightOf(const std::string& log) const;

    const FollowedGather& run_;
    const GatherOutcome& outcome_;
    const std::string& folder_ = run_.tool.g_strLogFolder;
    std::vector<Sentence> sentences_;
};

std::vector<Sentence> LogGaps::take()
{
    const GatherJob& job = run_.job;
    if (!job.standard) tellOfListing();
    if (job.standard && job.logs.empty()) tellOfStandardLog();
    if (job.timeFrame) tellOfCurrentLogs();
    if (job.timeFrame && (!outcome_.database || run_.troubles.at(GatherStage::run)))
        return std::move(sentences_);
    std::vector<Sentence> gaps;
    for (const std::string& log : job.logs)
        for (Sentence& gap : gapsOf(log)) gaps.push_back(std::move(gap));
    addTogether(sentences_, gaps);
    return std::move(sentences_);
}

bool LogGaps::folderThere() const
{
    return isFolder(run_.tool.platform.files, folder_);
}

/// As the server names it; the empty text where it names none.
std::string LogGaps::currentLogOf(const std::string& process) const
{
    return getRegistryText(run_.tool, std::string(logProcessesKey) + "\\" + process,
                           currentLogValue);
}

void LogGaps::missing(std::string_view sentence, std::vector<std::string> inserts)
{
    sentences_.push_back({sentence, std::move(inserts)});
}

/// What the pages that list the logs could not list, or not look at.
void LogGaps::tellOfListing()
{
    const auto failure = run_.report.listingFailure(folder_);
    if (failure)
        missing(gatherSentences::logsNotListed, {folder_, *failure});
    else if (run_.job.timeFrame && !folderThere())
        missing(gatherSentences::noLogFolder, {folder_});
    std::map<std::string, std::string> logs;
    if (run_.job.timeFrame && !failure && folderThere()) {
        std::error_code failed;
        logs = passedOver(failed);
        if (failed) missing(gatherSentences::logsNotListed, {folder_, failed.message()});
    }
    for (const auto& [log, why] : run_.report.unseenLogs(folder_)) logs.emplace(log, why);
    std::vector<Sentence> unseen;
    for (const auto& [log, why] : logs)
        if (!holdsName(run_.job.logs, log))
            unseen.push_back({gatherSentences::logUnseen, {log, why}});
    addTogether(sentences_, unseen);
}

/// Logs of a frame that the listing passes over without a word, with the reasons: links that lead
/// out of the site or nowhere, or could not be followed, pipes and the like. `failed` says why
/// there may be more.
std::map<std::string, std::string> LogGaps::passedOver(std::error_code& failed) const
{
    const FileSystem& files = run_.tool.platform.files;
    std::map<std::string, std::string> logs;
    std::error_code none;
    for (const auto& entry : entriesOf(run_.machinePath(folder_), failed)) {
        const std::string name = entry.path().filename().string();
        const bool ordinary =
            entry.is_directory(none) || (entry.is_regular_file(none) && !entry.is_symlink(none));
        if (ordinary || !mayBeOfAFrame(name)) continue;
        try {
            if (!files.fileExists(folder_ + "\\" + name)) files.file(folder_ + "\\" + name);
            const std::string pattern = lowerCase(name.substr(0, 5)) + "*.txt";
            if (!run_.report.wasListed(folder_ + "\\" + pattern, name))
                logs[name] = "it could not be followed when the logs were listed";
        } catch (const RunTimeError& error) {
            logs[name] = causeOf(error);
        }
    }
    return logs;
}

/// Why a standard gather has no log of the process that it takes.
void LogGaps::tellOfStandardLog()
{
    const std::string current = currentLogOf(standardGatherProcess);
    if (current.empty())
        missing(gatherSentences::noCurrentLog, {standardGatherProcess});
    else
        missing(gatherSentences::currentLogGone, {standardGatherProcess, current});
}

/// The logs that the server writes now, of every process: a frame lists what lies in the folder,
/// and misses none. Where the folder itself can't be seen, they are no news.
void LogGaps::tellOfCurrentLogs()
{
    if (run_.report.listingFailure(folder_) || !folderThere()) return;
    const FileSystem& files = run_.tool.platform.files;
    const auto processes =
        run_.tool.platform.registry.subkeys(registryRoot::localMachine, logProcessesKey);
    for (const std::string& process : processes.value_or(std::vector<std::string>{})) {
        const std::string current = currentLogOf(process);
        if (current.empty()) continue;
        try {
            if (!files.fileExists(current)) files.file(current);
        } catch (const RunTimeError& error) {
            if (error.number() == runTimeErrors::fileNotFound)
                missing(gatherSentences::currentLogGone, {process, current});
            else
                missing(gatherSentences::currentLogUnseen, {process, current, causeOf(error)});
        }
    }
}

/// How the services saw a log being read; null for one that was not read.
const LogSight* LogGaps::sightOf(const std::string& log) const
{
    return run_.report.reading(folder_ + "\\" + log);
}

std::vector<Sentence> LogGaps::gapsOf(const std::string& log) const
{
    std::vector<Sentence> gaps;
    if (auto gap = gapOf(log)) gaps.push_back(std::move(*gap));
    const LogSight* sight = sightOf(log);
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
std::optional<Sentence> LogGaps::gapOf(const std::string& log) const
{
    const GatherTrouble* trouble = run_.troubles.at(GatherStage::serverLog, log);
    const bool timeFrame = run_.job.timeFrame;
    const bool written = timeFrame || holdsName(outcome_.files, formattedName(log));
    if (!trouble) {
        if (written || run_.cancelled) return {};
        return Sentence{gatherSentences::logNotCopied, {log, "the copy has gone"}};
    }
    if (trouble->tooManyErrors) return Sentence{gatherSentences::tooManyMalformedLines, {log}};
    if (trouble->why.empty()) return Sentence{gatherSentences::logNotFound, {log, folder_}};
    const LogSight* sight = sightOf(log);
    const bool brokenOff =
        sight && !sight->readToEnd && (trouble->gaveUp || !sight->unread.empty());
    if (brokenOff)
        return Sentence{gatherSentences::logReadSoFar,
                        {log, trouble->why, std::to_string(sight->lines)}};
    if (timeFrame) {
        if (sight && !sight->rowsLostBecause.empty()) return {};
        return Sentence{gatherSentences::logReadInPart, {log, trouble->why}};
    }
    return Sentence{written ? gatherSentences::logCopiedInPart : gatherSentences::logNotCopied,
                    {log, trouble->why}};
}

} // namespace

std::vector<Sentence> gapsOfLogs(const FollowedGather& run, const GatherOutcome& outcome)
{
    return LogGaps(run, outcome).take();
}
