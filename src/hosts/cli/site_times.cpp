#include "hosts/cli/site_times.h"

#include "core/tool_context.h"
#include "hosts/cli/reading/server_clock.h"
#include "platform/clock.h"
#include "platform/platform.h"

#include <cstdlib>
#include <utility>

namespace cli {

namespace {

using timeline::Moment;

constexpr Moment aMinute = 60'000;

TimeZoneInformation zoneOfServer(ToolContext& tool)
{
    TimeZoneInformation zone;
    tool.platform.timeZone.read(zone);
    return zone;
}

std::string twoDigits(Moment number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// "-08:00".
std::string offsetText(Moment offset)
{
    const Moment minutes = std::abs(offset / aMinute);
    return (offset < 0 ? "-" : "+") + twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60);
}

/// "2025-02-20 15:00", with the seconds where there are some.
std::string clockText(Moment shown)
{
    constexpr std::size_t toTheMinute = 16;
    constexpr std::size_t toTheSecond = 19;
    const bool whole = shown % aMinute == 0;
    return timeline::momentText(shown).substr(0, whole ? toTheMinute : toTheSecond);
}

} // namespace

SiteTimes::SiteTimes(ToolContext& tool)
    : SiteTimes(clockOf(tool.platform.timeZone, zoneOfServer(tool)), zoneOfServer(tool),
                momentOf(tool.platform.clock.now()))
{}

SiteTimes::SiteTimes(std::shared_ptr<timeline::ServerClock> clock, TimeZoneInformation zone,
                     Moment now)
    : clock_(std::move(clock)), zone_(std::move(zone)), now_(now)
{}

std::string SiteTimes::zoneText(Moment shown) const
{
    const Moment offset = shown - clock_->universal(shown);
    const bool daylight = zone_.daylightDate.month != 0 &&
                          offset == -Moment{zone_.bias + zone_.daylightBias} * aMinute;
    const std::string& name = daylight ? zone_.daylightName : zone_.standardName;
    return (name.empty() ? "" : name + " ") + "(UTC" + offsetText(offset) + ")";
}

std::string SiteTimes::text(Moment shown) const
{
    return clockText(shown) + " " + zoneText(shown);
}

std::string SiteTimes::text(Moment first, Moment last) const
{
    const bool oneZone = zoneText(first) == zoneText(last);
    return (oneZone ? clockText(first) : text(first)) + " to " + text(last);
}

std::string SiteTimes::isoText(Moment shown) const
{
    constexpr std::size_t toTheSecond = 19;
    constexpr std::size_t betweenDayAndClock = 10;
    std::string iso = timeline::momentText(shown).substr(0, toTheSecond);
    iso[betweenDayAndClock] = 'T';
    return iso + offsetText(shown - clock_->universal(shown));
}

std::string SiteTimes::oddity(Moment shown) const
{
    const auto times = clock_->whenShown(shown).size();
    if (times == 1) return {};
    return "the site's clock " +
           (times == 0 ? "skips " + clockText(shown) : "shows " + clockText(shown) + " twice");
}

Moment momentOf(Date date)
{
    const DateParts parts = partsOf(date);
    return timeline::dayOf(parts.year, parts.month, parts.day) +
           ((Moment{parts.hour} * 60 + parts.minute) * 60 + parts.second) * 1000;
}

Date dateOf(Moment moment)
{
    const timeline::MomentParts parts = timeline::partsOf(moment);
    return ::dateOf(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second);
}

} // namespace cli
