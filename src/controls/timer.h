#pragma once

#include "controls/control.h"

#include <functional>

/// Ticks again and again while it is enabled and has an interval; the host keeps the time.
class Timer final : public Control {
public:
    /// Starts at rest when `enabled` is false.
    explicit Timer(int intervalMilliseconds = 0, bool enabled = true)
        : interval_(intervalMilliseconds)
    {
        setEnabled(enabled);
    }

    std::function<void()> onTick;

    /// Milliseconds; 0 for a timer that does not tick.
    int interval() const { return interval_; }
    void setInterval(int milliseconds) { assign(interval_, milliseconds); }

    bool running() const { return enabled() && interval_ > 0; }

    /// The interval is over. Nothing happens unless the timer runs.
    void tick()
    {
        if (running() && onTick) onTick();
    }

private:
    int interval_;
};
