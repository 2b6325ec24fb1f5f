#include "hosts/desktop/new_logs_signal.h"

#include "core/registry_store.h"

#include <string>

namespace desktop {

bool NewLogsSignal::given(ToolContext& tool)
{
    constexpr int secondOfASignal = 1500; ///< milliseconds, with some room
    const Bytes after = stored(tool);
    if (!after) return false;
    if (after != before_) {
        sinceGiven_.start();
        return true;
    }
    return sinceGiven_.isValid() && sinceGiven_.elapsed() < secondOfASignal;
}

NewLogsSignal::Bytes NewLogsSignal::stored(ToolContext& tool)
{
    const RegistryData found = getRegistryValue(
        tool, registryRoot::localMachine, std::string(logManagerKey) + "\\BroadCast",
        "Cycle Diag File Time Set", registryType::bytes, {});
    const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&found);
    return bytes ? Bytes(*bytes) : std::nullopt;
}

} // namespace desktop
