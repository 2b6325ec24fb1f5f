#include "wizards/time_frame_choice.h"

#include "core/error_trap.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"
#include "wizards/trace_object.h"

#include <optional>

namespace {

/// Adds the logs of a pattern that overlap a frame. `file` is the one looked at last: it stands for
/// a file that is gone by now, which thus comes a second time if it overlaps.
void addLogs(ToolContext& tool, ErrorTrap& step, const char* pattern, const TimeFrame& frame,
             std::optional<FileInfo>& file, classTraceObject& job)
{
    const auto names = step.value(
        {}, [&] { return tool.platform.files.matching(tool.g_strLogFolder + "\\" + pattern); });
    for (const std::string& name : names) {
        if (logFileNames::isFormattedCopy(name)) continue;
        bool overlaps = false;
        step([&] { file = tool.platform.files.file(tool.g_strLogFolder + "\\" + name); });
        step([&] { overlaps = fileOverlapsTimeFrame(required(file), frame.start, frame.end); });
        if (overlaps) step([&] { job.addOrvanLog(file->name); });
    }
}

} // namespace

void computeTimeFrame(const TimeFrameChoice& choice, TimeFrame& frame)
{
    frame.start = parseDate(shortDate(choice.startDate) + " " + longTime(choice.startTime));
    frame.start = addSeconds(frame.start, -1.0 * partsOf(frame.start).second);
    frame.end = addHours(frame.start, toNumber(choice.duration));
}

bool fileOverlapsTimeFrame(const FileInfo& file, Date start, Date end)
{
    const long long first = wholeSeconds(start);
    const long long last = wholeSeconds(end);
    const long long created = wholeSeconds(file.created);
    const long long modified = wholeSeconds(file.modified);
    if (first <= created && created <= last) return true;
    if (first <= modified && modified <= last) return true;
    return created <= first && modified >= last;
}

void determineSelectedLogsFromTimeFrame(ToolContext& tool, const TimeFrameChoice& choice,
                                        TimeFrame& frame, classTraceObject& job)
{
    ErrorTrap step{tool, "ppgGatherLogs02Step", "determineSelectedLogsFromTimeFrame"};
    std::optional<FileInfo> file;

    step.enterProc();
    step([&] { job.clearOrvanLogs(); });
    step([&] { job.clearWindowsLogs(); });
    step([&] { computeTimeFrame(choice, frame); });
    step.log("Gathering logs with data between: " + dateText(frame.start) + " - " +
                 dateText(frame.end),
             logLevel::info);
    addLogs(tool, step, logFileNames::diagnosticLogs, frame, file, job);
    addLogs(tool, step, logFileNames::dataFiles, frame, file, job);
    if (choice.applicationLog) step([&] { job.addWindowsLog("Application"); });
    if (choice.systemLog) step([&] { job.addWindowsLog("System"); });
    step.exitProc();
}
