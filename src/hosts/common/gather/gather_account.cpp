#include "hosts/common/gather/gather_account.h"

#include "core/tool_context.h"
#include "hosts/common/gather/cabinet_names.h"
#include "hosts/common/gather/gather_files.h"
#include "hosts/common/gather/gather_log_gaps.h"
#include "hosts/common/gather/gather_report.h"
#include "hosts/common/gather/gather_sentences.h"
#include "hosts/common/gather/gather_troubles.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "platform/tool_files.h"
#include "system/machine_path.h"

#include <filesystem>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// Fills an outcome.
class Account {
public:
    explicit Account(const FollowedGather& run) : run_(run) {}

    GatherOutcome take();

private:
    void missing(std::string_view sentence, std::vector<std::string> inserts);
    void tellOfDestination();
    std::string besides(const std::string& name) const;
    void tellOfFiles();
    void tellOfDatabase();
    void tellOfLogs();
    void tellOfEventLogs();
    void tellOfCabinet();
    void tellOfCabinetsContents();

    const FollowedGather& run_;
    GatherOutcome outcome_;
};

GatherOutcome Account::take()
{
    outcome_.destination = run_.files.folder();
    outcome_.cancelled = run_.cancelled;
    std::error_code none;
    outcome_.destinationThere = fs::is_directory(filePathOf(outcome_.destination), none);
    if (!outcome_.destinationThere) {
        tellOfDestination();
        return std::move(outcome_);
    }
    outcome_.destinationSwapped = run_.files.swapped();
    if (outcome_.destinationSwapped)
        missing(gatherSentences::destinationGone, {outcome_.destination});
    tellOfFiles();
    if (run_.job.timeFrame) tellOfDatabase();
    tellOfLogs();
    tellOfEventLogs();
    if (run_.job.timeFrame) tellOfCabinet();
    return std::move(outcome_);
}

void Account::missing(std::string_view sentence, std::vector<std::string> inserts)
{
    outcome_.missing.push_back({sentence, std::move(inserts)});
}

/// A name in the destination as a path, parted as the destination's own is.
std::string Account::besides(const std::string& name) const
{
    const std::string& folder = outcome_.destination;
    const bool parted = folder.ends_with('/') || folder.ends_with('\\');
    return folder + (parted ? "" : folder.starts_with('/') ? "/" : "\\") + name;
}

void Account::tellOfFiles()
{
    outcome_.files = run_.files.written();
    if (!run_.job.timeFrame) return;
    for (const std::string& name : outcome_.files) {
        const fs::path ending = filePathOf(name).extension();
        if (ending == toolFiles::cabinetEnding)
            outcome_.cabinet = outcome_.cabinet.value_or(besides(name));
        else if (ending == toolFiles::databaseEnding)
            outcome_.database = besides(name);
    }
}

void Account::tellOfLogs()
{
    const std::vector<Sentence> gaps = gapsOfLogs(run_, outcome_);
    outcome_.missing.insert(outcome_.missing.end(), gaps.begin(), gaps.end());
    // A log that was not read to its end may have lines of the frame.
    if (run_.cancelled || !gaps.empty()) outcome_.emptyFrame = false;
}

void Account::tellOfDestination()
{
    const GatherTrouble* trouble = run_.troubles.at(GatherStage::run);
    if (trouble && !run_.troubles.destinationMade())
        missing(gatherSentences::destinationNotMade, {outcome_.destination, trouble->why});
    else
        missing(gatherSentences::destinationGone, {outcome_.destination});
}

void Account::tellOfDatabase()
{
    const GatherTrouble* trouble = run_.troubles.at(GatherStage::run);
    if (!outcome_.database) {
        missing(gatherSentences::noDatabase, {trouble ? trouble->why : "it has gone"});
        return;
    }
    outcome_.rows = run_.report.storedRows();
    outcome_.emptyFrame = !trouble && outcome_.rows.empty();
    if (trouble) missing(gatherSentences::databaseIncomplete, {trouble->why});
    if (const GatherTrouble* definitions = run_.troubles.at(GatherStage::definitions))
        missing(gatherSentences::definitionsIncomplete, {definitions->why});
    if (const GatherTrouble* filters = run_.troubles.at(GatherStage::filters))
        missing(gatherSentences::filtersIncomplete, {filters->why});
}

void Account::tellOfCabinet()
{
    const ProcessReport maker = run_.tool.platform.processes.lastReport();
    outcome_.cabinetMakerReplaced = outcome_.cabinet && maker.replaced;
    if (outcome_.cabinet) return tellOfCabinetsContents();
    const std::string program = run_.tool.platform.module.folder() + "\\cabmaker.exe";
    const GatherTrouble* packing = run_.troubles.at(GatherStage::packing);
    if (!maker.failure.empty())
        missing(gatherSentences::noCabinetBecause, {maker.failure});
    else if (!run_.tool.platform.files.fileExists(program))
        missing(gatherSentences::noCabinetMaker, {run_.machinePath(program)});
    else if (packing)
        missing(gatherSentences::noCabinetBecause, {packing->why});
    else
        missing(gatherSentences::noCabinet, {});
}

/// What the gather packs is what it finds: a file that it could not look at is not in the cabinet.
void Account::tellOfCabinetsContents()
{
    std::vector<std::string> packed;
    for (const std::string& name : outcome_.files)
        if (filePathOf(name).extension() == toolFiles::cabinetEnding)
            for (std::string& member :
                 namesInCabinet(filePathOf(outcome_.destination) / filePathOf(name)))
                packed.push_back(std::move(member));
    for (const std::string& name : outcome_.files) {
        const bool wanted = name == "Application.csv" || name == "System.csv" ||
                            filePathOf(name).extension() == toolFiles::databaseEnding;
        if (wanted && !holdsName(packed, name))
            missing(gatherSentences::logUnseen, {name, "it is not in the cabinet"});
    }
}

void Account::tellOfEventLogs()
{
    for (const std::string& log : run_.job.eventLogs) {
        const GatherTrouble* trouble = run_.troubles.at(GatherStage::eventLog, log);
        if (trouble)
            missing(gatherSentences::eventLogNotCaptured, {log, trouble->why});
        else if (!run_.cancelled && !holdsName(outcome_.files, captureName(log)))
            missing(gatherSentences::eventLogNotCaptured, {log, "its file has gone"});
    }
}

} // namespace

GatherOutcome outcomeOf(const FollowedGather& run)
{
    return Account(run).take();
}
