#include "runtime/dates.h"

#include "runtime/run_time_error.h"

#include <array>
#include <cmath>

namespace {

constexpr long long secondsPerDay = 86400;
constexpr long long firstDay = -657434; ///< 1 January 100
constexpr long long lastDay = 2958465;  ///< 31 December 9999

constexpr int firstYear = 100;
constexpr int lastYear = 9999;

/// A day, counted from 30 December 1899, and the whole seconds since its midnight.
struct DayAndSecond {
    long long day;
    long long second;
};

DayAndSecond dayAndSecondOf(Date date)
{
    if (!(date.days > firstDay - 1.0 && date.days < lastDay + 1.0)) {
        throw RunTimeError(runTimeErrors::invalidCall);
    }
    DayAndSecond result{};
    const double whole = std::trunc(date.days);
    result.day = static_cast<long long>(whole);
    result.second = std::llround(std::fabs(date.days - whole) * double{secondsPerDay});
    if (result.second == secondsPerDay) {
        ++result.day;
        result.second = 0;
    }
    if (result.day > lastDay) throw RunTimeError(runTimeErrors::invalidCall);
    return result;
}

Date dateAt(long long day, long long second)
{
    if (day < firstDay || day > lastDay) throw RunTimeError(runTimeErrors::invalidCall);
    const double fraction = static_cast<double>(second) / double{secondsPerDay};
    const auto whole = static_cast<double>(day);
    return Date{day < 0 ? whole - fraction : whole + fraction};
}

Date dateAtSecond(long long second)
{
    long long day = second / secondsPerDay;
    long long rest = second % secondsPerDay;
    if (rest < 0) {
        --day;
        rest += secondsPerDay;
    }
    return dateAt(day, rest);
}

bool isLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month)
{
    constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

// Years are counted from 1 March, so that the leap day is a year's last day and the months before
// any one have the same length in every year. An era is 400 years.
constexpr int daysPerEra = 146097;
constexpr int eraStartToZeroDate = 693899; ///< 1 March 0 to 30 December 1899

long long dayNumber(int year, int month, int day)
{
    const int marchYear = month > 2 ? year : year - 1;
    const int era = marchYear / 400;
    const int yearOfEra = marchYear % 400;
    const int monthFromMarch = (month + 9) % 12;
    const int dayOfYear = (153 * monthFromMarch + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * daysPerEra + dayOfEra - eraStartToZeroDate;
}

void setCalendarDay(DateParts& parts, long long day)
{
    const long long fromEraStart = day + eraStartToZeroDate;
    const auto era = static_cast<int>(fromEraStart / daysPerEra);
    const auto dayOfEra = static_cast<int>(fromEraStart % daysPerEra);
    const int yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / (daysPerEra - 1)) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int monthFromMarch = (5 * dayOfYear + 2) / 153;
    parts.day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    parts.month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    parts.year = era * 400 + yearOfEra + (parts.month <= 2 ? 1 : 0);
    parts.dayOfWeek = static_cast<int>((fromEraStart + 3) % 7) + 1;
}

bool isWithin(int value, int least, int most)
{
    return value >= least && value <= most;
}

} // namespace

DateParts partsOf(Date date)
{
    const DayAndSecond moment = dayAndSecondOf(date);
    const auto second = static_cast<int>(moment.second);
    DateParts parts;
    setCalendarDay(parts, moment.day);
    parts.hour = second / 3600;
    parts.minute = second / 60 % 60;
    parts.second = second % 60;
    return parts;
}

Date dateOf(int year, int month, int day, int hour, int minute, int second)
{
    const bool valid = isWithin(year, firstYear, lastYear) && isWithin(month, 1, 12) &&
                       isWithin(day, 1, daysInMonth(year, month)) && isWithin(hour, 0, 23) &&
                       isWithin(minute, 0, 59) && isWithin(second, 0, 59);
    if (!valid) throw RunTimeError(runTimeErrors::invalidCall);
    return dateAt(dayNumber(year, month, day), hour * 3600LL + minute * 60LL + second);
}

Date dayOf(Date date)
{
    return dateAt(dayAndSecondOf(date).day, 0);
}

Date timeOf(Date date)
{
    return dateAt(0, dayAndSecondOf(date).second);
}

Date addSeconds(Date date, double seconds)
{
    constexpr double longestSpan = double{lastDay - firstDay + 1} * double{secondsPerDay};
    if (!(std::fabs(seconds) <= longestSpan)) throw RunTimeError(runTimeErrors::invalidCall);
    return dateAtSecond(wholeSeconds(date) + std::llround(seconds));
}

Date addDays(Date date, double days)
{
    return addSeconds(date, days * double{secondsPerDay});
}

Date addHours(Date date, double hours)
{
    return addSeconds(date, hours * 3600);
}

long long wholeSeconds(Date date)
{
    const DayAndSecond moment = dayAndSecondOf(date);
    return moment.day * secondsPerDay + moment.second;
}
