#pragma once

#include "timeline/lines/stamp.h"

#include <optional>

namespace timeline {

/// The moments of a log whose lines have a time of day alone: the day is carried along and moves on
/// when the clock goes back to an earlier second, as when a log is gathered. A dated stamp has its
/// own day, from which those behind it go on.
class DayCarry {
public:
    /// `opened` is when the log was begun, to the minute. Without it the first stamp's day is the
    /// day 0, and the caller moves all rows later.
    explicit DayCarry(std::optional<Moment> opened);

    /// The moment of the next line.
    Moment at(const Stamp& stamp);

    /// The moment of the line before; of the first one `noMoment`.
    Moment last() const { return last_; }

    /// The second of the day of the line before; of the first one that of the opening.
    std::int32_t lastSecond() const { return lastSecond_; }

private:
    Moment day_ = 0;
    std::int32_t lastSecond_ = 0;
    Moment last_ = noMoment;
};

} // namespace timeline
