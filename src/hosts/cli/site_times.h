#pragma once

#include "platform/time_zone.h"
#include "runtime/dates.h"
#include "timeline/server_clock.h"

#include <memory>
#include <string>

struct ToolContext;

namespace cli {

/// The clock of the server that the tool works on, and how its times are told: with their zone, as
/// a person may sit in another one.
class SiteTimes {
public:
    /// By the server's own clock and zone. The services of the tool outlive it.
    explicit SiteTimes(ToolContext& tool);

    /// By a clock of the zone, which shows `now`.
    SiteTimes(std::shared_ptr<timeline::ServerClock> clock, TimeZoneInformation zone,
              timeline::Moment now);

    timeline::ServerClock& clock() { return *clock_; }

    /// What the clock showed when this was made, to the second.
    timeline::Moment now() const { return now_; }

    /// "2025-02-20 15:00 PST (UTC-08:00)"; with the seconds where there are some.
    std::string text(timeline::Moment shown) const;

    /// "2025-02-20 15:00 to 2025-02-20 16:00 PST (UTC-08:00)", with a zone at each end where the
    /// clock is changed between them.
    std::string text(timeline::Moment first, timeline::Moment last) const;

    /// "2025-02-20T15:00:00-08:00".
    std::string isoText(timeline::Moment shown) const;

    /// What a person has to know of a time that the clock shows twice, or skips: a clause such as
    /// "the site's clock shows 2025-11-02 01:30 twice"; else the empty text.
    std::string oddity(timeline::Moment shown) const;

private:
    std::string zoneText(timeline::Moment shown) const;

    std::shared_ptr<timeline::ServerClock> clock_;
    TimeZoneInformation zone_;
    timeline::Moment now_ = 0;
};

/// A moment of the tool's calendar as one of the timeline's, and back. Raise 5 outside the years
/// 100 to 9999.
timeline::Moment momentOf(Date date);
Date dateOf(timeline::Moment moment);

} // namespace cli
