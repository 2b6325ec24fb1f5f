#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "timeline/server_clock.h"

#include <memory>
#include <string>

struct ToolContext;
class TimeZoneService;
struct TimeZoneInformation;

namespace cli {

using timeline::ServerClock;

/// By the zone of the tool's server, which outlives it.
std::shared_ptr<ServerClock> clockOf(ToolContext& tool);

/// By the record of a zone, as the service tells it, which outlives the clock.
std::shared_ptr<ServerClock> clockOf(const TimeZoneService& service, TimeZoneInformation zone);

/// By a zone's rules.
std::shared_ptr<ServerClock> clockOf(const PosixTimeZone& zone);

/// The zone of a text as a person gives it: a POSIX TZ text as a site's settings have it, or what
/// its clock is ahead of universal time, such as "+01:00", "-8" or "Z". Raises 5, with a sentence,
/// for any other.
PosixTimeZone zoneOfText(const std::string& text);

/// By this machine's own zone.
std::shared_ptr<ServerClock> clockOfThisMachine();

} // namespace cli
