#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/log_folder.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/site_times.h"
#include "hosts/cli/terminal/output.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "timeline/filter/time_text.h"

#include <optional>

namespace cli {

namespace {

using timeline::FrameEnd;
using timeline::Moment;
using timeline::TimeText;

struct LogFile {
    std::string process;
    bool current;
    std::string fileName;
    std::string timeStamp;
    long long size;
};

CommandFailure noSuchProcess(const std::string& process, const std::vector<std::string>& known = {})
{
    return CommandFailure("no process \"" + process + "\" writes logs here" +
                          didYouMean(process, known, "; orvandiag status lists them"));
}

/// A process's rows as the log list shows them.
void addLogFilesOf(OpenTool& tool, ScopeItem& process, std::vector<LogFile>& files)
{
    View& view = tool.console().currentView();
    view.select(process);
    ListView& list = view.selectedScopePaneItem().resultView().list();
    for (int position = 1; position <= list.itemCount(); ++position) {
        const ListItem row = list.shown(position);
        files.push_back({process.name(), row.subItem(2) == "x", std::string(row.subItem(3)),
                         std::string(row.subItem(4)),
                         static_cast<long long>(leadingNumber(row.subItem(5)))});
    }
}

/// Those of one process, or of all of them for the empty name.
std::vector<LogFile> logFilesOf(OpenTool& tool, const std::string& process)
{
    std::vector<LogFile> files;
    bool found = false;
    for (ScopeItem* item : tool.processes().children()) {
        if (!process.empty() && !equalIgnoringCase(item->name(), process)) continue;
        addLogFilesOf(tool, *item, files);
        found = true;
        if (!process.empty()) break;
    }
    if (!found && !process.empty()) throw noSuchProcess(process);
    return files;
}

/// Leaves out logs that were not written to since a time of the server's clock. A log whose time
/// can't be told stays.
void leaveOutOlder(OpenTool& tool, const TimeText& since, std::vector<LogFile>& files)
{
    SiteTimes times(tool.context());
    const Moment first = since.moment(FrameEnd::since, times.now(), times.clock());
    std::erase_if(files, [&](const LogFile& file) {
        try {
            return momentOf(tool.context()
                                .platform.files
                                .file(tool.context().g_strLogFolder + "\\" + file.fileName)
                                .modified) < first;
        } catch (const RunTimeError&) {
            return false;
        }
    });
}

class LogsCommand final : public Command {
public:
    std::string name() const override { return "logs"; }

    std::string summary() const override
    {
        return "List the log files of a process, or of all, newest first";
    }

    std::string explanation() const override
    {
        return "With --since only logs that were written to at that time or later are listed. A "
               "TIME is\n"
               "what read and gather take: 15:20, yesterday, \"2025-02-20 15:20\", \"2 hours "
               "ago\".\n\n"
               "  orvandiag logs KoCSMgr\n"
               "  orvandiag logs --all --since yesterday";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("PROCESS", process_, "the process, such as KoCSMgr")
            .completes(Values::processes);
        arguments.addFlag("--all", all_, "the logs of every process");
        arguments.add("--since", since_, "logs that were written to at this time or later")
            .called("TIME");
        given_ = arguments;
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        const auto since = askedSince();
        if (all_ == given_.given("PROCESS"))
            throw UsageError(all_ ? "logs takes a PROCESS or --all, not both"
                                  : "logs needs a PROCESS, or --all");
        OpenTool tool(options, ToolUse::look, [this](OpenTool& opened) {
            if (!all_) requireProcess(opened);
        });
        auto files = logFilesOf(tool, process_);
        const bool none = files.empty();
        const std::string trouble = logFolderClause(tool);
        if (since) leaveOutOlder(tool, *since, files);
        tool.close();
        if (!trouble.empty())
            output.message(trouble);
        else if (files.empty())
            output.message("no log" + (all_ ? "" : " of " + process_) + " in " +
                           tool.context().g_strLogFolder +
                           (none ? "" : " was written to since " + since_));
        if (output.json())
            printJson(output, files);
        else
            printTable(output, files);
    }

private:
    std::optional<TimeText> askedSince() const
    {
        if (!given_.given("--since")) return {};
        try {
            return TimeText(since_);
        } catch (const RunTimeError& error) {
            throw UsageError(error.description());
        }
    }

    static void printJson(Output& output, const std::vector<LogFile>& files)
    {
        Json rows = Json::array();
        for (const auto& file : files)
            rows.push_back({{"process", file.process},
                            {"current", file.current},
                            {"fileName", file.fileName},
                            {"timeStamp", file.timeStamp},
                            {"size", file.size}});
        output.value(rows);
    }

    void printTable(Output& output, const std::vector<LogFile>& files) const
    {
        std::vector<std::string> headers = {"Current", "File name", "Time stamp", "Bytes"};
        if (all_) headers.insert(headers.begin(), "Process");
        Table table(headers);
        table.alignRight(headers.size() - 1);
        for (const auto& file : files) {
            std::vector<std::string> row = {file.current ? "x" : "", file.fileName, file.timeStamp,
                                            groupedNumber(file.size)};
            if (all_) row.insert(row.begin(), file.process);
            table.row(row);
        }
        output.text(table.text());
    }

    /// Writes the process as the server does. Raises CommandFailure for one that it does not have.
    void requireProcess(OpenTool& tool)
    {
        const auto known =
            tool.context()
                .platform.registry.subkeys(registryRoot::localMachine, logProcessesKey)
                .value_or(std::vector<std::string>{});
        const auto name = matchingName(process_, known);
        if (!name) throw noSuchProcess(process_, known);
        process_ = *name;
    }

    Arguments given_;
    std::string process_;
    bool all_ = false;
    std::string since_;
};

} // namespace

std::unique_ptr<Command> makeLogsCommand()
{
    return std::make_unique<LogsCommand>();
}

} // namespace cli
