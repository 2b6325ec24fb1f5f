#pragma once

#include "runtime/dates.h"

/// Time on the machine under diagnosis.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present moment, local time, to the second.
    virtual Date now() const = 0;

    /// Seconds since local midnight, in single precision.
    virtual float timer() const = 0;

    /// Waits. On a site, where no server shares the machine, it only yields the processor.
    virtual void sleep(int milliseconds) = 0;
};
