#include "timeline/filter/time_text.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <string>

namespace timeline {

namespace {

constexpr Moment millisecondsPerMinute = 60'000;
constexpr Moment longestSpan = 1000 * 366 * millisecondsPerDay;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

char lowered(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

bool isLetter(char character)
{
    return lowered(character) >= 'a' && lowered(character) <= 'z';
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

/// Takes the letters that a text begins with, in lower case.
std::string takeLetters(std::string_view& text)
{
    std::string letters;
    while (!text.empty() && isLetter(text.front())) {
        letters += lowered(text.front());
        text.remove_prefix(1);
    }
    return letters;
}

/// Takes a word off a text, where no other letter follows it.
bool takeWord(std::string_view& text, std::string_view word)
{
    std::string_view rest = text;
    if (takeLetters(rest) != word) return false;
    text = rest;
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

/// Takes a clock off a text: "15:20", with seconds and milliseconds where it has them.
std::optional<Moment> takeClock(std::string_view& text)
{
    const auto hour = takeNumber(text, 1, 2);
    if (!hour || !take(text, ':')) return std::nullopt;
    const auto minute = takeNumber(text, 2, 2);
    std::optional<int> second = 0;
    std::optional<int> millisecond = 0;
    if (take(text, ':')) second = takeNumber(text, 2, 2);
    if (take(text, '.') || take(text, ':')) millisecond = takeNumber(text, 3, 3);
    if (!minute || !second || !millisecond) return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    return ((Moment{*hour} * 60 + *minute) * 60 + *second) * 1000 + *millisecond;
}

/// Takes the unit of a span, in milliseconds; 0 for none.
Moment takeUnit(std::string_view& text)
{
    static constexpr struct {
        std::string_view word;
        Moment length;
    } units[] = {
        {"ms", 1},
        {"millisecond", 1},
        {"s", 1000},
        {"sec", 1000},
        {"second", 1000},
        {"m", millisecondsPerMinute},
        {"min", millisecondsPerMinute},
        {"minute", millisecondsPerMinute},
        {"h", 60 * millisecondsPerMinute},
        {"hr", 60 * millisecondsPerMinute},
        {"hour", 60 * millisecondsPerMinute},
        {"d", millisecondsPerDay},
        {"day", millisecondsPerDay},
        {"w", 7 * millisecondsPerDay},
        {"week", 7 * millisecondsPerDay},
    };
    const std::string named = takeLetters(text);
    for (const auto& [word, length] : units)
        if (named == word || (word.size() > 2 && named == std::string(word) + 's')) return length;
    return named == "hrs" ? 60 * millisecondsPerMinute : 0;
}

/// The span that a whole text is.
std::optional<Moment> spanOf(std::string_view text)
{
    if (text.empty()) return std::nullopt;
    Moment span = 0;
    for (bool first = true; !text.empty(); first = false) {
        if (!first) take(text, ' ');
        const auto number = takeNumber(text, 1, 9);
        if (number) take(text, ' ');
        const Moment unit = number ? takeUnit(text) : 0;
        if (unit == 0) return std::nullopt;
        span += *number * unit;
        if (span > longestSpan) return std::nullopt;
    }
    return span;
}

/// The span of "-2h" or "2 hours ago"; nothing for a text of another form.
std::optional<Moment> spanBack(std::string_view text)
{
    if (take(text, '-')) return spanOf(text);
    constexpr std::string_view ago = " ago";
    if (text.size() <= ago.size()) return std::nullopt;
    std::string_view end = text.substr(text.size() - ago.size());
    if (!take(end, ' ') || !takeWord(end, "ago")) return std::nullopt;
    return spanOf(text.substr(0, text.size() - ago.size()));
}

RunTimeError noTime(std::string_view text)
{
    return {runTimeErrors::invalidCall,
            "\"" + std::string(text) +
                "\" is no time; write one such as \"2025-02-20 15:20\", 2025-02-20T15:20:07Z, "
                "15:20, today, \"yesterday 15:20\", \"2 hours ago\" or -2h"};
}

} // namespace

TimeText::TimeText(std::string_view text)
{
    std::string_view rest = text;
    if (takeWord(rest, "now") && rest.empty()) {
        back_ = 0;
        return;
    }
    back_ = spanBack(text);
    if (back_) return;
    rest = text;
    bool named = true;
    if (takeWord(rest, "yesterday"))
        daysBack_ = 1;
    else if (!takeWord(rest, "today")) {
        day_ = takeDay(rest);
        named = day_.has_value();
    }
    if (named && rest.empty()) return;
    if (named && !take(rest, ' ') && !(day_ && (take(rest, 'T') || take(rest, 't'))))
        throw noTime(text);
    clock_ = takeClock(rest);
    if (!clock_) throw noTime(text);
    if (rest.empty()) return;
    take(rest, ' ');
    ahead_ = readOffset(rest);
    if (!ahead_) throw noTime(text);
    if (!day_) // which day it is there, is another question than which day it is here
        throw RunTimeError(
            runTimeErrors::invalidCall,
            "\"" + std::string(text) +
                "\" has an offset from universal time and no date; write both, as in "
                "2025-02-20T15:20Z");
}

Moment TimeText::wall(FrameEnd end, Moment reference) const
{
    const Moment day = day_ ? *day_ : dayOf(reference) - daysBack_ * millisecondsPerDay;
    if (clock_) return day + *clock_;
    return end == FrameEnd::since ? day : day + millisecondsPerDay - 1;
}

Moment TimeText::moment(FrameEnd end, Moment reference, ServerClock& clock) const
{
    if (needsReference() && reference == noMoment) return noMoment;
    if (!isInstant()) return wall(end, reference);
    if (!back_) return clock.local(universal(end, reference, clock));
    const Moment moment = universal(end, reference, clock);
    if (*back_ == 0) return reference;
    if (end == FrameEnd::until) return clock.local(moment);
    return clock.earliestShown(moment, clock.universal(reference));
}

Moment TimeText::universal(FrameEnd end, Moment reference, ServerClock& clock) const
{
    if (needsReference() && reference == noMoment) return noMoment;
    if (ahead_) return *day_ + *clock_ - *ahead_;
    const Moment shown = back_ ? reference : wall(end, reference);
    const auto moments = clock.whenShown(shown);
    const Moment moment = moments.empty()          ? clock.universal(shown)
                          : end == FrameEnd::since ? moments.front()
                                                   : moments.back();
    return moment - back_.value_or(0);
}

Moment readSpan(std::string_view text)
{
    const auto span = spanOf(text);
    if (!span)
        throw RunTimeError(runTimeErrors::invalidCall,
                           "\"" + std::string(text) +
                               "\" is no span of time; write one such as 90s, 15m, 2h, 1d or "
                               "\"2 hours\"");
    return *span;
}

std::optional<Moment> readOffset(std::string_view text)
{
    constexpr int mostMinutes = 14 * 60;
    if (text == "Z" || text == "z") return 0;
    if (text.empty() || (text.front() != '+' && text.front() != '-')) return std::nullopt;
    const int sign = text.front() == '-' ? -1 : 1;
    text.remove_prefix(1);
    const auto hour = takeNumber(text, 1, 2);
    if (!hour) return std::nullopt;
    int minute = 0;
    if (!text.empty()) {
        take(text, ':');
        const auto minutes = takeNumber(text, 2, 2);
        if (!minutes || *minutes > 59 || !text.empty()) return std::nullopt;
        minute = *minutes;
    }
    if (*hour * 60 + minute > mostMinutes) return std::nullopt;
    return sign * Moment{*hour * 60 + minute} * millisecondsPerMinute;
}

} // namespace timeline
