#include "gather/destination.h"

#include "core/error_trap.h"
#include "platform/clock.h"
#include "platform/file_system.h"

std::string mdlLogs::getLogFileDestinationDirectory(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlLogs", "getLogFileDestinationDirectory"};

    const std::string temporaryFolder =
        step.value("", [&] { return tool.platform.files.specialFolder(SpecialFolder::temporary); });
    const std::string longForm =
        step.value("", [&] { return tool.platform.files.longPathName(temporaryFolder); });
    return step.value(
        "", [&] { return longForm + "\\LogsFrom" + fileStamp(tool.platform.clock.now()); });
}
