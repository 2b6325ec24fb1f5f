#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/log_folder.h"
#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace cli {

namespace {

struct LogFile {
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
std::vector<LogFile> logFilesOf(OpenTool& tool, const std::string& process)
{
    for (ScopeItem* item : tool.processes().children()) {
        if (!equalIgnoringCase(item->name(), process)) continue;
        View& view = tool.console().currentView();
        view.select(*item);
        ListView& list = view.selectedScopePaneItem().resultView().list();
        std::vector<LogFile> files;
        for (int position = 1; position <= list.itemCount(); ++position) {
            const ListItem row = list.shown(position);
            files.push_back({row.subItem(2) == "x", std::string(row.subItem(3)),
                             std::string(row.subItem(4)),
                             static_cast<long long>(leadingNumber(row.subItem(5)))});
        }
        return files;
    }
    throw noSuchProcess(process);
}

class LogsCommand final : public Command {
public:
    std::string name() const override { return "logs"; }

    std::string summary() const override { return "List the log files of a process, newest first"; }

    void declare(Arguments& arguments) override
    {
        arguments.add("PROCESS", process_, "the process, such as KoCSMgr")
            .completes(Values::processes)
            .required();
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look, [this](OpenTool& opened) { requireProcess(opened); });
        const auto files = logFilesOf(tool, process_);
        const std::string trouble = logFolderClause(tool);
        tool.close();
        if (!trouble.empty())
            output.message(trouble);
        else if (files.empty())
            output.message("no log of " + process_ + " in " + tool.context().g_strLogFolder);
        if (output.json()) {
            Json rows = Json::array();
            for (const auto& file : files)
                rows.push_back({{"current", file.current},
                                {"fileName", file.fileName},
                                {"timeStamp", file.timeStamp},
                                {"size", file.size}});
            output.value(rows);
            return;
        }
        Table table({"Current", "File name", "Time stamp", "Bytes"});
        table.alignRight(3);
        for (const auto& file : files)
            table.row(
                {file.current ? "x" : "", file.fileName, file.timeStamp, groupedNumber(file.size)});
        output.text(table.text());
    }

private:
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

    std::string process_;
};

} // namespace

std::unique_ptr<Command> makeLogsCommand()
{
    return std::make_unique<LogsCommand>();
}

} // namespace cli
