#include "hosts/cli/reading/server_clock.h"

#include "core/tool_context.h"
#include "platform/platform.h"
#include "platform/time_zone.h"
#include "runtime/run_time_error.h"
#include "timeline/filter/time_text.h"
#include "timeline/sources/open_sources.h"

#include <utility>

namespace cli {

namespace {

using timeline::Moment;

Moment momentOf(const SystemTime& time)
{
    const Moment clock = ((Moment{time.hour} * 60 + time.minute) * 60 + time.second) * 1000;
    return timeline::dayOf(time.year, time.month, time.day) + clock + time.milliseconds;
}

SystemTime systemTimeOf(Moment moment)
{
    const timeline::MomentParts parts = timeline::partsOf(moment);
    SystemTime time;
    time.year = parts.year;
    time.month = parts.month;
    time.day = parts.day;
    time.hour = parts.hour;
    time.minute = parts.minute;
    time.second = parts.second;
    time.milliseconds = parts.millisecond;
    return time;
}

Moment localOf(const TimeZoneService& service, const TimeZoneInformation& zone, Moment universal)
{
    try {
        return momentOf(service.toLocal(zone, systemTimeOf(universal)));
    } catch (const RunTimeError&) {
        return universal; // before the calendar of its rules begins
    }
}

} // namespace

std::shared_ptr<ServerClock> clockOf(ToolContext& tool)
{
    return std::make_shared<ServerClock>([&tool](Moment universal) {
        return localOf(tool.platform.timeZone, tool.g_timeZone, universal);
    });
}

std::shared_ptr<ServerClock> clockOf(const TimeZoneService& service, TimeZoneInformation zone)
{
    return std::make_shared<ServerClock>([&service, zone = std::move(zone)](Moment universal) {
        return localOf(service, zone, universal);
    });
}

std::shared_ptr<ServerClock> clockOf(const PosixTimeZone& zone)
{
    return std::make_shared<ServerClock>([zone](Moment universal) {
        const Moment seconds =
            universal / 1000 - (universal % 1000 < 0 ? 1 : 0); // offsetAt takes whole ones
        return universal + Moment{::offsetAt(zone, seconds)} * 1000;
    });
}

PosixTimeZone zoneOfText(const std::string& text)
{
    if (const auto offset = timeline::readOffset(text)) {
        PosixTimeZone zone;
        zone.standardName = text;
        zone.standardOffset = static_cast<int>(*offset / 1000);
        return zone;
    }
    try {
        return parsePosixTimeZone(text);
    } catch (const RunTimeError&) {
        throw RunTimeError(runTimeErrors::invalidCall,
                           "the zone \"" + text +
                               "\" is neither what a clock is ahead of universal time, such as "
                               "+01:00, nor a POSIX TZ text, such as PST8PDT,M3.2.0,M11.1.0");
    }
}

std::shared_ptr<ServerClock> clockOfThisMachine()
{
    return std::make_shared<ServerClock>(timeline::machineLocalTime);
}

} // namespace cli
