#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/gather/frame_arguments.h"
#include "hosts/cli/gather/gather_preview.h"
#include "hosts/cli/gather/gather_run.h"
#include "hosts/cli/gather/gather_wizard.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/site_times.h"
#include "hosts/common/gather/gather_outcome.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "runtime/text.h"
#include "wizards/gather_welcome.h"

#include <optional>
#include <utility>

namespace cli {

namespace {

constexpr const char* eventLogsKey = "System\\CurrentControlSet\\Services\\Eventlog";

class GatherCommand final : public Command {
public:
    std::string name() const override { return "gather"; }

    std::string summary() const override { return "Gather logs into a folder to send to support"; }

    std::string explanation() const override
    {
        return "Without --to the logs go to a new folder in the server's temporary folder. Logs "
               "are\n"
               "copied in readable form, event logs as CSV. A time frame's lines go into a trace\n"
               "database, which is packed into a cabinet together with the event logs. Ctrl-C "
               "cancels,\n"
               "and keeps what was read. --dry-run lists what would be taken.\n\n"
               "A TIME of a frame is a day (2025-02-20, today, yesterday), a time of one "
               "(15:20,\n"
               "15:20:07), both (\"2025-02-20 15:20\", 2025-02-20T15:20, \"yesterday 15:20\"), "
               "now, or\n"
               "how long ago (\"2 hours ago\", -2h): by the server's clock, or with an offset by\n"
               "another one (2025-02-20T15:20+01:00, 2025-02-20T14:20Z). A SPAN such as 90m, "
               "1h30m or\n"
               "\"2 hours\" has whole numbers of s, m, h, d (days) and w (weeks). Without any "
               "the frame\n"
               "is the last hour. Frames start at a whole minute and have whole hours: the seconds "
               "of\n"
               "--from are dropped with --hours; --to-time and --last take a wider frame where "
               "that is\n"
               "needed. The frame is told, unless --from and --hours say it as it is.\n\n"
               "  orvandiag gather standard --to case-4711\n"
               "  orvandiag gather logs --log diag_KoCSMgr_20250219_144115.txt \\\n"
               "      --event-log System\n"
               "  orvandiag gather frame --from \"2025-02-20 16:42\" --hours 1 --to case-4711\n"
               "  orvandiag gather frame --last 2h --to case-4711";
    }

    void declare(Arguments& arguments) override
    {
        arguments.requireCommand();
        standard_ =
            arguments.addCommand("standard", "The current " + std::string(standardGatherProcess) +
                                                 " log and the Application and System events");
        logs_ = arguments.addCommand("logs", "Logs chosen by name");
        logs_.add("--log", orvanLogs_, "a log in the server's log folder")
            .called("NAME")
            .completes(Values::logs);
        logs_.add("--event-log", windowsLogs_, "a Windows event log")
            .called("NAME")
            .completes(Values::eventLogs);
        frame_ = arguments.addCommand("frame", "The lines of a time frame, as a trace database");
        frame_
            .add("--from", from_,
                 "when the frame starts, such as \"2025-02-20 16:42\" or \"yesterday 15:00\"; "
                 "else an hour ago")
            .called("TIME");
        frame_.add("--hours", hours_, "how long it is, 1 to 999").called("N");
        frame_.add("--to-time", toTime_, "when it ends, in place of --hours").called("TIME");
        frame_.add("--last", last_, "the last 2h, 90m, 1d12h, ... until now").called("SPAN");
        frame_.addFlag("--no-application", noApplication_, "leave the Application events out");
        frame_.addFlag("--no-system", noSystem_, "leave the System events out");
        for (Arguments mode : {standard_, logs_, frame_}) {
            mode.add("--to", to_, "the folder to gather into")
                .called("DIR")
                .completes(Values::folders);
            mode.addFlag("--excel", excel_,
                         "make the event logs' CSV safe for a spreadsheet: no cell is a formula");
            mode.addFlag("--dry-run", dryRun_, "tell what would be gathered, and gather nothing");
        }
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (logs_.given() && orvanLogs_.empty() && windowsLogs_.empty())
            throw UsageError("gather logs needs a --log or an --event-log");
        if (gathersTo() && trim(to_).empty()) throw UsageError("gather --to needs a folder");
        GatherAnswers answers;
        answers.option = option();
        answers.logs = orvanLogs_;
        answers.eventLogs = windowsLogs_;
        std::optional<FrameRequest> asked;
        if (frame_.given()) asked.emplace(frameWords());
        answers.applicationLog = !noApplication_;
        answers.systemLog = !noSystem_;
        OpenTool tool(options, dryRun_ ? ToolUse::look : ToolUse::add, [&](OpenTool& opened) {
            if (asked && !asked->isDefault()) answers.frame = frameOf(opened, *asked);
            requireSound(opened, answers);
        });
        if (!to_.empty()) answers.destination = tool.toolPath(to_);
        if (excel_) tool.server().exportEventsFor(CsvReader::spreadsheet);
        std::optional<GatherOutcome> outcome;
        std::optional<FrameEnds> frame;
        {
            GatherWizard wizard(tool, answers);
            if (wizard.frame()) frame = tellFrame(tool, *wizard.frame(), answers.frame, output);
            if (dryRun_)
                preview(tool, wizard, frame, output);
            else
                outcome = runGather(tool, wizard);
        }
        tool.close();
        if (outcome) report(output, *outcome, frame);
    }

private:
    int option() const
    {
        if (frame_.given()) return gatherOption::timeFrame;
        return logs_.given() ? gatherOption::byHand : gatherOption::standard;
    }

    /// Whether a destination is given, though it may be the empty text.
    bool gathersTo() const
    {
        const auto given = [](const Arguments& mode) { return mode.given("--to"); };
        return given(standard_) || given(logs_) || given(frame_);
    }

    FrameWords frameWords() const
    {
        const auto word = [this](const char* option, const std::string& value) {
            return frame_.given(option) ? std::optional(value) : std::nullopt;
        };
        return {word("--from", from_), word("--to-time", toTime_), word("--hours", hours_),
                word("--last", last_)};
    }

    /// The frame by the server's clock. Raises UsageError for none, and CommandFailure for one
    /// that the wizard's page refuses.
    static FrameEntry frameOf(OpenTool& tool, const FrameRequest& asked)
    {
        SiteTimes times(tool.context());
        FrameEntry entry = asked.entry(times);
        if (const auto start = momentOf(entry.start); start > times.now())
            throw CommandFailure("the time frame starts in the future, at " + times.text(start) +
                                 "; the site's clock says " + times.text(times.now()));
        return entry;
    }

    /// Says what the frame is, where the person did not say it in the page's own words.
    static FrameEnds tellFrame(OpenTool& tool, const TimeFrame& frame,
                               const std::optional<FrameEntry>& entry, Output& output)
    {
        const SiteTimes times(tool.context());
        const timeline::Moment start = momentOf(frame.start);
        const timeline::Moment end = momentOf(frame.end);
        const std::string difference = entry ? entry->difference : "";
        if (!entry || entry->told || !difference.empty())
            output.message("the time frame is " + times.text(start, end) +
                           (difference.empty() ? "" : "; " + difference));
        return {times.isoText(start), times.isoText(end)};
    }

    /// Raises CommandFailure for what the person asks for and this server does not have.
    void requireSound(OpenTool& tool, GatherAnswers& answers) const
    {
        if (logs_.given()) writeAsKnown(tool, answers);
        if (!to_.empty()) requireUsableDestination(tool, tool.toolPath(to_));
    }

    /// Writes the logs as the wizard offers them: those of processes, and the event logs. Raises
    /// CommandFailure for others.
    static void writeAsKnown(OpenTool& tool, GatherAnswers& answers)
    {
        const std::string folder = getRegistryText(tool.context(), logManagerKey, logFolderValue);
        const std::vector<std::string> logs = logsOfProcesses(tool, folder);
        for (std::string& log : answers.logs)
            log = offered(log, logs, "no log \"" + log + "\" of a process in " + folder);
        const std::vector<std::string> eventLogs = subkeys(tool, eventLogsKey);
        for (std::string& log : answers.eventLogs)
            log = offered(log, eventLogs, "no Windows event log \"" + log + "\" on this server");
    }

    static std::string offered(const std::string& typed, const std::vector<std::string>& known,
                               const std::string& refusal)
    {
        if (const auto name = matchingName(typed, known)) return *name;
        throw CommandFailure(refusal + didYouMean(typed, known));
    }

    static std::vector<std::string> logsOfProcesses(OpenTool& tool, const std::string& folder)
    {
        std::vector<std::string> logs;
        for (const std::string& process : subkeys(tool, logProcessesKey))
            for (std::string& log : tool.context().platform.files.matching(
                     folder + "\\" + logFileNames::logsOfProcess(process)))
                logs.push_back(std::move(log));
        return logs;
    }

    static std::vector<std::string> subkeys(OpenTool& tool, const std::string& path)
    {
        return tool.context()
            .platform.registry.subkeys(registryRoot::localMachine, path)
            .value_or(std::vector<std::string>{});
    }

    Arguments standard_;
    Arguments logs_;
    Arguments frame_;
    std::vector<std::string> orvanLogs_;
    std::vector<std::string> windowsLogs_;
    std::string from_;
    std::string toTime_;
    std::string hours_;
    std::string last_;
    bool noApplication_ = false;
    bool noSystem_ = false;
    std::string to_;
    bool excel_ = false;
    bool dryRun_ = false;
};

} // namespace

std::unique_ptr<Command> makeGatherCommand()
{
    return std::make_unique<GatherCommand>();
}

} // namespace cli
