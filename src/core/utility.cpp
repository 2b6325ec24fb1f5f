#include "core/utility.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/registry_store.h"
#include "core/tool_context.h"
#include "platform/desktop.h"
#include "platform/event_reporter.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "platform/tool_events.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

std::string selectDirectory(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlUtility", "selectDirectory"};

    step.enterProc();
    std::string picked = step.value("", [&] {
        return tool.platform.desktop.pickFolder(
            myLoadResString(tool, TextId::selectTheDestination));
    });
    step.exitProc();
    return picked;
}

std::string selectLogFile(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlUtility", "selectLogFile"};

    step.enterProc();
    std::string picked = step.value("", [&] {
        return tool.platform.desktop.pickFile(myLoadResString(tool, TextId::selectLogFile));
    });
    step.exitProc();
    return picked;
}

std::string expandPath(ToolContext& tool, const std::string& path)
{
    Dictionary<std::string> tokens;
    tokens.add("%commserver%", getInstalledFolderPath(tool));

    std::string result = path;
    for (const std::string& token : tokens.keys())
        result = replaceAll(lowerCase(result), token, tokens.item(token));
    while (result.find("\\\\") != std::string::npos) result = replaceAll(result, "\\\\", "\\");
    return result;
}

std::string getInstalledFolderPath(ToolContext& tool)
{
    return getRegistryText(tool, std::string(baseKey) + "\\", "InstalledFolderPath");
}

std::string processNameFromFileName(std::string_view name)
{
    const auto first = static_cast<int>(positionOf(lowerCase(name), "_"));
    const auto next = static_cast<int>(positionOf(name, "_", static_cast<std::size_t>(first) + 1));
    return std::string(mid(name, first + 1, next - first - 1));
}

std::string padNumber(std::int32_t value, int width)
{
    const std::string text = numberText(std::int64_t{value});
    const int missing = width - static_cast<int>(text.size());
    if (missing < 0) throw RunTimeError(runTimeErrors::invalidCall);
    return std::string(static_cast<std::size_t>(missing), '0') + text;
}

Date parseTimeText(std::string_view text)
{
    const std::size_t blank = positionOf(text, " ", 3);
    if (blank > 0) return parseDate(text.substr(blank));
    const auto colon = static_cast<int>(text.rfind(':') + 1); // 0 when there is none
    return parseDate(mid(text, 1, colon - 1));
}

Date toLocalTime(ToolContext& tool, Date moment)
{
    const DateParts parts = partsOf(moment);
    const SystemTime universal{parts.year, parts.month,  parts.dayOfWeek, parts.day,
                               parts.hour, parts.minute, parts.second,    0};
    const SystemTime local = tool.platform.timeZone.toLocal(tool.g_timeZone, universal);
    return dateOf(local.year, local.month, local.day, local.hour, local.minute, local.second);
}

bool waitForProcess(ToolContext& tool, std::int32_t processId, std::int32_t milliseconds)
{
    try {
        return tool.platform.processes.wait(processId, milliseconds);
    } catch (const RunTimeError&) {
        return false;
    }
}

void reportServerEvent(ToolContext& tool, int type, std::int32_t eventId,
                       const std::vector<std::string>& inserts)
{
    tool.platform.eventReporter.report(toolEvents::source, tool.g_eventLogHandle, type, eventId,
                                       inserts);
}

std::string moduleVersionText(const HostModule& module)
{
    return numberTextWithLeadingBlank(module.majorVersion()) + "." +
           numberText(std::int64_t{module.minorVersion()}) + " Build" +
           numberTextWithLeadingBlank(module.revision());
}

void initBitMasks(ToolContext& tool)
{
    for (std::size_t level = 0; level < tool.g_bitMasks.size(); ++level)
        tool.g_bitMasks[level] = static_cast<std::int32_t>(std::uint32_t{1} << level);
}
