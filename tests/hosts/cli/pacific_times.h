#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "backends/site/time/site_time_zone.h"
#include "hosts/cli/reading/server_clock.h"
#include "hosts/cli/site_times.h"

/// A clock of Pacific time that shows a time, such as {2025, 2, 20, 15, 23, 7}; of an hour that
/// comes twice, nobody knows which one it is.
inline cli::SiteTimes pacificTimes(const timeline::MomentParts& now)
{
    const PosixTimeZone zone = parsePosixTimeZone("PST8PDT,M3.2.0,M11.1.0");
    const timeline::Moment clock = (timeline::Moment{now.hour} * 60 + now.minute) * 60 + now.second;
    return {cli::clockOf(zone), timeZoneRecord(zone, now.year),
            timeline::dayOf(now.year, now.month, now.day) + clock * 1000};
}
