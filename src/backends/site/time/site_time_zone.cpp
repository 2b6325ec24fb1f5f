#include "backends/site/time/site_time_zone.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace {

using namespace std::chrono;

constexpr int minutesADay = 1440;
constexpr std::int64_t secondsADay = 86400;

int floorDivide(int value, int by)
{
    return value / by - (value % by < 0 ? 1 : 0);
}

int minutesOf(int seconds)
{
    return floorDivide(seconds + 30, 60);
}

/// The week of a day in its month, 5 for the last where the rule asks for the last.
int weekOf(const year_month_day& date, const TimeZoneChange& change)
{
    constexpr int lastWeek = 5;
    const year_month_day inAWeek{sys_days(date) + days(7)};
    if (change.week == lastWeek && inAWeek.month() != date.month()) return lastWeek;
    return static_cast<int>(unsigned(date.day()) - 1) / 7 + 1;
}

SystemTime ruleOf(const TimeZoneChange& change, int year)
{
    const int minutes = minutesOf(change.seconds);
    const int daysOn = floorDivide(minutes, minutesADay);
    const int timeOfDay = minutes - daysOn * minutesADay;
    const sys_days first = std::chrono::year{year} / 1 / 1;
    const sys_days last = std::chrono::year{year} / 12 / 31;
    const sys_days wanted{days(static_cast<int>(dayOfChange(change, year)) + daysOn)};
    const auto day = std::clamp(wanted, first, last);
    const year_month_day date(day);
    SystemTime rule;
    rule.month = static_cast<int>(unsigned(date.month()));
    rule.dayOfWeek = static_cast<int>(weekday(day).c_encoding());
    rule.hour = timeOfDay / 60;
    rule.minute = timeOfDay % 60;
    if (wanted > last) rule.hour = 23, rule.minute = 59, rule.second = 59;
    if (wanted < first) rule.hour = 0, rule.minute = 0;
    if (change.kind == TimeZoneChange::Day::weekOfMonth) {
        rule.day = weekOf(date, change);
    } else {
        rule.year = year;
        rule.day = static_cast<int>(unsigned(date.day()));
    }
    return rule;
}

bool isDate(const SystemTime& time)
{
    constexpr int firstYear = 1601;
    constexpr int lastYear = 9999;
    const year_month_day date{std::chrono::year(time.year),
                              month(static_cast<unsigned>(time.month)),
                              day(static_cast<unsigned>(time.day))};
    return time.year >= firstYear && time.year <= lastYear && time.month >= 1 && time.month <= 12 &&
           time.day >= 1 && time.day <= 31 && date.ok() && time.hour >= 0 && time.hour < 24 &&
           time.minute >= 0 && time.minute < 60 && time.second >= 0 && time.second < 60 &&
           time.milliseconds >= 0 && time.milliseconds < 1000;
}

std::int64_t secondsOf(const SystemTime& time)
{
    const sys_days date = std::chrono::year(time.year) / time.month / time.day;
    const sys_seconds moment =
        date + hours(time.hour) + minutes(time.minute) + seconds(time.second);
    return moment.time_since_epoch().count();
}

SystemTime systemTimeOf(std::int64_t secondsSince1970)
{
    const sys_seconds moment{seconds(secondsSince1970)};
    const auto date = floor<days>(moment);
    const year_month_day parts(date);
    const hh_mm_ss clock(moment - date);
    SystemTime time;
    time.year = static_cast<int>(parts.year());
    time.month = static_cast<int>(unsigned(parts.month()));
    time.dayOfWeek = static_cast<int>(weekday(date).c_encoding());
    time.day = static_cast<int>(unsigned(parts.day()));
    time.hour = static_cast<int>(clock.hours().count());
    time.minute = static_cast<int>(clock.minutes().count());
    time.second = static_cast<int>(clock.seconds().count());
    return time;
}

/// The local moment of a rule in a year; nothing for a rule that is no date.
std::optional<std::int64_t> momentOf(const SystemTime& rule, int year)
{
    const bool isRule = rule.month >= 1 && rule.month <= 12 && rule.day >= 1 && rule.day <= 31 &&
                        rule.hour >= 0 && rule.hour < 24 && rule.minute >= 0 && rule.minute < 60 &&
                        rule.second >= 0 && rule.second < 60;
    if (!isRule) return {};
    TimeZoneChange change;
    change.seconds = rule.hour * 3600 + rule.minute * 60 + rule.second;
    change.month = rule.month;
    change.week = std::min(rule.day, 5);
    change.day = (rule.dayOfWeek % 7 + 7) % 7;
    if (rule.year == 0) return dayOfChange(change, year) * secondsADay + change.seconds;
    const auto lastOfMonth = std::chrono::year(year) / rule.month / last;
    const auto dayOfMonth = std::min<unsigned>(unsigned(year_month_day(lastOfMonth).day()),
                                               static_cast<unsigned>(rule.day));
    const sys_days date = std::chrono::year(year) / rule.month / static_cast<int>(dayOfMonth);
    return date.time_since_epoch().count() * secondsADay + change.seconds;
}

/// A moment of universal time in the local time of a record, by the record alone.
std::int64_t localMoment(const TimeZoneInformation& zone, std::int64_t moment)
{
    const auto standard = moment - (std::int64_t{zone.bias} + zone.standardBias) * 60;
    const auto summer = moment - (std::int64_t{zone.bias} + zone.daylightBias) * 60;
    const int year = systemTimeOf(standard).year;
    const auto start = momentOf(zone.daylightDate, year);
    const auto end = momentOf(zone.standardDate, year);
    if (!start || !end) return moment - std::int64_t{zone.bias} * 60;
    const bool begun = standard >= *start;
    const bool over = summer >= *end;
    const auto order = (*start - standard) - (*end - summer); // in universal time
    return (order < 0 ? begun && !over : begun || !over) ? summer : standard;
}

} // namespace

MomentSource machineMoments()
{
    return [] { return duration_cast<seconds>(system_clock::now().time_since_epoch()).count(); };
}

TimeZoneInformation timeZoneRecord(const PosixTimeZone& zone, int year)
{
    TimeZoneInformation record;
    record.bias = minutesOf(-zone.standardOffset);
    record.standardName = zone.standardName;
    record.daylightName = zone.hasDaylight ? zone.daylightName : zone.standardName;
    if (!zone.hasDaylight) return record;
    record.daylightBias = minutesOf(-zone.daylightOffset) - record.bias;
    record.standardDate = ruleOf(zone.daylightEnd, year);
    record.daylightDate = ruleOf(zone.daylightStart, year);
    return record;
}

SiteTimeZone::SiteTimeZone(PosixTimeZone zone, MomentSource moments)
    : zone_(std::move(zone)), moments_(std::move(moments))
{}

TimeZoneState SiteTimeZone::read(TimeZoneInformation& zone) const
{
    const auto now = moments_();
    given_ = timeZoneRecord(zone_, systemTimeOf(now + zone_.standardOffset).year);
    zone = *given_;
    if (!zone_.hasDaylight) return TimeZoneState::unknown;
    return isDaylightTime(zone_, now) ? TimeZoneState::daylightTime : TimeZoneState::standardTime;
}

SystemTime SiteTimeZone::toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const
{
    if (!isDate(universal)) throw RunTimeError(runTimeErrors::invalidCall);
    const auto moment = secondsOf(universal);
    const auto local =
        given_ == zone ? moment + offsetAt(zone_, moment) : localMoment(zone, moment);
    auto result = systemTimeOf(local);
    result.milliseconds = universal.milliseconds;
    return result;
}
