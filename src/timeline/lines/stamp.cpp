#include "timeline/lines/stamp.h"

#include "timeline/lines/byte_words.h"

#include <chrono>

namespace timeline {

namespace {

constexpr std::size_t clockWidth = 12; ///< of "15:23:07:123"
constexpr std::size_t datedWidth = 19; ///< of "2025-02-20 15:23:07"

/// Puts a digit behind a number; whatever is none spoils it for good.
void takeDigit(unsigned& number, char character, bool& sound)
{
    const auto digit = static_cast<unsigned char>(character - '0');
    sound &= digit < 10;
    number = number * 10 + digit;
}

/// The milliseconds of "15:23:07"; -1 for a time that is none.
std::int32_t clockOf(const char* text)
{
    const std::uint64_t digits = bytes::clockDigits(text);
    if (digits == bytes::noClock) return -1;
    const std::int32_t hour = bytes::pairOf(digits, 0);
    const std::int32_t minute = bytes::pairOf(digits, 3);
    const std::int32_t second = bytes::pairOf(digits, 6);
    if (hour > 23 || minute > 59 || second > 59) return -1;
    return (hour * 3600 + minute * 60 + second) * 1000;
}

bool readClock(const char* text, Stamp& stamp)
{
    const std::int32_t clock = clockOf(text);
    bool sound = clock >= 0 && text[8] == ':';
    unsigned milliseconds = 0;
    for (const int at : {9, 10, 11}) takeDigit(milliseconds, text[at], sound);
    if (!sound) return false;
    stamp.dated = false;
    stamp.clock = clock + static_cast<std::int32_t>(milliseconds);
    return true;
}

bool readDated(const char* text, Stamp& stamp)
{
    bool sound = text[4] == '-' && text[7] == '-' && text[10] == ' ';
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    for (const int at : {0, 1, 2, 3}) takeDigit(year, text[at], sound);
    for (const int at : {5, 6}) takeDigit(month, text[at], sound);
    for (const int at : {8, 9}) takeDigit(day, text[at], sound);
    stamp.clock = clockOf(text + 11);
    if (!sound || stamp.clock < 0) return false;
    const std::chrono::year_month_day date{std::chrono::year{static_cast<int>(year)},
                                           std::chrono::month{month}, std::chrono::day{day}};
    stamp.dated = date.ok();
    if (stamp.dated)
        stamp.day = dayOf(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day));
    return true;
}

} // namespace

bool readStamp(std::string_view line, Stamp& stamp)
{
    if (line.size() < clockWidth) return false;
    if (line[2] == ':') return readClock(line.data(), stamp);
    return line.size() >= datedWidth && readDated(line.data(), stamp);
}

} // namespace timeline
