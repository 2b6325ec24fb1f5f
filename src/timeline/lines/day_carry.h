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

    /// The carry of lines in the middle of a log, which begin with a stamp whose day nobody knows:
    /// until a dated one comes they have moments that `isOfUnknownDay`.
    static DayCarry ofUnknownDay(const Stamp& first);
    static bool isOfUnknownDay(Moment moment)
    {
        return moment < unknownDay / 2 && moment != noMoment;
    }

    /// Goes on behind such lines, of which `rest` is the carry and `first` the first stamp. Gives
    /// what their moments of an unknown day are to be moved by.
    Moment goOn(const DayCarry& rest, const Stamp& first);

private:
    static constexpr Moment unknownDay = -1'000'000'000 * millisecondsPerDay;

    Moment day_ = 0;
    std::int32_t lastSecond_ = 0;
    Moment last_ = noMoment;
};

} // namespace timeline
