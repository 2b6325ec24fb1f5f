#include "gather/cancel.h"

#include "core/error_trap.h"

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
