#include "core/registry_store.h"
#include "gather/logs.h"
#include "gather/time_frame.h"
#include "gather/trace_object.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/frame_arguments.h"
#include "hosts/cli/gather_run.h"
#include "logreader/diagnostics.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "runtime/text.h"

#include <CLI/CLI.hpp>

namespace {

constexpr const char* standardProcess = "KoCSMgr";
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
               "and keeps what was read.\n\n"
               "  orvandiag gather standard --to ~/case-4711\n"
               "  orvandiag gather logs --log diag_KoCSMgr_20250220_153011.txt --event-log System\n"
               "  orvandiag gather frame --from \"2025-02-20 16:42\" --hours 1 --to ~/case-4711";
    }

    void declare(CLI::App& app) override
    {
        app.require_subcommand(1);
        standard_ =
            app.add_subcommand("standard", "The current " + std::string(standardProcess) +
                                               " log and the Application and System events");
        logs_ = app.add_subcommand("logs", "Logs chosen by name");
        logs_->add_option("--log", orvanLogs_, "a log in the server's log folder")
            ->type_name("NAME");
        logs_->add_option("--event-log", windowsLogs_, "a Windows event log")->type_name("NAME");
        frame_ = app.add_subcommand("frame", "The lines of a time frame, as a trace database");
        frame_->add_option("--from", from_, "when the frame starts")
            ->type_name("\"YYYY-MM-DD HH:MM\"")
            ->required();
        frame_->add_option("--hours", hours_, "how long it is, 1 to 999")
            ->type_name("N")
            ->required();
        frame_->add_flag("--no-application", noApplication_, "leave the Application events out");
        frame_->add_flag("--no-system", noSystem_, "leave the System events out");
        for (CLI::App* mode : {standard_, logs_, frame_})
            mode->add_option("--to", to_, "the folder to gather into")->type_name("DIR");
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        if (logs_->parsed() && orvanLogs_.empty() && windowsLogs_.empty())
            throw UsageError("gather logs needs a --log or an --event-log");
        TimeFrameChoice choice;
        if (frame_->parsed()) choice = frameChoice();
        OpenTool tool(options, [&](OpenTool& opened) { requireSound(opened, choice); });
        classTraceObject job;
        job.clearOrvanLogs();
        job.clearWindowsLogs();
        if (frame_->parsed())
            fillFrame(tool, choice, job);
        else if (standard_->parsed())
            fillStandard(tool, job);
        else
            fillSelected(tool, job);
        job.m_LogDestinationDirectory =
            to_.empty() ? mdlLogs::getLogFileDestinationDirectory(tool.context())
                        : tool.toolPath(to_);
        requireUsableDestination(tool, job.m_LogDestinationDirectory);
        const GatherResult result = runGather(tool, job);
        tool.close();
        report(output, result);
    }

private:
    TimeFrameChoice frameChoice() const
    {
        const Date start = frameStart(from_);
        return {start, start, frameDuration(hours_), !noApplication_, !noSystem_};
    }

    /// Raises CommandFailure for what the person asks for and this server does not have.
    void requireSound(OpenTool& tool, const TimeFrameChoice& choice) const
    {
        const Platform& platform = tool.context().platform;
        if (frame_->parsed() && choice.startDate > platform.clock.now())
            throw CommandFailure("the time frame starts in the future");
        const std::string folder = getRegistryText(tool.context(), logManagerKey, "Output Path");
        for (const auto& log : orvanLogs_) {
            if (log.empty() || log.find_first_of("/\\:") != std::string::npos ||
                !platform.files.fileExists(folder + "\\" + log))
                throw CommandFailure("no log \"" + log + "\" in " + folder);
        }
        for (const auto& log : windowsLogs_) eventLog(tool, log);
        if (!to_.empty()) requireUsableDestination(tool, tool.toolPath(to_));
    }

    static void fillFrame(OpenTool& tool, const TimeFrameChoice& choice, classTraceObject& job)
    {
        TimeFrame frame;
        determineSelectedLogsFromTimeFrame(tool.context(), choice, frame, job);
        job.m_bTimeFrameLogs = true;
        job.m_dateStart = frame.start;
        job.m_dateEnd = frame.end;
    }

    static void fillStandard(OpenTool& tool, classTraceObject& job)
    {
        job.m_bStandardLogs = true;
        job.addOrvanLog(mdlDiagnostics::getCurrentDiagnosticFile(tool.context(), standardProcess));
        job.addWindowsLog("Application");
        job.addWindowsLog("System");
    }

    void fillSelected(OpenTool& tool, classTraceObject& job) const
    {
        for (const auto& log : orvanLogs_) job.addOrvanLog(log);
        for (const auto& log : windowsLogs_) job.addWindowsLog(eventLog(tool, log));
    }

    /// The event log's own spelling of its name. Raises CommandFailure for a log that is not there.
    static std::string eventLog(OpenTool& tool, const std::string& name)
    {
        const KeyNames logs = enumRegistryKeys(tool.context(), HKEY_LOCAL_MACHINE, eventLogsKey);
        try {
            for (int index = logs.lowerBound(); index <= logs.upperBound(); ++index)
                if (equalIgnoringCase(logs.at(index), name)) return logs.at(index);
        } catch (const RunTimeError&) {
            // No list of event logs at all.
        }
        throw CommandFailure("no Windows event log \"" + name + "\" on this server");
    }

    CLI::App* standard_ = nullptr;
    CLI::App* logs_ = nullptr;
    CLI::App* frame_ = nullptr;
    std::vector<std::string> orvanLogs_;
    std::vector<std::string> windowsLogs_;
    std::string from_;
    std::string hours_;
    bool noApplication_ = false;
    bool noSystem_ = false;
    std::string to_;
};

} // namespace

std::unique_ptr<Command> makeGatherCommand()
{
    return std::make_unique<GatherCommand>();
}
