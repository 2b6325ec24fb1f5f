#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/driving/traces_on.h"
#include "hosts/cli/log_folder.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/site_times.h"
#include "hosts/cli/terminal/output.h"
#include "platform/database.h"
#include "server/server_identity.h"

namespace cli {

namespace {

class StatusCommand final : public Command {
public:
    std::string name() const override { return "status"; }

    std::string summary() const override
    {
        return "Show the server's version, its database, log folder and processes";
    }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::look);
        const ServerVersion version = mdlOrvan::getVersion(tool.context());
        const bool connected = tool.context().g_connection.state() == 1;
        std::vector<std::string> processes;
        for (const ScopeItem* process : tool.processes().children())
            processes.push_back(process->name());
        const TracesOn traces = tracesOn(tool);
        const SiteTimes times(tool.context());
        const auto lack = tool.server().lackOfServer();
        const std::string trouble = lack ? asClause(*lack) : logFolderClause(tool);
        tool.close();
        if (!trouble.empty()) output.message(trouble);

        if (output.json()) {
            output.value({{"version",
                           {{"major", version.major.value()},
                            {"minor", version.minor.value()},
                            {"release", version.release.value()},
                            {"build", version.build.value()},
                            {"text", version.version}}},
                          {"connected", connected},
                          {"logFolder", tool.context().g_strLogFolder},
                          {"extendedFields", tool.context().g_bExtendedLogFields},
                          {"processes", processes},
                          {"traces", shown(traces, times)}});
            return;
        }
        const auto part = [](const Integer16& number) { return std::to_string(number.value()); };
        output.line("Server version   " + part(version.major) + "." + part(version.minor) + "." +
                    part(version.release) + "." + part(version.build) +
                    (version.version.empty() ? "" : "  (" + version.version + ")"));
        output.line(std::string("Database         ") +
                    (connected ? "connected" : "cannot connect: traces can't be changed"));
        if (!tool.databaseFailure().empty())
            output.line("                 " + tool.databaseFailure());
        output.line("Log folder       " + tool.context().g_strLogFolder);
        output.line(std::string("Log lines        ") + (tool.context().g_bExtendedLogFields
                                                            ? "with thread, port and call id"
                                                            : "basic"));
        for (std::size_t i = 0; i < processes.size(); ++i)
            output.line((i == 0 ? "Processes        " : "                 ") + processes[i]);
        print(output, traces, times);
    }

private:
    static Json shown(const TracesOn& traces, const SiteTimes& times)
    {
        Json macro = Json::array();
        for (const MacroTraceOn& on : traces.macroTraces)
            macro.push_back(
                {{"group", on.group},
                 {"trace", on.trace},
                 {"onAtLeastSince", on.since ? Json(times.isoText(*on.since)) : Json()}});
        Json levels = traces.levels ? Json::array() : Json();
        for (const LevelsOn& on : traces.levels.value_or(std::vector<LevelsOn>()))
            levels.push_back({{"component", on.component}, {"levels", on.levels}});
        return {{"macro", macro}, {"levels", levels}};
    }

    static void print(Output& output, const TracesOn& traces, const SiteTimes& times)
    {
        std::vector<std::string> lines;
        for (const MacroTraceOn& on : traces.macroTraces)
            lines.push_back(on.group + " - " + on.trace +
                            (on.since ? ", at least since " + times.text(*on.since) : ""));
        printBeside(output, "Macro traces on", lines);
        if (!traces.levels) return;
        lines.clear();
        for (const LevelsOn& on : *traces.levels) {
            std::string numbers;
            for (const int level : on.levels)
                numbers += (numbers.empty() ? "" : ", ") + std::to_string(level);
            lines.push_back(on.component + " " + numbers);
        }
        printBeside(output, "Levels added", lines);
    }

    /// Lines, with a name before the first of them.
    static void printBeside(Output& output, const std::string& name,
                            const std::vector<std::string>& lines)
    {
        constexpr std::size_t width = 17;
        const std::string head = name + std::string(width - name.size(), ' ');
        if (lines.empty()) output.line(head + "none");
        for (std::size_t at = 0; at < lines.size(); ++at)
            output.line((at == 0 ? head : std::string(width, ' ')) + lines[at]);
    }
};

} // namespace

std::unique_ptr<Command> makeStatusCommand()
{
    return std::make_unique<StatusCommand>();
}

} // namespace cli
