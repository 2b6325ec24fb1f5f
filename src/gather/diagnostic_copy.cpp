#include "gather/diagnostic_copy.h"

#include "core/error_trap.h"
#include "gather/log_reading.h"
#include "gather/malformed_line.h"
#include "gather/object_reference.h"
#include "logreader/format_line.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"

void mdlLogs::processOrvanLogFile(ToolContext& tool, const std::string& fileName,
                                  const std::string& destination, ProgressBar& progressCurrent,
                                  Label& label)
{
    ErrorTrap step{tool, "mdlLogs", "processOrvanLogFile"};
    step.enterProc();
    LogReading reading(tool, step, progressCurrent, label);
    step.specialCase(
        [&](const RunTimeError& error) { return afterErrorAtLine(tool, reading.line(), error); });

    if (reading.open(fileName)) {
        std::string target;
        std::unique_ptr<TextWriter> copy;
        std::string formatted;
        step([&] {
            target = destination + "\\" + mdlDiagnostics::appendFormattedTagToFile(tool, fileName);
        });
        step([&] { copy = tool.platform.files.createTextFile(target); });

        while (reading.nextLine()) {
            if (!tool.g_bDebugMode)
                step([&] { mdlDiagnostics::formatLineSafe(tool, reading.line(), formatted); });
            else
                step([&] { formatted = reading.line(); });
            step([&] { objectOf(copy).writeLine(formatted); });
            if (reading.cancelledAtProgressPoint()) break;
        }

        reading.finish();
        step([&] { objectOf(copy).close(); });
    }
    step.exitProc();
}
