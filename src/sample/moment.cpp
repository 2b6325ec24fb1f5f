#include "sample/moment.h"

#include <charconv>
#include <chrono>

namespace sample {

namespace {

std::chrono::year_month_day dateOf(Moment moment)
{
    return std::chrono::sys_days{std::chrono::days{static_cast<int>(moment / day)}};
}

void appendDate(std::string& text, Moment moment, const char* separator)
{
    const auto date = dateOf(moment);
    appendNumber(text, static_cast<int>(date.year()), 4);
    text += separator;
    appendNumber(text, static_cast<unsigned>(date.month()), 2);
    text += separator;
    appendNumber(text, static_cast<unsigned>(date.day()), 2);
}

void appendTime(std::string& text, Moment moment, const char* separator)
{
    const Moment time = moment % day;
    appendNumber(text, time / hour, 2);
    text += separator;
    appendNumber(text, time / minute % 60, 2);
    text += separator;
    appendNumber(text, time / second % 60, 2);
}

} // namespace

std::int64_t unixSeconds(Moment moment)
{
    return (moment + toUniversal) / second;
}

std::string fileStamp(Moment moment)
{
    std::string text;
    appendDate(text, moment, "");
    text += '_';
    appendTime(text, moment, "");
    return text;
}

void appendClock(std::string& text, Moment moment)
{
    appendTime(text, moment, ":");
    text += ':';
    appendNumber(text, moment % second, 3);
}

void appendDateTime(std::string& text, Moment moment)
{
    appendDate(text, moment, "-");
    text += ' ';
    appendTime(text, moment, ":");
}

void appendNumber(std::string& text, std::int64_t number, int width)
{
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    const auto length = end - digits;
    if (length < width) text.append(static_cast<std::size_t>(width - length), '0');
    text.append(digits, end);
}

} // namespace sample
