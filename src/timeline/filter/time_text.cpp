#include "timeline/filter/time_text.h"

#include "runtime/run_time_error.h"

#include <charconv>
#include <chrono>
#include <string>

namespace timeline {

namespace {

constexpr Moment longestSpan = 1000 * 366 * millisecondsPerDay;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Takes a number of some digits off a text.
std::optional<int> takeNumber(std::string_view& text, std::size_t fewest, std::size_t most)
{
    std::size_t digits = 0;
    while (digits < most && digits < text.size() && isDigit(text[digits])) ++digits;
    if (digits < fewest) return std::nullopt;
    int number = 0;
    std::from_chars(text.data(), text.data() + digits, number);
    text.remove_prefix(digits);
    return number;
}

bool take(std::string_view& text, char character)
{
    if (text.empty() || text.front() != character) return false;
    text.remove_prefix(1);
    return true;
}

bool takeWord(std::string_view& text, std::string_view word)
{
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    return true;
}

/// Takes "2025-02-20" off a text, which stays as it is where it begins with no day.
std::optional<Moment> takeDay(std::string_view& text)
{
    std::string_view rest = text;
    const auto year = takeNumber(rest, 4, 4);
    if (!year || !take(rest, '-')) return std::nullopt;
    const auto month = takeNumber(rest, 1, 2);
    if (!month || !take(rest, '-')) return std::nullopt;
    const auto day = takeNumber(rest, 1, 2);
    if (!day) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{*year},
                                           std::chrono::month{static_cast<unsigned>(*month)},
                                           std::chrono::day{static_cast<unsigned>(*day)}};
    if (!date.ok()) return std::nullopt;
    text = rest;
    return dayOf(*year, *month, *day);
}

/// The clock that a whole text is: "15:20", with seconds and milliseconds where it has them.
std::optional<Moment> readClock(std::string_view text)
{
    const auto hour = takeNumber(text, 1, 2);
    if (!hour || !take(text, ':')) return std::nullopt;
    const auto minute = takeNumber(text, 2, 2);
    std::optional<int> second = 0;
    std::optional<int> millisecond = 0;
    if (take(text, ':')) second = takeNumber(text, 2, 2);
    if (take(text, '.') || take(text, ':')) millisecond = takeNumber(text, 3, 3);
    if (!minute || !second || !millisecond || !text.empty()) return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    return ((Moment{*hour} * 60 + *minute) * 60 + *second) * 1000 + *millisecond;
}

/// Takes the unit of a span, in milliseconds; 0 for none.
Moment takeUnit(std::string_view& text)
{
    if (takeWord(text, "ms")) return 1;
    if (take(text, 's')) return 1000;
    if (take(text, 'm')) return 60'000;
    if (take(text, 'h')) return 3'600'000;
    if (take(text, 'd')) return millisecondsPerDay;
    if (take(text, 'w')) return 7 * millisecondsPerDay;
    return 0;
}

/// The span that a whole text is.
std::optional<Moment> spanOf(std::string_view text)
{
    if (text.empty()) return std::nullopt;
    Moment span = 0;
    while (!text.empty()) {
        const auto number = takeNumber(text, 1, 9);
        const Moment unit = number ? takeUnit(text) : 0;
        if (unit == 0) return std::nullopt;
        span += *number * unit;
        if (span > longestSpan) return std::nullopt;
    }
    return span;
}

RunTimeError noTime(std::string_view text)
{
    return {runTimeErrors::invalidCall,
            "\"" + std::string(text) +
                "\" is no time; write one such as \"2025-02-20 15:20\", 15:20, today or -2h"};
}

} // namespace

TimeText::TimeText(std::string_view text)
{
    std::string_view rest = text;
    if (take(rest, '-')) {
        back_ = spanOf(rest);
        if (!back_) throw noTime(text);
        return;
    }
    bool named = true;
    if (takeWord(rest, "yesterday"))
        daysBack_ = 1;
    else if (!takeWord(rest, "today")) {
        day_ = takeDay(rest);
        named = day_.has_value();
    }
    if (named && rest.empty()) return;
    if (named && !take(rest, ' ') && !(day_ && take(rest, 'T'))) throw noTime(text);
    clock_ = readClock(rest);
    if (!clock_) throw noTime(text);
}

Moment TimeText::moment(FrameEnd end, Moment lastRow) const
{
    if (needsLastRow() && lastRow == noMoment) return noMoment;
    if (back_) return lastRow - *back_;
    const Moment day = day_ ? *day_ : dayOf(lastRow) - daysBack_ * millisecondsPerDay;
    if (clock_) return day + *clock_;
    return end == FrameEnd::since ? day : day + millisecondsPerDay - 1;
}

Moment readSpan(std::string_view text)
{
    const auto span = spanOf(text);
    if (!span)
        throw RunTimeError(runTimeErrors::invalidCall,
                           "\"" + std::string(text) +
                               "\" is no span of time; write one such as 90s, 15m, 2h or 1d");
    return *span;
}

} // namespace timeline
