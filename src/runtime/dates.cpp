#include "runtime/dates.h"

#include "runtime/run_time_error.h"

#include <chrono>
#include <cmath>

namespace {

using std::chrono::days;
using std::chrono::seconds;
using std::chrono::sys_days;

constexpr std::chrono::year firstYear{100};
constexpr std::chrono::year lastYear{9999};

/// Days are counted from the zero date.
constexpr sys_days zeroDate = std::chrono::year{1899} / 12 / 30;
constexpr days firstDay = sys_days{firstYear / 1 / 1} - zeroDate;
constexpr days lastDay = sys_days{lastYear / 12 / 31} - zeroDate;

constexpr double secondsPerDay = seconds{days{1}}.count();

/// A day, counted from the zero date, and the whole seconds since its midnight.
struct DayAndSecond {
    days day;
    seconds second;
};

DayAndSecond dayAndSecondOf(Date date)
{
    if (!(date.days > static_cast<double>(firstDay.count()) - 1.0 &&
          date.days < static_cast<double>(lastDay.count()) + 1.0)) {
        throw RunTimeError(runTimeErrors::invalidCall);
    }
    const double whole = std::trunc(date.days);
    DayAndSecond result{days{static_cast<days::rep>(whole)},
                        seconds{std::llround(std::fabs(date.days - whole) * secondsPerDay)}};
    if (result.second == days{1}) {
        ++result.day;
        result.second = seconds::zero();
    }
    if (result.day > lastDay) throw RunTimeError(runTimeErrors::invalidCall);
    return result;
}

Date dateAt(days day, seconds second)
{
    if (day < firstDay || day > lastDay) throw RunTimeError(runTimeErrors::invalidCall);
    const double fraction = static_cast<double>(second.count()) / secondsPerDay;
    const auto whole = static_cast<double>(day.count());
    return Date{day < days::zero() ? whole - fraction : whole + fraction};
}

Date dateAtSecond(seconds second)
{
    const auto day = std::chrono::floor<days>(second);
    return dateAt(day, second - day);
}

bool isWithin(int value, int least, int most)
{
    return value >= least && value <= most;
}

} // namespace

DateParts partsOf(Date date)
{
    const DayAndSecond moment = dayAndSecondOf(date);
    const sys_days day = zeroDate + moment.day;
    const std::chrono::year_month_day inCalendar{day};
    const std::chrono::hh_mm_ss time{moment.second};
    DateParts parts;
    parts.year = static_cast<int>(inCalendar.year());
    parts.month = static_cast<int>(static_cast<unsigned>(inCalendar.month()));
    parts.day = static_cast<int>(static_cast<unsigned>(inCalendar.day()));
    parts.hour = static_cast<int>(time.hours().count());
    parts.minute = static_cast<int>(time.minutes().count());
    parts.second = static_cast<int>(time.seconds().count());
    parts.dayOfWeek = static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1;
    return parts;
}

Date dateOf(int year, int month, int day, int hour, int minute, int second)
{
    // The calendar's own types take 8 and 16 bits of what they are given.
    const bool valid = isWithin(year, int{firstYear}, int{lastYear}) && isWithin(month, 1, 12) &&
                       isWithin(day, 1, 31) && isWithin(hour, 0, 23) && isWithin(minute, 0, 59) &&
                       isWithin(second, 0, 59);
    if (!valid) throw RunTimeError(runTimeErrors::invalidCall);
    const std::chrono::year_month_day date = std::chrono::year{year} / month / day;
    if (!date.ok()) throw RunTimeError(runTimeErrors::invalidCall);
    return dateAt(sys_days{date} - zeroDate, seconds{hour * 3600 + minute * 60 + second});
}

Date dayOf(Date date)
{
    return dateAt(dayAndSecondOf(date).day, seconds::zero());
}

Date timeOf(Date date)
{
    return dateAt(days::zero(), dayAndSecondOf(date).second);
}

Date addSeconds(Date date, double seconds)
{
    constexpr auto dayCount = (lastDay - firstDay + days{1}).count();
    constexpr double longestSpan = static_cast<double>(dayCount) * secondsPerDay;
    if (!(std::fabs(seconds) <= longestSpan)) throw RunTimeError(runTimeErrors::invalidCall);
    return dateAtSecond(std::chrono::seconds{wholeSeconds(date) + std::llround(seconds)});
}

Date addDays(Date date, double days)
{
    return addSeconds(date, days * secondsPerDay);
}

Date addHours(Date date, double hours)
{
    return addSeconds(date, hours * 3600);
}

long long wholeSeconds(Date date)
{
    const DayAndSecond moment = dayAndSecondOf(date);
    return seconds{moment.day + moment.second}.count();
}
