#include "gather/destination.h"

#include "core/error_trap.h"
#include "platform/clock.h"
#include "platform/file_system.h"

std::string mdlLogs::getLogFileDestinationDirectory(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlLogs", "getLogFileDestinationDirectory"};
    std::string temporaryFolder;
    std::string longForm;
    std::string destination;

    step([&] { temporaryFolder = tool.platform.files.specialFolder(SpecialFolder::temporary); });
    step([&] { longForm = tool.platform.files.longPathName(temporaryFolder); });
    step([&] { destination = longForm + "\\LogsFrom" + fileStamp(tool.platform.clock.now()); });
    return destination;
}
