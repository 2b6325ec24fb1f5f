#include "hosts/cli/reading/server_clock.h"

#include "core/tool_context.h"
#include "platform/platform.h"
#include "platform/time_zone.h"
#include "runtime/run_time_error.h"
#include "timeline/sources/open_sources.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace cli {

namespace {

using timeline::Moment;

constexpr Moment quarterOfAnHour = 900'000; ///< zones change at none but its beginning

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

/// The seconds of "+01:00", "+0100", "+1" or "Z"; nothing for a text of another form.
std::optional<int> offsetOfText(std::string_view text)
{
    if (text == "Z" || text == "z") return 0;
    if (text.size() < 2 || (text[0] != '+' && text[0] != '-')) return std::nullopt;
    const int sign = text[0] == '-' ? -1 : 1;
    text.remove_prefix(1);
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    const std::size_t hourDigits = text.size() > 1 && isDigit(text[1]) ? 2 : 1;
    std::string_view minutes = text.substr(hourDigits);
    if (minutes.starts_with(':')) {
        minutes.remove_prefix(1);
        if (minutes.empty()) return std::nullopt;
    }
    const std::string_view hours = text.substr(0, hourDigits);
    if (!std::all_of(hours.begin(), hours.end(), isDigit) ||
        !std::all_of(minutes.begin(), minutes.end(), isDigit) ||
        (!minutes.empty() && minutes.size() != 2))
        return std::nullopt;
    int hour = 0;
    for (const char digit : hours) hour = hour * 10 + (digit - '0');
    int minute = 0;
    for (const char digit : minutes) minute = minute * 10 + (digit - '0');
    constexpr int mostHours = 14;
    if (minute > 59 || hour * 60 + minute > mostHours * 60) return std::nullopt;
    return sign * (hour * 60 + minute) * 60;
}

} // namespace

Moment ServerClock::offsetAt(Moment universal)
{
    const Moment into = universal % quarterOfAnHour;
    const Moment quarter = universal - (into < 0 ? into + quarterOfAnHour : into);
    const std::lock_guard lock(mutex_);
    if (quarter != quarter_) {
        offset_ = toLocal_(quarter) - quarter;
        quarter_ = quarter;
    }
    return offset_;
}

Moment ServerClock::local(Moment universal)
{
    return universal + offsetAt(universal);
}

Moment ServerClock::universal(Moment local)
{
    const Moment guess = local - offsetAt(local);
    return local - offsetAt(guess);
}

std::shared_ptr<ServerClock> clockOf(ToolContext& tool)
{
    return std::make_shared<ServerClock>([&tool](Moment universal) {
        try {
            return momentOf(
                tool.platform.timeZone.toLocal(tool.g_timeZone, systemTimeOf(universal)));
        } catch (const RunTimeError&) {
            return universal; // before the calendar of its rules begins
        }
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
    if (const auto offset = offsetOfText(text)) {
        PosixTimeZone zone;
        zone.standardName = text;
        zone.standardOffset = *offset;
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
