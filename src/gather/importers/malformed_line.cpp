#include "gather/importers/malformed_line.h"

Resume afterErrorAtLine(ToolContext& tool, const std::string& line, const RunTimeError& error)
{
    if (error.number() != runTimeErrors::invalidCall) return Resume::asUsual;
    ErrorTrap step{tool, "mdlLogs", "processOrvanLogFile"};
    step([&] {
        tool.g_log->log("Could not format: " + line, logLevel::warning, "processOrvanLogFile");
    });
    return Resume::next;
}
