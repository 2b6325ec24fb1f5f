#include "core/registry_store.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/output.h"

#include <CLI/CLI.hpp>

namespace {

constexpr const char* signalName = "Cycle Diag File Time Set";
constexpr const char* taskKey = "4";

class CycleCommand final : public Command {
public:
    std::string name() const override { return "cycle"; }

    std::string summary() const override { return "Tell the server to start new log files"; }

    void declare(CLI::App&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::change);
        tool.registry().forget();
        tool.console().clickTask(taskKey);
        const std::string refusal = tool.registry().refusalOf(signalName);
        const RegistryData stored = getRegistryValue(tool.context(), HKEY_LOCAL_MACHINE,
                                                     std::string(logManagerKey) + "\\BroadCast",
                                                     signalName, REG_BINARY, {});
        const std::string status = tool.console().currentView().statusBarText();
        tool.close();
        const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&stored);
        if (!bytes)
            throw CommandFailure("the signal could not be written: the site's registry has no key "
                                 "RoLogMgr\\BroadCast that takes it");
        if (!refusal.empty()) throw CommandFailure("the signal was not given: " + refusal);
        if (output.json())
            output.value({{"signal", signalName}, {"bytes", hex(*bytes)}});
        else
            output.line(status);
    }

private:
    static std::string hex(const std::vector<std::uint8_t>& bytes)
    {
        constexpr const char* digits = "0123456789abcdef";
        std::string text;
        for (const std::uint8_t byte : bytes) {
            text += digits[byte >> 4];
            text += digits[byte & 15];
        }
        return text;
    }
};

} // namespace

std::unique_ptr<Command> makeCycleCommand()
{
    return std::make_unique<CycleCommand>();
}
