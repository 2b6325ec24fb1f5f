#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "platform/clock.h"

/// The machine's clock, in the zone of a site.
class SiteClock final : public Clock {
public:
    explicit SiteClock(PosixTimeZone zone);

    Date now() const override;
    float timer() const override;

    /// No server shares the machine: yields the processor and returns.
    void sleep(int milliseconds) override;

private:
    PosixTimeZone zone_;
};
