#pragma once

#include "platform/clock.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

/// A clock that stands still until a test moves it. Nothing waits; sleeps are remembered.
class FakeClock final : public Clock {
public:
    /// Saturday, 8 October 2005, 15:23:07.
    static constexpr Date initial{38633.0 + 55387.0 / 86400.0};

    FakeClock& at(Date moment);
    FakeClock& advance(double seconds);

    /// From now on `timer` gives `seconds` instead of what `now` means.
    FakeClock& timerAt(float seconds);

    /// Runs in every sleep, as another program would.
    FakeClock& onSleep(std::function<void()> event)
    {
        event_ = std::move(event);
        return *this;
    }

    /// Milliseconds of each sleep, oldest first.
    const std::vector<int>& sleeps() const { return sleeps_; }

    Date now() const override { return now_; }
    float timer() const override;
    void sleep(int milliseconds) override
    {
        sleeps_.push_back(milliseconds);
        if (event_) event_();
    }

private:
    Date now_ = initial;
    std::optional<float> timer_;
    std::vector<int> sleeps_;
    std::function<void()> event_;
};
