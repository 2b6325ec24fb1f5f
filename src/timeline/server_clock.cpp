#include "timeline/server_clock.h"

#include <algorithm>

namespace timeline {

namespace {

constexpr Moment quarterOfAnHour = 900'000; ///< zones change at none but its beginning

/// No clock is put back by more than this, so what lies further off is later or earlier anyway.
constexpr Moment furthestChange = millisecondsPerDay;

Moment quarterOf(Moment moment)
{
    const Moment into = moment % quarterOfAnHour;
    return moment - (into < 0 ? into + quarterOfAnHour : into);
}

} // namespace

Moment ServerClock::offsetAt(Moment universal)
{
    const Moment quarter = quarterOf(universal);
    const std::lock_guard lock(mutex_);
    if (quarter != quarter_) {
        offset_ = toLocal_(quarter) - quarter;
        quarter_ = quarter;
    }
    return offset_;
}

Moment ServerClock::local(Moment universal)
{
    return universal + offsetAt(universal);
}

Moment ServerClock::universal(Moment local)
{
    const Moment guess = local - offsetAt(local);
    return local - offsetAt(guess);
}

std::vector<Moment> ServerClock::whenShown(Moment local)
{
    std::vector<Moment> moments;
    // A change lies between the two at most, as no clock is a day ahead or behind.
    for (const Moment near : {local - millisecondsPerDay, local + millisecondsPerDay}) {
        const Moment moment = local - offsetAt(near);
        const bool again = !moments.empty() && moments.front() == moment;
        if (!again && this->local(moment) == local) moments.push_back(moment);
    }
    std::sort(moments.begin(), moments.end());
    return moments;
}

Moment ServerClock::earliestShown(Moment from, Moment to)
{
    Moment earliest = local(from);
    const Moment last = std::min(to, from + furthestChange);
    for (Moment change = quarterOf(from) + quarterOfAnHour; change <= last;
         change += quarterOfAnHour)
        earliest = std::min(earliest, local(change));
    return earliest;
}

Moment ServerClock::latestShown(Moment from, Moment to)
{
    Moment latest = local(to);
    const Moment first = std::max(from, to - furthestChange);
    for (Moment change = quarterOf(to); change > first; change -= quarterOfAnHour)
        latest = std::max(latest, local(change - 1));
    return latest;
}

} // namespace timeline
