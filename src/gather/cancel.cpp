#include "core/error_trap.h"
#include "gather/logs.h"

bool mdlLogs::cancelCurrentProcess(ToolContext& tool)
{
    return tool.cancelRequested;
}

void mdlLogs::cancelCurrentProcess(ToolContext& tool, bool cancel)
{
    ErrorTrap step{tool, "mdlLogs", "cancelCurrentProcess"};
    tool.cancelRequested = cancel;
    step.log("Cancelling current process", logLevel::info);
}
