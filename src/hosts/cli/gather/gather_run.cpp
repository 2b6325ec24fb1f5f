#include "hosts/cli/gather/gather_run.h"

#include "hosts/cli/gather/gather_progress.h"
#include "hosts/cli/gather/gather_wizard.h"
#include "hosts/cli/naming/long_paths.h"
#include "hosts/common/gather/destination_turn.h"
#include "hosts/common/gather/gather_sentences.h"
#include "hosts/common/gather/gather_watch.h"
#include "system/file_facts.h"
#include "system/machine_path.h"
#include "system/root_folder.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Lets the second pass in which an earlier gather named results of its own.
void leaveNamesOfEarlierGathers(const DestinationTurn& turn)
{
    constexpr int nap = 50; ///< milliseconds
    for (int slept = 0; slept < DestinationTurn::longestPause && turn.hasNamesOfThisSecond();
         slept += nap)
        std::this_thread::sleep_for(std::chrono::milliseconds(nap));
}

/// While it lives: shows a run's progress, and takes Ctrl-C for its Cancel.
class RunProgress {
public:
    RunProgress(OpenTool& tool, GatherWizard& wizard, GatherWatch& watch)
        : tool_(tool), progress_(wizard.currentStep(), wizard.current(), wizard.overall())
    {
        tool.desktop().beforeMessage([this, &watch] {
            progress_.clear();
            watch.messageShown();
        });
        tool.desktop().onPump([this, &wizard, &watch] {
            if (!tool_.interrupted() || cancelled_) return;
            cancelled_ = true;
            watch.cancelled();
            wizard.cancel();
        });
    }

    ~RunProgress()
    {
        tool_.desktop().onPump({});
        tool_.desktop().beforeMessage({});
    }

    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

private:
    OpenTool& tool_;
    GatherProgress progress_;
    bool cancelled_ = false;
};

/// Raises CommandFailure where another gather has the turn.
void requireTurn(const std::optional<Sentence>& refusal)
{
    if (refusal) throw CommandFailure(asClause(*refusal));
}

/// Raises CommandFailure where something that lies in the destination is in the way.
void requireRoom(const std::optional<Sentence>& refusal)
{
    if (refusal) throw CommandFailure(asClause(*refusal) + "; name another folder");
}

MachinePath machinePathsOf(OpenTool& tool)
{
    return [&tool](const std::string& path) { return tool.machinePath(path); };
}

} // namespace

namespace {

/// The folder that a path lies in; a root keeps its separator.
std::string parentOf(const std::string& path)
{
    const fs::path parent = filePathOf(path).parent_path();
    return parent.has_relative_path() ? folderPathOf(path) : machineTextOf(parent);
}

} // namespace

void requireUsableDestination(OpenTool& tool, const std::string& destination)
{
    if (!tool.keeps(destination))
        throw CommandFailure(tool.server().name() +
                             " is read-only; make its folder writable, or name a destination "
                             "outside of it with --to");
    const std::string there = tool.machinePath(destination);
    requireShortEnough("the destination", there);
    const std::string shown = shownPathOf(there);
    const fs::path folder = filePathOf(there);
    std::error_code none;
    const fs::file_status status = fs::status(folder, none);
    if (fs::exists(status)) {
        if (!fs::is_directory(status))
            throw CommandFailure("the destination " + shown + " is not a folder");
        if (!mayWrite(there))
            throw CommandFailure("the destination " + shown + " may not be written to");
        return;
    }
    const std::string parent = parentOf(there);
    if (!fs::is_directory(filePathOf(parent), none))
        throw CommandFailure("the destination's folder " + shownPathOf(parent) + " does not exist");
    if (!mayWrite(parent))
        throw CommandFailure("the destination can't be made: " + shownPathOf(parent) +
                             " may not be written to");
}

void requireBeginning(OpenTool& tool, GatherWizard& wizard)
{
    requireTurn(DestinationTurn::foreseenRefusal(tool.machinePath(wizard.destination())));
    const GatherWatch watch(tool.context(), tool.report(), wizard.progressPage(),
                            machinePathsOf(tool));
    requireRoom(watch.foreseenRefusal());
}

GatherOutcome runGather(OpenTool& tool, GatherWizard& wizard)
{
    const std::string destination = wizard.destination();
    const DestinationTurn turn(tool.context().platform.files, destination,
                               tool.machinePath(destination));
    requireTurn(turn.refusal());
    leaveNamesOfEarlierGathers(turn);
    GatherWatch watch(tool.context(), tool.report(), wizard.progressPage(), machinePathsOf(tool));
    requireRoom(watch.refusal());
    {
        const RunProgress progress(tool, wizard, watch);
        wizard.run();
    }
    return watch.outcome();
}

namespace {

std::string rowSummary(const GatherOutcome& outcome)
{
    if (outcome.rows.empty()) return {};
    Table table({"Rows of " + lastNameOf(*outcome.database), ""});
    table.alignRight(1);
    for (const auto& [process, count] : outcome.rows) table.row({process, groupedNumber(count)});
    return table.text();
}

std::string joined(const std::vector<Sentence>& sentences)
{
    std::string text;
    for (const Sentence& sentence : sentences)
        text += (text.empty() ? "" : "; ") + asClause(sentence);
    return text;
}

void print(Output& output, const GatherOutcome& outcome, const std::optional<FrameEnds>& frame)
{
    const auto orNull = [](const std::optional<std::string>& path) {
        return path ? Json(shownPathOf(*path)) : Json(nullptr);
    };
    if (output.json()) {
        Json result = {{"destination", shownPathOf(outcome.destination)},
                       {"database", orNull(outcome.database)},
                       {"cabinet", orNull(outcome.cabinet)},
                       {"files", outcome.files}};
        addFrame(result, frame);
        output.value(result);
        return;
    }
    output.line((outcome.files.empty() ? "Nothing was gathered into " : "Gathered into ") +
                shownPathOf(outcome.destination));
    for (const auto& file : outcome.files) output.line("  " + file);
    if (outcome.emptyFrame)
        output.line(Sentence{gatherSentences::emptyFrame, {}}.text());
    else if (outcome.database)
        output.text(rowSummary(outcome));
}

} // namespace

void addFrame(Json& result, const std::optional<FrameEnds>& frame)
{
    if (frame) result["frame"] = {{"from", frame->from}, {"to", frame->to}};
}

void report(Output& output, const GatherOutcome& outcome, const std::optional<FrameEnds>& frame)
{
    std::string missing = joined(outcome.missing);
    if (outcome.destinationSwapped)
        missing = "another folder bears the name of the destination now, and what was gathered may "
                  "lie elsewhere; " +
                  missing;
    if (!outcome.destinationThere) throw CommandFailure(missing);
    print(output, outcome, frame);
    if (outcome.cabinetMakerReplaced)
        output.message(asClause({gatherSentences::cabinetMakerReplaced, {}}));
    if (outcome.cancelled)
        throw CommandFailure("cancelled; what was read until then is kept in " +
                             shownPathOf(outcome.destination) +
                             (missing.empty() ? "" : "; " + missing));
    if (!missing.empty()) throw CommandFailure("not everything was gathered: " + missing);
}

} // namespace cli
