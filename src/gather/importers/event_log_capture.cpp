#include "gather/importers/event_log_capture.h"

#include "controls/progress_bar.h"
#include "core/error_trap.h"
#include "platform/event_log_exporter.h"

void mdlLogs::processWindowsEventLogFile(ToolContext& tool, const std::string& logName,
                                         const std::string& destination,
                                         ProgressBar& progressCurrent, Label&, Date, Date)
{
    ErrorTrap step{tool, "mdlLogs", "processWindowsEventLogFile"};
    const std::string target = destination + "\\" + logName + ".csv";

    step.enterProc();
    step([&] { progressCurrent.setVisible(false); });
    step([&] { tool.platform.eventLogExporter.exportEventLog(logName, target, 0); });
    step.exitProc();
}
