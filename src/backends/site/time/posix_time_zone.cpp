#include "backends/site/time/posix_time_zone.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr std::int64_t secondsADay = 86400;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Takes a TZ text apart, front to back.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }

    bool take(char wanted)
    {
        if (rest_.empty() || rest_.front() != wanted) return false;
        rest_.remove_prefix(1);
        return true;
    }

    void expect(char wanted)
    {
        if (!take(wanted)) fail();
    }

    std::string name()
    {
        const bool quoted = take('<');
        std::size_t length = 0;
        while (length < rest_.size() && isNameCharacter(rest_[length], quoted)) ++length;
        std::string result(rest_.substr(0, length));
        rest_.remove_prefix(length);
        if (length < 3 || length > 31) fail();
        if (quoted) expect('>');
        return result;
    }

    int number(int lowest, int highest)
    {
        std::size_t digits = 0;
        int value = 0;
        for (; digits < rest_.size() && isDigit(rest_[digits]) && digits < 4; ++digits)
            value = value * 10 + (rest_[digits] - '0');
        if (digits == 0 || value < lowest || value > highest) fail();
        rest_.remove_prefix(digits);
        return value;
    }

    /// `[+|-]hh[:mm[:ss]]` in seconds.
    int time(int mostHours)
    {
        const bool below = take('-');
        if (!below) take('+');
        int seconds = number(0, mostHours) * 3600;
        if (take(':')) {
            seconds += number(0, 59) * 60;
            if (take(':')) seconds += number(0, 59);
        }
        return below ? -seconds : seconds;
    }

    TimeZoneChange change()
    {
        TimeZoneChange result;
        if (take('M')) {
            result.month = number(1, 12);
            expect('.');
            result.week = number(1, 5);
            expect('.');
            result.day = number(0, 6);
        } else if (take('J')) {
            result.kind = TimeZoneChange::Day::withoutLeap;
            result.day = number(1, 365);
        } else {
            result.kind = TimeZoneChange::Day::zeroBased;
            result.day = number(0, 365);
        }
        if (take('/')) result.seconds = time(167);
        return result;
    }

    [[noreturn]] static void fail() { throw RunTimeError(runTimeErrors::invalidCall); }

private:
    static bool isNameCharacter(char c, bool quoted)
    {
        return isLetter(c) || (quoted && (isDigit(c) || c == '+' || c == '-'));
    }

    std::string_view rest_;
};

int yearOf(std::int64_t seconds)
{
    using namespace std::chrono;
    const year_month_day date(floor<days>(sys_seconds(std::chrono::seconds(seconds))));
    return static_cast<int>(date.year());
}

std::int64_t daysUntil(std::chrono::year_month_day date)
{
    return std::chrono::sys_days(date).time_since_epoch().count();
}

/// The last moment of a change that is not after `universal`. `offset` is the one in force before
/// the change. A rule's time may carry it into the year beside its own, so those are looked at too.
std::int64_t lastChange(const TimeZoneChange& change, int offset, std::int64_t universal)
{
    for (int year = yearOf(universal) + 2;; --year) {
        const auto moment = dayOfChange(change, year) * secondsADay + change.seconds - offset;
        if (moment <= universal) return moment;
    }
}

/// Moments that the calendar here can hold: years 100 to 9999.
std::int64_t withinCalendar(std::int64_t seconds)
{
    return std::clamp<std::int64_t>(seconds, -59'011'459'200, 253'402'300'799);
}

} // namespace

PosixTimeZone parsePosixTimeZone(std::string_view text)
{
    Scanner scan(text);
    PosixTimeZone zone;
    zone.standardName = scan.name();
    zone.standardOffset = -scan.time(24);
    if (scan.atEnd()) return zone;

    zone.hasDaylight = true;
    zone.daylightName = scan.name();
    zone.daylightOffset = zone.standardOffset + 3600;
    zone.daylightStart = {TimeZoneChange::Day::weekOfMonth, 3, 2, 0};
    zone.daylightEnd = {TimeZoneChange::Day::weekOfMonth, 11, 1, 0};
    if (scan.atEnd()) return zone;

    if (!scan.take(',')) {
        zone.daylightOffset = -scan.time(24);
        if (scan.atEnd()) return zone;
        scan.expect(',');
    }
    zone.daylightStart = scan.change();
    scan.expect(',');
    zone.daylightEnd = scan.change();
    if (!scan.atEnd()) Scanner::fail();
    return zone;
}

std::int64_t dayOfChange(const TimeZoneChange& change, int year)
{
    using namespace std::chrono;
    const std::chrono::year theYear{year};
    const auto newYear = daysUntil(theYear / 1 / 1);
    switch (change.kind) {
    case TimeZoneChange::Day::withoutLeap:
        return newYear + change.day - 1 + (theYear.is_leap() && change.day >= 60 ? 1 : 0);
    case TimeZoneChange::Day::zeroBased:
        return newYear + change.day;
    case TimeZoneChange::Day::weekOfMonth:
        break;
    }
    const weekday wanted{static_cast<unsigned>(change.day)};
    const auto theMonth = theYear / static_cast<int>(change.month);
    if (change.week == 5) return sys_days(theMonth / wanted[last]).time_since_epoch().count();
    return sys_days(theMonth / wanted[static_cast<unsigned>(change.week)])
        .time_since_epoch()
        .count();
}

bool isDaylightTime(const PosixTimeZone& zone, std::int64_t universal)
{
    if (!zone.hasDaylight) return false;
    universal = withinCalendar(universal);
    return lastChange(zone.daylightStart, zone.standardOffset, universal) >=
           lastChange(zone.daylightEnd, zone.daylightOffset, universal);
}

int offsetAt(const PosixTimeZone& zone, std::int64_t universal)
{
    return isDaylightTime(zone, universal) ? zone.daylightOffset : zone.standardOffset;
}

Date localDate(const PosixTimeZone& zone, std::int64_t universal)
{
    universal = withinCalendar(universal);
    const auto local = withinCalendar(universal + offsetAt(zone, universal));
    return addSeconds(dateOf(1970, 1, 1), static_cast<double>(local));
}
