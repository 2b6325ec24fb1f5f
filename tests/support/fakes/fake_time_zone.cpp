#include "support/fakes/fake_time_zone.h"

#include "runtime/run_time_error.h"

#include <chrono>

namespace {

using Minutes = std::chrono::sys_time<std::chrono::minutes>;

std::chrono::year_month_day calendarDate(int year, int month, int day)
{
    return std::chrono::year{year} / std::chrono::month(static_cast<unsigned>(month)) /
           std::chrono::day(static_cast<unsigned>(day));
}

/// The local minute at which a rule takes effect in a year.
std::chrono::sys_time<std::chrono::minutes> ruleIn(int year, const SystemTime& rule)
{
    using namespace std::chrono;
    const weekday wanted(static_cast<unsigned>(rule.dayOfWeek));
    const auto month =
        std::chrono::year{year} / std::chrono::month(static_cast<unsigned>(rule.month));
    const sys_days day = rule.day >= 5 ? sys_days(month / wanted[last])
                                       : sys_days(month / wanted[static_cast<unsigned>(rule.day)]);
    return day + hours{rule.hour} + minutes{rule.minute};
}

bool daylightAt(const TimeZoneInformation& zone, Minutes universal)
{
    using namespace std::chrono;
    if (zone.standardDate.month == 0) return false;
    const Minutes standard = universal - minutes{zone.bias + zone.standardBias};
    const int year = int(year_month_day(floor<days>(standard)).year());
    const Minutes begins = ruleIn(year, zone.daylightDate) + minutes{zone.bias + zone.standardBias};
    const Minutes ends = ruleIn(year, zone.standardDate) + minutes{zone.bias + zone.daylightBias};
    if (begins < ends) return universal >= begins && universal < ends;
    return universal >= begins || universal < ends;
}

bool isMoment(const SystemTime& moment)
{
    return moment.month >= 1 && moment.month <= 12 && moment.day >= 1 &&
           calendarDate(moment.year, moment.month, moment.day).ok() && moment.year >= 1601 &&
           moment.hour >= 0 && moment.hour < 24 && moment.minute >= 0 && moment.minute < 60 &&
           moment.second >= 0 && moment.second < 60 && moment.milliseconds >= 0 &&
           moment.milliseconds < 1000;
}

} // namespace

FakeTimeZone::FakeTimeZone()
{
    zone_.bias = 480;
    zone_.standardName = "Pacific Standard Time";
    zone_.standardDate = SystemTime{0, 11, 0, 1, 2, 0, 0, 0};
    zone_.daylightName = "Pacific Daylight Time";
    zone_.daylightDate = SystemTime{0, 3, 0, 2, 2, 0, 0, 0};
    zone_.daylightBias = -60;
}

FakeTimeZone& FakeTimeZone::with(const TimeZoneInformation& zone, TimeZoneState state)
{
    zone_ = zone;
    state_ = state;
    return *this;
}

FakeTimeZone& FakeTimeZone::fixed(int biasMinutes)
{
    TimeZoneInformation zone;
    zone.bias = biasMinutes;
    return with(zone, TimeZoneState::unknown);
}

FakeTimeZone& FakeTimeZone::inStandardTime(int biasMinutes)
{
    zone_.bias = biasMinutes;
    return with(zone_, TimeZoneState::standardTime);
}

TimeZoneState FakeTimeZone::read(TimeZoneInformation& zone) const
{
    zone = zone_;
    return state_;
}

SystemTime FakeTimeZone::toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const
{
    using namespace std::chrono;
    if (!isMoment(universal)) throw RunTimeError(runTimeErrors::invalidCall);
    const Minutes moment = sys_days(calendarDate(universal.year, universal.month, universal.day)) +
                           hours{universal.hour} + minutes{universal.minute};
    const int extra = daylightAt(zone, moment) ? zone.daylightBias : zone.standardBias;
    const Minutes local = moment - minutes{zone.bias + extra};
    const auto day = floor<days>(local);
    const year_month_day date(day);
    const auto minuteOfDay = static_cast<int>((local - day).count());
    SystemTime result = universal;
    result.year = int(date.year());
    result.month = static_cast<int>(unsigned(date.month()));
    result.day = static_cast<int>(unsigned(date.day()));
    result.dayOfWeek = static_cast<int>(weekday(day).c_encoding());
    result.hour = minuteOfDay / 60;
    result.minute = minuteOfDay % 60;
    return result;
}
