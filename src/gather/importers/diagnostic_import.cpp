#include "gather/importers/diagnostic_import.h"

#include "core/utility.h"
#include "gather/importers/frame_reading.h"
#include "gather/importers/malformed_line.h"
#include "gather/importers/trace_row.h"
#include "logreader/format_line.h"
#include "logreader/parse_diagnostic.h"
#include "platform/event_reporter.h"

namespace {

/// The columns "Source" and "Trace" take no empty text.
void fillEmptyTexts(DiagnosticLine& record)
{
    if (record.source.empty()) record.source = " ";
    if (record.trace.empty()) record.trace = " ";
}

/// Reads a line into its record, by its formatted form.
void readRecord(ToolContext& tool, ErrorTrap& step, const std::string& line, std::string& formatted,
                DiagnosticLine& record)
{
    if (!tool.g_bDebugMode)
        step([&] { mdlDiagnostics::formatLineSafe(tool, line, formatted); });
    else
        step([&] { formatted = line; });
    step([&] { mdlDiagnostics::parseDiagnostic(tool, formatted, line, true, record); });
}

/// The time of a line that would be formatted and parsed without fail, while the frame has not
/// begun: of the many lines before a frame nothing else is needed. The empty text for any other.
std::string_view timeOfLineBefore(const ToolContext& tool, const FrameReading& frame,
                                  const std::string& line)
{
    constexpr std::size_t shortestFormatted = 20;
    if (tool.g_bDebugMode || frame.hasBegun() || line.size() < shortestFormatted) return {};
    return tool.platform.eventReporter.timeOfSoundLine(line);
}

/// Adds the lines of an open log that lie in the frame.
void addLinesOfFrame(ToolContext& tool, ErrorTrap& step, LogReading& reading, FrameReading& frame,
                     const std::string& process, TraceRow& row)
{
    std::string formatted;
    DiagnosticLine record;
    while (reading.nextLine()) {
        const std::string_view time = timeOfLineBefore(tool, frame, reading.line());
        FramePlace place = FramePlace::outside;
        if (!time.empty()) place = frame.place(time);
        if (time.empty() || place == FramePlace::inside)
            readRecord(tool, step, reading.line(), formatted, record);
        if (time.empty()) place = frame.place(record.timeStamp);
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
    step.specialCase(
        [&](const RunTimeError& error) { return afterErrorAtLine(tool, reading.line(), error); });

    step.body([&] {
        step.enterProc();
        step.log("Processing " + fileName, logLevel::info);
        if (reading.open(fileName)) {
            frame.begin(reading);
            const std::string process =
                step.value("", [&] { return processNameFromFileName(fileName); });
            addLinesOfFrame(tool, step, reading, frame, process, row);
            reading.finish();
        }
        step.exitProc();
    });
}
