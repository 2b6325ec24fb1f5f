#include "sample/day_profile.h"

#include <algorithm>
#include <array>

namespace sample {

namespace {

/// Work in each hour of the day, against the others.
constexpr std::array<int, 24> workOfHour = {
    2, 2, 2, 2, 2, 3, 6, 22, 60, 85, 90, 80, 55, 75, 85, 80, 60, 28, 14, 9, 7, 5, 4, 3,
};

} // namespace

DayProfile::DayProfile()
{
    std::int64_t done = 0;
    for (Moment moment = coverageStart; moment < coverageEnd; moment += minute) {
        doneAtMinute_.push_back(done);
        done += workOfHour[static_cast<std::size_t>(moment % day / hour)];
    }
    doneAtMinute_.push_back(done);
}

Moment DayProfile::momentAt(std::int64_t part, std::int64_t whole) const
{
    const std::int64_t scaled = part * doneAtMinute_.back();
    const std::int64_t done = scaled / whole;
    const auto after = std::upper_bound(doneAtMinute_.begin(), doneAtMinute_.end(), done);
    if (after == doneAtMinute_.end()) return coverageEnd;

    const std::int64_t before = *(after - 1);
    const Moment started = minute * (after - doneAtMinute_.begin() - 1);
    const Moment within = (done - before) * minute + scaled % whole * minute / whole;
    return coverageStart + started + within / (*after - before);
}

} // namespace sample
