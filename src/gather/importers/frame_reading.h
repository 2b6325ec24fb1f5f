#pragma once

#include "gather/importers/log_reading.h"
#include "gather/importers/row_dates.h"

/// Where a line lies to the time frame of a gather.
enum class FramePlace {
    inside,
    outside, ///< before the frame, or the frame has not begun yet
    behind,  ///< outside after the frame has begun: nothing more is read
};

/// The time frame of a gather as one log is read against it.
///
/// Each statement runs through the importer's own trap.
class FrameReading {
public:
    FrameReading(ErrorTrap& step, Date dateStart, Date dateEnd)
        : step_(step), dateStart_(dateStart), dateEnd_(dateEnd)
    {}

    /// Starts the carried date at the log's creation.
    void begin(const LogReading& reading);

    /// Whether a line inside has been met.
    bool hasBegun() const { return seenInRange_; }

    /// Carries the date on by a line's time stamp, and places its moment. Bounds are inside.
    FramePlace place(std::string_view timeStamp);

    /// The text of "Date" for the line that was placed last.
    const std::string& rowDate(std::string_view timeStamp);

private:
    ErrorTrap& step_;
    Date dateStart_;
    Date dateEnd_;
    RowDates dates_;
    bool seenInRange_ = false;
    std::string rowDate_;
};
