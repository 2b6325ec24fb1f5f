#include "hosts/viewer/calls/time_ticks.h"

#include "hosts/viewer/table/time_text.h"

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

using timeline::Moment;

constexpr Moment second = 1000;
constexpr Moment minute = 60 * second;
constexpr Moment hour = 60 * minute;
constexpr Moment day = 24 * hour;

/// Each is a part of a day, so that marks stand where a clock has round numbers.
constexpr Moment steps[] = {1,           2,           5,           10,     20,         50,
                            100,         200,         500,         second, 2 * second, 5 * second,
                            10 * second, 15 * second, 30 * second, minute, 2 * minute, 5 * minute,
                            10 * minute, 15 * minute, 30 * minute, hour,   2 * hour,   3 * hour,
                            6 * hour,    12 * hour,   day};

Moment stepOf(double length, int most)
{
    for (const Moment step : steps)
        if (length / static_cast<double>(step) <= most) return step;
    return day * static_cast<Moment>(std::ceil(length / static_cast<double>(day) / most));
}

} // namespace

TimeTicks TimeTicks::between(double from, double to, int most)
{
    TimeTicks ticks;
    ticks.step = stepOf(to - from, std::max(1, most));
    const auto width = static_cast<double>(ticks.step);
    for (auto at = static_cast<Moment>(std::ceil(from / width)) * ticks.step;
         static_cast<double>(at) <= to; at += ticks.step)
        ticks.moments.push_back(at);
    return ticks;
}

QString TimeTicks::text(Moment moment) const
{
    // "2025-02-20 15:23:07.123"
    const QString whole = clockText(moment);
    constexpr int clock = 11;
    if (step >= day) return whole.left(clock - 1);
    if (step >= minute) return whole.mid(clock, 5);
    return step >= second ? whole.mid(clock, 8) : whole.mid(clock);
}

} // namespace viewer
