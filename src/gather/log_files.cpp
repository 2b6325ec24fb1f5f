#include "core/error_trap.h"
#include "gather/logs.h"
#include "platform/file_system.h"

StringArray mdlLogs::getAllLogsForProcess(ToolContext& tool, const std::string& process)
{
    ErrorTrap step{tool, "mdlLogs", "getAllLogsForProcess"};
    const std::string pattern = tool.g_strLogFolder + "\\diag_" + process + "_*.txt";
    std::vector<std::string> names;
    StringArray logs;

    step([&] { names = tool.platform.files.matching(pattern); });
    logs.clear(static_cast<int>(names.size()));
    int index = 1;
    for (std::string& name : names) logs.set(index++, std::move(name));
    return logs;
}
