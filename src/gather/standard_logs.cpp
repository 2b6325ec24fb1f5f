#include "core/error_trap.h"
#include "core/registry_store.h"
#include "gather/logs.h"
#include "runtime/text.h"

namespace {
constexpr const char* valueName = "Standard Logs";
constexpr const char* defaultLogs = "orvan_RoCsMgr, event_Application, event_System";
} // namespace

std::vector<std::string> mdlLogs::defineStandardLogs(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlLogs", "defineStandardLogs"};
    bool keyExists = false;
    std::string names;

    step([&] { keyExists = registryKeyExists(tool, registryRoot::localMachine, toolKey); });
    if (!keyExists) step([&] { createRegistryKey(tool, registryRoot::localMachine, toolKey); });
    step([&] { names = getRegistryText(tool, toolKey, valueName); });
    if (names.empty()) {
        names = defaultLogs;
        step([&] {
            setRegistryValue(tool, registryRoot::localMachine, toolKey, valueName,
                             registryType::text, names);
        });
    }
    return split(names, ',');
}
