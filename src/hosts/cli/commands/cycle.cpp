#include "core/registry_store.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "shell/snapin_names.h"

#include <chrono>
#include <cmath>
#include <cstring>
#include <optional>
#include <thread>

namespace cli {

namespace {

constexpr const char* signalName = "Cycle Diag File Time Set";
constexpr const char* dayAlone =
    "; in a time zone of ten hours or more it holds the day alone, so that one a day can be given";

class CycleCommand final : public Command {
public:
    std::string name() const override { return "cycle"; }

    std::string summary() const override { return "Tell the server to start new log files"; }

    void declare(Arguments&) override {}

    void run(const GlobalOptions& options, Output& output) override
    {
        OpenTool tool(options, ToolUse::change);
        const auto before = signalOf(tool);
        tool.registry().forget();
        tool.console().clickTask(snapinTask::startNewLogFiles);
        auto after = signalOf(tool);
        if (after && after == before && !holdsTheDayAlone(*after) &&
            tool.registry().refusalOf(signalName).empty()) {
            // The signal is a moment in seconds: one of the same second changes nothing.
            std::this_thread::sleep_for(std::chrono::seconds(1));
            tool.console().clickTask(snapinTask::startNewLogFiles);
            after = signalOf(tool);
        }
        const std::string refusal = tool.registry().refusalOf(signalName);
        const std::string status = tool.console().currentView().statusBarText();
        if (!after)
            throw CommandFailure(
                "the signal could not be written: the server's registry has no key "
                "RoLogMgr\\BroadCast that takes it");
        if (!refusal.empty()) throw CommandFailure("the signal was not given: " + refusal);
        if (before == after)
            throw CommandFailure("the signal was not given: it is what it was before, and the "
                                 "server sees no change" +
                                 std::string(holdsTheDayAlone(*after) ? dayAlone : ""));
        tool.close();
        if (output.json())
            output.value({{"signal", signalName}, {"bytes", hex(*after)}});
        else
            output.line(status);
    }

private:
    /// The signal as it stands in the registry; none when no bytes stand there.
    static std::optional<std::vector<std::uint8_t>> signalOf(OpenTool& tool)
    {
        const RegistryData stored = getRegistryValue(tool.context(), registryRoot::localMachine,
                                                     std::string(logManagerKey) + "\\BroadCast",
                                                     signalName, registryType::bytes, {});
        const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&stored);
        return bytes ? std::optional(*bytes) : std::nullopt;
    }

    /// Whether the moment is one without a time of day, as it is where the zone's hours are too
    /// many for the tool to reckon with.
    static bool holdsTheDayAlone(const std::vector<std::uint8_t>& bytes)
    {
        double moment = 0;
        if (bytes.size() != sizeof moment) return false;
        std::memcpy(&moment, bytes.data(), sizeof moment);
        return moment == std::floor(moment);
    }

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

} // namespace cli
