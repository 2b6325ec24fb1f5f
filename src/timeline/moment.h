#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace timeline {

/// A moment by the server's own clock on the wall: milliseconds since the beginning of 1970 there.
using Moment = std::int64_t;

/// What a row has that no moment is known for; it stands before all others.
inline constexpr Moment noMoment = std::numeric_limits<Moment>::min();

inline constexpr Moment millisecondsPerDay = 86'400'000;

/// The beginning of a day of the Gregorian calendar, which may lie before 1970.
Moment dayOf(int year, int month, int day);

/// The beginning of the day of a moment.
Moment dayOf(Moment moment);

/// A moment's day and clock in the calendar.
struct MomentParts {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};
MomentParts partsOf(Moment moment);

/// "2025-02-20 15:23:07.123"; the empty text for `noMoment`.
std::string momentText(Moment moment);
void appendMomentText(std::string& text, Moment moment);

} // namespace timeline
