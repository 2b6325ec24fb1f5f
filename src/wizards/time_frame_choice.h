#pragma once

#include "runtime/dates.h"

#include <string>

class classTraceObject;
struct FileInfo;
struct ToolContext;

/// What a person chose as the time frame of a gather.
struct TimeFrameChoice {
    Date startDate;       ///< its day counts
    Date startTime;       ///< its time of day counts, without the seconds
    std::string duration; ///< hours, as typed
    bool applicationLog = true;
    bool systemLog = true;
};

/// The frame itself; both bounds are inside.
struct TimeFrame {
    Date start;
    Date end;
};

/// Sets a frame from a choice. Raises 13 for a duration that is no number; the start is then set
/// and the end stays as it was.
void computeTimeFrame(const TimeFrameChoice& choice, TimeFrame& frame);

/// Whether a file has lines of a frame, as far as its dates tell: it was made or last written in
/// the frame, or spans it. To the second, bounds included.
bool fileOverlapsTimeFrame(const FileInfo& file, Date start, Date end);

/// Fills a job's lists anew with what a frame needs: the diagnostic logs and then the data files
/// of the server's log folder that overlap it, without formatted copies, and the event logs that
/// were chosen. Computes the frame. Raises nothing.
void determineSelectedLogsFromTimeFrame(ToolContext& tool, const TimeFrameChoice& choice,
                                        TimeFrame& frame, classTraceObject& job);
