#include "timeline/moment.h"

#include <chrono>

namespace timeline {

namespace {

void appendDigits(std::string& text, int number, int digits)
{
    char shown[4];
    for (int at = digits; at-- > 0; number /= 10) shown[at] = static_cast<char>('0' + number % 10);
    text.append(shown, static_cast<std::size_t>(digits));
}

} // namespace

Moment dayOf(int year, int month, int day)
{
    using namespace std::chrono;
    const sys_days days{std::chrono::year{year} / month / day};
    return Moment{days.time_since_epoch().count()} * millisecondsPerDay;
}

Moment dayOf(Moment moment)
{
    const Moment intoDay = moment % millisecondsPerDay;
    return moment - (intoDay < 0 ? intoDay + millisecondsPerDay : intoDay);
}

MomentParts partsOf(Moment moment)
{
    using namespace std::chrono;
    const Moment day = dayOf(moment);
    const year_month_day date{sys_days{days{day / millisecondsPerDay}}};
    const auto clock = static_cast<int>(moment - day);
    MomentParts parts;
    parts.year = static_cast<int>(date.year());
    parts.month = static_cast<int>(static_cast<unsigned>(date.month()));
    parts.day = static_cast<int>(static_cast<unsigned>(date.day()));
    parts.hour = clock / 3'600'000;
    parts.minute = clock / 60'000 % 60;
    parts.second = clock / 1000 % 60;
    parts.millisecond = clock % 1000;
    return parts;
}

void appendMomentText(std::string& text, Moment moment)
{
    if (moment == noMoment) return;
    const MomentParts parts = partsOf(moment);
    appendDigits(text, parts.year, 4);
    text += '-';
    appendDigits(text, parts.month, 2);
    text += '-';
    appendDigits(text, parts.day, 2);
    text += ' ';
    appendDigits(text, parts.hour, 2);
    text += ':';
    appendDigits(text, parts.minute, 2);
    text += ':';
    appendDigits(text, parts.second, 2);
    text += '.';
    appendDigits(text, parts.millisecond, 3);
}

std::string momentText(Moment moment)
{
    std::string text;
    appendMomentText(text, moment);
    return text;
}

} // namespace timeline
