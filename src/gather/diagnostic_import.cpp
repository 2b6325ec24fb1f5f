#include "core/utility.h"
#include "gather/frame_reading.h"
#include "gather/importers.h"
#include "gather/malformed_line.h"
#include "gather/trace_row.h"
#include "logreader/diagnostics.h"

namespace {

/// The columns "Source" and "Trace" take no empty text.
void fillEmptyTexts(DiagnosticLine& record)
{
    if (record.source.empty()) record.source = " ";
    if (record.trace.empty()) record.trace = " ";
}

/// Adds the lines of an open log that lie in the frame.
void addLinesOfFrame(ToolContext& tool, ErrorTrap& step, LogReading& reading, FrameReading& frame,
                     const std::string& process, TraceRow& row)
{
    std::string formatted;
    DiagnosticLine record;
    while (reading.nextLine()) {
        if (!tool.g_bDebugMode)
            step([&] { mdlDiagnostics::formatLineSafe(tool, reading.line(), formatted); });
        else
            step([&] { formatted = reading.line(); });
        step([&] {
            mdlDiagnostics::parseDiagnostic(tool, formatted, reading.line(), true, record);
        });
        const FramePlace place = frame.place(record.timeStamp);
        if (place == FramePlace::behind) return;
        if (place == FramePlace::inside) {
            const std::string& date = frame.rowDate(record.timeStamp);
            fillEmptyTexts(record);
            row.addDiagnostic(date, process, record);
        }
        if (reading.cancelledAtProgressPoint()) return;
    }
}

} // namespace

void mdlLogs::processOrvanLogFileToDB(ToolContext& tool, const std::string& fileName,
                                      TraceRecordset& recordset, ProgressBar& progressCurrent,
                                      Label& label, Date dateStart, Date dateEnd)
{
    ErrorTrap step{tool, "mdlLogs", "processOrvanLogFileToDB", countedTrapWithLine};
    LogReading reading(tool, step, progressCurrent, label);
    FrameReading frame(step, dateStart, dateEnd);
    TraceRow row(tool, step, recordset);
    std::string process;
    step.specialCase(
        [&](const RunTimeError& error) { return afterErrorAtLine(tool, reading.line(), error); });

    step.body([&] {
        step.enterProc();
        step.log("Processing " + fileName, logLevel::info);
        if (reading.open(fileName)) {
            frame.begin(reading);
            step([&] { process = processNameFromFileName(fileName); });
            addLinesOfFrame(tool, step, reading, frame, process, row);
            reading.finish();
        }
        step.exitProc();
    });
}
