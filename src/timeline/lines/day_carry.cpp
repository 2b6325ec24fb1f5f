#include "timeline/lines/day_carry.h"

namespace timeline {

namespace {

constexpr Moment millisecondsPerMinute = 60'000;

} // namespace

DayCarry::DayCarry(std::optional<Moment> opened)
{
    if (!opened) return;
    day_ = dayOf(*opened);
    lastSecond_ = static_cast<std::int32_t>((*opened - day_) / millisecondsPerMinute * 60);
}

Moment DayCarry::at(const Stamp& stamp)
{
    const std::int32_t second = stamp.clock / 1000;
    if (stamp.dated)
        day_ = stamp.day;
    else if (second < lastSecond_)
        day_ += millisecondsPerDay;
    lastSecond_ = second;
    last_ = day_ + stamp.clock;
    return last_;
}

} // namespace timeline
