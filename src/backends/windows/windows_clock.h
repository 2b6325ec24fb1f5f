#pragma once

#include "platform/clock.h"

/// Time on the machine itself. While one lives, the system counts time in milliseconds: a wait for
/// one would last some sixteen otherwise, and reading a long log waits often.
class WindowsClock final : public Clock {
public:
    WindowsClock();
    ~WindowsClock() override;
    WindowsClock(const WindowsClock&) = delete;
    WindowsClock& operator=(const WindowsClock&) = delete;

    Date now() const override;
    float timer() const override;
    void sleep(int milliseconds) override;
};
