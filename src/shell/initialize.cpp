#include "shell/initialize.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/signals.h"
#include "core/utility.h"
#include "platform/event_reporter.h"
#include "platform/host_module.h"
#include "platform/tool_events.h"
#include "platform/tool_files.h"
#include "server/configuration_database.h"
#include "server/diagnostic_grid_catalogue.h"
#include "traces/macro_trace_catalogue.h"

void mdlInitialize::initGlobalVariables(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlInitialize", "initGlobalVariables", countedTrapWithLine};
    EventReporter& eventLog = tool.platform.eventReporter;
    const HostModule& module = tool.platform.module;

    step.body([&] {
        step.enterProc();
        step([&] { tool.g_strInstalledFolder = getInstalledFolderPath(tool); });
        step([&] { tool.g_strLogFolder = getRegistryText(tool, logManagerKey, logFolderValue); });
        step([&] {
            tool.g_strMacroTraceFolder = module.folder() + "\\" + toolFiles::definitionsFolder;
        });
        step([&] { initBitMasks(tool); });
        mdlTraces::initMacroTraces(tool);
        step([&] { eventLog.startUp(); });
        step([&] { eventLog.completeStartUp(); });
        step([&] { tool.g_eventLogHandle = eventLog.registerTool(module.name()); });
        step([&] {
            eventLog.report(toolEvents::source, tool.g_eventLogHandle, toolEvents::success,
                            toolEvents::reporterReady, {});
        });
        step([&] { tool.g_bDebugMode = tool.g_log->DebugMode(); });
        step([&] { getTZBias(tool); });
        if (!mdlOrvanDatabase::openOrvanDB(tool, tool.g_connection, "(local)"))
            step.log("Cannot connect to database", logLevel::error);
        mdlDiagnosticGrids::openDiagGrids(tool);
        step.exitProc();
    });
}
