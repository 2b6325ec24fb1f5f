#include "traces/macro_trace_record.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "platform/clock.h"
#include "platform/tool_events.h"
#include "runtime/dates.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"

namespace {

constexpr std::string_view moduleName = "mdlTraces";

std::string groupKey(const std::string& groupName)
{
    return std::string(toolKey) + "\\" + groupName;
}

std::string traceKey(const std::string& groupName, const std::string& traceName)
{
    return groupKey(groupName) + "\\" + traceName;
}

void ensureKey(ToolContext& tool, ErrorTrap& step, const std::string& path)
{
    const bool exists = step.value(
        false, [&] { return registryKeyExists(tool, registryRoot::localMachine, path); });
    if (!exists) step([&] { createRegistryKey(tool, registryRoot::localMachine, path); });
}

void writeEnabled(ToolContext& tool, const std::string& key, std::int32_t enabled)
{
    setRegistryValue(tool, registryRoot::localMachine, key, "Enabled", registryType::number,
                     enabled);
}

} // namespace

void mdlTraces::recordMacroTrace(ToolContext& tool, const std::string& groupName,
                                 const std::string& traceName, bool enabled)
{
    ErrorTrap step{tool, moduleName, "recordMacroTrace"};
    const std::string key = traceKey(groupName, traceName);
    const std::vector<std::string> inserts = {groupName + " - " + traceName};

    ensureKey(tool, step, toolKey);
    ensureKey(tool, step, groupKey(groupName));
    ensureKey(tool, step, key);
    if (enabled) {
        step([&] { writeEnabled(tool, key, 1); });
        step([&] {
            reportServerEvent(tool, toolEvents::traceChange, toolEvents::macroTraceOn, inserts);
        });
    } else {
        step([&] { writeEnabled(tool, key, 0); });
        step([&] {
            reportServerEvent(tool, toolEvents::traceChange, toolEvents::macroTraceOff, inserts);
        });
    }
    step([&] {
        setRegistryValue(tool, registryRoot::localMachine, key, "Date", registryType::text,
                         dateText(tool.platform.clock.now()));
    });
}

std::int16_t mdlTraces::isenabledMacroTrace(ToolContext& tool, const std::string& groupName,
                                            const std::string& traceName)
{
    ErrorTrap step{tool, moduleName, "isenabledMacroTrace"};
    return step.value(0, [&] {
        return toInteger16(getRegistryNumber(tool, traceKey(groupName, traceName), "Enabled"));
    });
}

std::optional<Date> mdlTraces::macroTraceRecorded(ToolContext& tool, const std::string& groupName,
                                                  const std::string& traceName)
try {
    return parseDate(getRegistryText(tool, traceKey(groupName, traceName), "Date"));
} catch (const RunTimeError&) {
    return {};
}
