#include "backends/site/time/site_clock.h"

#include <chrono>
#include <ctime>
#include <thread>
#include <utility>

SiteClock::SiteClock(PosixTimeZone zone) : zone_(std::move(zone)) {}

Date SiteClock::now() const
{
    return localDate(zone_, std::time(nullptr));
}

float SiteClock::timer() const
{
    constexpr std::int64_t secondsADay = 86400;
    const auto moment = std::chrono::system_clock::now().time_since_epoch();
    const auto whole = std::chrono::duration_cast<std::chrono::seconds>(moment);
    const auto second = (whole.count() + offsetAt(zone_, whole.count())) % secondsADay;
    return static_cast<float>(static_cast<double>(second) +
                              std::chrono::duration<double>(moment - whole).count());
}

void SiteClock::sleep(int)
{
    std::this_thread::yield();
}
