#include "shell/initialize.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/signals.h"
#include "core/utility.h"
#include "platform/event_reporter.h"
#include "platform/host_module.h"
#include "shell/server_events.h"

void mdlInitialize::initGlobalVariables(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlInitialize", "initGlobalVariables", countedTrapWithLine};
    EventReporter& eventLog = tool.platform.eventReporter;
    const HostModule& module = tool.platform.module;

    step.body([&] {
        step.enterProc();
        step([&] { tool.g_strInstalledFolder = getInstalledFolderPath(tool); });
        step([&] { tool.g_strLogFolder = getRegistryText(tool, logManagerKey, "Output Path"); });
        step([&] { tool.g_strMacroTraceFolder = module.folder() + "\\ZMKXML"; });
        step([&] { initBitMasks(tool); });
        step([&] { eventLog.startUp(); });
        step([&] { eventLog.completeStartUp(); });
        step([&] { tool.g_eventLogHandle = eventLog.registerTool(module.name()); });
        step([&] {
            eventLog.report(serverEvents::source, tool.g_eventLogHandle, serverEvents::success,
                            serverEvents::reporterReady, {});
        });
        step([&] { tool.g_bDebugMode = tool.g_log->DebugMode(); });
        step([&] { getTZBias(tool); });
        step.exitProc();
    });
}
