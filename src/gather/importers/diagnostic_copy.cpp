#include "gather/importers/diagnostic_copy.h"

#include "core/error_trap.h"
#include "gather/importers/log_reading.h"
#include "gather/importers/malformed_line.h"
#include "logreader/format_line.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "runtime/required_object.h"

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
        std::string formatted;
        const std::string target = step.value("", [&] {
            return destination + "\\" + mdlDiagnostics::appendFormattedTagToFile(tool, fileName);
        });
        const auto copy =
            step.value(nullptr, [&] { return tool.platform.files.createTextFile(target); });

        while (reading.nextLine()) {
            if (!tool.g_bDebugMode)
                step([&] { mdlDiagnostics::formatLineSafe(tool, reading.line(), formatted); });
            else
                step([&] { formatted = reading.line(); });
            step([&] { required(copy).writeLine(formatted); });
            if (reading.cancelledAtProgressPoint()) break;
        }

        reading.finish();
        step([&] { required(copy).close(); });
    }
    step.exitProc();
}
