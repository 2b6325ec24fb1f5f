#include "hosts/viewer/calls/time_ticks.h"

#include "hosts/viewer/table/time_text.h"

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

using timeline::Moment;

constexpr Moment aSecond = 1000;
constexpr Moment aMinute = 60 * aSecond;
constexpr Moment anHour = 60 * aMinute;
constexpr Moment aDay = 24 * anHour;

/// Each is a part of a day, so that marks stand where a clock has round numbers.
constexpr Moment steps[] = {1,
                            2,
                            5,
                            10,
                            20,
                            50,
                            100,
                            200,
                            500,
                            aSecond,
                            2 * aSecond,
                            5 * aSecond,
                            10 * aSecond,
                            15 * aSecond,
                            30 * aSecond,
                            aMinute,
                            2 * aMinute,
                            5 * aMinute,
                            10 * aMinute,
                            15 * aMinute,
                            30 * aMinute,
                            anHour,
                            2 * anHour,
                            3 * anHour,
                            6 * anHour,
                            12 * anHour,
                            aDay};

Moment stepOf(double length, int most)
{
    for (const Moment step : steps)
        if (length / static_cast<double>(step) <= most) return step;
    return aDay * static_cast<Moment>(std::ceil(length / static_cast<double>(aDay) / most));
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
    if (step >= aDay) return whole.left(clock - 1);
    if (step >= aMinute) return whole.mid(clock, 5);
    return step >= aSecond ? whole.mid(clock, 8) : whole.mid(clock);
}

} // namespace viewer
