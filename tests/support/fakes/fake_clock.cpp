#include "support/fakes/fake_clock.h"

#include <cmath>

namespace {
constexpr double secondsOfDay = 86400;
}

FakeClock& FakeClock::at(Date moment)
{
    now_ = moment;
    return *this;
}

FakeClock& FakeClock::advance(double seconds)
{
    now_ = Date{std::round(now_.days * secondsOfDay + seconds) / secondsOfDay};
    return *this;
}

FakeClock& FakeClock::timerAt(float seconds)
{
    timer_ = seconds;
    return *this;
}

float FakeClock::timer() const
{
    if (timer_) return *timer_;
    const double fraction = std::abs(now_.days - std::trunc(now_.days));
    return static_cast<float>(std::round(fraction * secondsOfDay));
}
