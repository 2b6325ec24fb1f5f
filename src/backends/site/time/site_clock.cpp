#include "backends/site/time/site_clock.h"

#include <ctime>
#include <sched.h>
#include <utility>

SiteClock::SiteClock(PosixTimeZone zone) : zone_(std::move(zone)) {}

Date SiteClock::now() const
{
    return localDate(zone_, std::time(nullptr));
}

float SiteClock::timer() const
{
    constexpr std::int64_t secondsADay = 86400;
    timespec moment{};
    ::clock_gettime(CLOCK_REALTIME, &moment);
    const auto second = (moment.tv_sec + offsetAt(zone_, moment.tv_sec)) % secondsADay;
    return static_cast<float>(static_cast<double>(second) +
                              static_cast<double>(moment.tv_nsec) * 1e-9);
}

void SiteClock::sleep(int)
{
    ::sched_yield();
}
