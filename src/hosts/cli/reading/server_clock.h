#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "timeline/moment.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>

struct ToolContext;

namespace cli {

/// The clock on the server's wall, beside universal time. May be used by several threads.
class ServerClock {
public:
    using ToLocal = std::function<timeline::Moment(timeline::Moment universal)>;

    explicit ServerClock(ToLocal toLocal) : toLocal_(std::move(toLocal)) {}

    timeline::Moment local(timeline::Moment universal);

    /// Of an hour that the clock shows twice, the second one's; of one that it skips, the moment
    /// that stands there for as long.
    timeline::Moment universal(timeline::Moment local);

private:
    timeline::Moment offsetAt(timeline::Moment universal);

    std::mutex mutex_;
    ToLocal toLocal_;
    timeline::Moment quarter_ = timeline::noMoment; ///< whose offset is known
    timeline::Moment offset_ = 0;
};

/// By the zone of the tool's server, which outlives it.
std::shared_ptr<ServerClock> clockOf(ToolContext& tool);

/// By a zone's rules.
std::shared_ptr<ServerClock> clockOf(const PosixTimeZone& zone);

/// The zone of a text as a person gives it: a POSIX TZ text as a site's settings have it, or what
/// its clock is ahead of universal time, such as "+01:00", "-8" or "Z". Raises 5, with a sentence,
/// for any other.
PosixTimeZone zoneOfText(const std::string& text);

/// By this machine's own zone.
std::shared_ptr<ServerClock> clockOfThisMachine();

} // namespace cli
