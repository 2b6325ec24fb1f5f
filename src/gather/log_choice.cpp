#include "gather/log_choice.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "runtime/text.h"

namespace {

constexpr const char* standardLogsValue = "Standard Logs";
constexpr const char* defaultLogs = "orvan_RoCsMgr, event_Application, event_System";

} // namespace

StringArray mdlLogs::getAllLogsForProcess(ToolContext& tool, const std::string& process)
{
    ErrorTrap step{tool, "mdlLogs", "getAllLogsForProcess"};
    const std::string pattern = tool.g_strLogFolder + "\\" + logFileNames::logsOfProcess(process);
    StringArray logs;

    auto names = step.value({}, [&] { return tool.platform.files.matching(pattern); });
    logs.clear(static_cast<int>(names.size()));
    int index = 1;
    for (std::string& name : names) logs.set(index++, std::move(name));
    return logs;
}

std::vector<std::string> mdlLogs::defineStandardLogs(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlLogs", "defineStandardLogs"};

    const bool keyExists = step.value(
        false, [&] { return registryKeyExists(tool, registryRoot::localMachine, toolKey); });
    if (!keyExists) step([&] { createRegistryKey(tool, registryRoot::localMachine, toolKey); });
    std::string names =
        step.value("", [&] { return getRegistryText(tool, toolKey, standardLogsValue); });
    if (names.empty()) {
        names = defaultLogs;
        step([&] {
            setRegistryValue(tool, registryRoot::localMachine, toolKey, standardLogsValue,
                             registryType::text, names);
        });
    }
    return split(names, ',');
}
