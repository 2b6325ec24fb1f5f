#include "core/error_trap.h"
#include "gather/importers.h"
#include "gather/log_reading.h"
#include "gather/object_reference.h"
#include "logreader/diagnostics.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

namespace {

/// Logs a line that is no log line in its own words; other errors go the common way.
Resume onErrorAtLine(ToolContext& tool, const std::string& line, const RunTimeError& error)
{
    if (error.number() != runTimeErrors::invalidCall) return Resume::asUsual;
    ErrorTrap step{tool, "mdlLogs", "processOrvanLogFile"};
    step([&] {
        tool.g_log->log("Could not format: " + line, logLevel::warning, "processOrvanLogFile");
    });
    return Resume::next;
}

} // namespace

void mdlLogs::processOrvanLogFile(ToolContext& tool, const std::string& fileName,
                                  const std::string& destination, ProgressBar& progressCurrent,
                                  Label& label)
{
    ErrorTrap step{tool, "mdlLogs", "processOrvanLogFile"};
    step.enterProc();
    LogReading reading(tool, step, progressCurrent, label);
    step.specialCase(
        [&](const RunTimeError& error) { return onErrorAtLine(tool, reading.line(), error); });

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
