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

DayCarry DayCarry::ofUnknownDay(const Stamp& first)
{
    return DayCarry(unknownDay + first.clock);
}

Moment DayCarry::goOn(const DayCarry& rest, const Stamp& first)
{
    const bool wentBack = first.clock / 1000 < lastSecond_;
    const Moment moved = day_ + (wentBack ? millisecondsPerDay : 0) - unknownDay;
    const auto known = [&](Moment moment) {
        return isOfUnknownDay(moment) ? moment + moved : moment;
    };
    day_ = known(rest.day_);
    last_ = known(rest.last_);
    lastSecond_ = rest.lastSecond_;
    return moved;
}

} // namespace timeline
