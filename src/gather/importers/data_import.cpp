#include "gather/importers/data_import.h"

#include "core/utility.h"
#include "gather/importers/frame_reading.h"
#include "gather/importers/malformed_line.h"
#include "gather/importers/trace_row.h"
#include "logreader/parse_data.h"

namespace {

/// A stamp of universal time as local time, in the form that carries a date.
std::string localStamp(ToolContext& tool, std::string_view timeStamp)
{
    return sortableDateTime(toLocalTime(tool, parseDate(timeStamp)));
}

/// Adds the lines of an open data file that lie in the frame.
void addLinesOfFrame(ToolContext& tool, ErrorTrap& step, LogReading& reading, FrameReading& frame,
                     const std::string& process, TraceRow& row)
{
    DiagnosticLine record;
    while (reading.nextLine()) {
        step([&] { mdlDiagnostics::parseData(tool, reading.line(), record); });
        step([&] { record.timeStamp = localStamp(tool, record.timeStamp); });
        const FramePlace place = frame.place(record.timeStamp);
        if (place == FramePlace::behind) return;
        if (place == FramePlace::inside)
            row.addData(frame.rowDate(record.timeStamp), process, record);
        if (reading.cancelledAtProgressPoint()) return;
    }
}

} // namespace

void mdlLogs::processOrvanDataFileToDB(ToolContext& tool, const std::string& fileName,
                                       TraceRecordset& recordset, ProgressBar& progressCurrent,
                                       Label& label, Date dateStart, Date dateEnd)
{
    ErrorTrap step{tool, "mdlLogs", "processOrvanDataFileToDB"};
    LogReading reading(tool, step, progressCurrent, label);
    FrameReading frame(step, dateStart, dateEnd);
    TraceRow row(tool, step, recordset);
    step.specialCase(
        [&](const RunTimeError& error) { return afterErrorAtLine(tool, reading.line(), error); });

    step.enterProc();
    if (reading.open(fileName)) {
        frame.begin(reading);
        const std::string process =
            step.value("", [&] { return processNameFromFileName(fileName); });
        addLinesOfFrame(tool, step, reading, frame, process, row);
        reading.finish();
    }
    step.exitProc();
}
