#include "timeline/sources/log_guess.h"

#include "platform/log_name_parts.h"
#include "runtime/text.h"
#include "timeline/lines/day_carry.h"
#include "timeline/lines/line_reader.h"
#include "timeline/lines/stamp.h"

#include <algorithm>
#include <array>
#include <utility>

namespace timeline {

namespace {

constexpr std::size_t mostLines = 200;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The number that some digits of a text spell; nothing where one is none.
std::optional<int> digitsAt(std::string_view text, std::size_t at, std::size_t count)
{
    if (text.size() < at + count) return std::nullopt;
    int number = 0;
    for (const char character : text.substr(at, count)) {
        if (!isDigit(character)) return std::nullopt;
        number = number * 10 + (character - '0');
    }
    return number;
}

/// The moment of "_20051008_152307", to the minute.
std::optional<Moment> momentOfDigits(std::string_view text)
{
    constexpr std::size_t length = 16;
    if (text.size() != length || text[0] != '_' || text[9] != '_') return std::nullopt;
    const auto year = digitsAt(text, 1, 4);
    const auto month = digitsAt(text, 5, 2);
    const auto day = digitsAt(text, 7, 2);
    const auto hour = digitsAt(text, 10, 2);
    const auto minute = digitsAt(text, 12, 2);
    const auto second = digitsAt(text, 14, 2);
    if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
    if (*month < 1 || *month > 12 || *day < 1 || *day > 31 || *hour > 23 || *minute > 59)
        return std::nullopt;
    const Moment midnight = dayOf(*year, *month, *day);
    if (partsOf(midnight).day != *day) return std::nullopt;
    return midnight + Moment{*hour * 60 + *minute} * 60'000;
}

/// The last such digits in a name: a copy of a log may have more behind them.
std::optional<Moment> momentInName(std::string_view name)
{
    constexpr std::size_t digits = 16;
    for (std::size_t end = name.size(); end >= digits; --end) {
        if (end < name.size() && isDigit(name[end])) continue;
        if (const auto moment = momentOfDigits(name.substr(end - digits, digits))) return moment;
    }
    return std::nullopt;
}

bool beginsWith(std::string_view text, std::string_view start)
{
    return text.size() >= start.size() && equalIgnoringCase(text.substr(0, start.size()), start);
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() &&
           equalIgnoringCase(text.substr(text.size() - end.size()), end);
}

/// Whether a line was cut by a form as one of its own: formatted ones may stand among raw ones, and
/// the other way round.
bool isOwn(LineForm form, std::string_view line, const LineFields& fields)
{
    const bool formatted = fields.source.data() > line.data() && *(fields.source.data() - 1) == '(';
    return formatted == (form == LineForm::formatted);
}

/// How many lines have which form.
struct FormCounts {
    std::array<std::size_t, 4> counts{};
    std::size_t lines = 0;

    std::size_t& of(LineForm form) { return counts[static_cast<std::size_t>(form)]; }
    bool isCommon(LineForm form) { return of(form) * 2 > most(); }
    std::size_t most() const { return *std::max_element(counts.begin(), counts.end()); }
};

} // namespace

LogName readLogName(std::string_view name)
{
    LogName facts;
    const std::string_view whole = name;
    facts.isFormattedCopy =
        lowerCase(name).find(logFileNames::formattedTag.substr(1)) != std::string::npos;
    if (endsWith(name, logFileNames::ending)) name.remove_suffix(logFileNames::ending.size());
    if (endsWith(name, logFileNames::formattedTag))
        name.remove_suffix(logFileNames::formattedTag.size());
    facts.opened = momentInName(name);
    facts.isDataFile = beginsWith(name, logFileNames::dataPrefix);
    if (!facts.isDataFile && !beginsWith(name, logFileNames::diagnosticPrefix)) return facts;
    facts.isLog = endsWith(whole, logFileNames::ending);
    const std::size_t first = name.find('_') + 1;
    facts.process = name.substr(first, name.find('_', first) - first);
    return facts;
}

/// A line of one form may have others as well, so that those that tell more come first: what is in
/// the extended form mostly is in the basic one, and all raw lines are in that of data files.
FirstLines lookAtLines(std::string_view head, const LogName& name)
{
    FirstLines first;
    first.beyondAscii = std::any_of(head.begin(), head.end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= 0x80;
    });
    constexpr LineForm forms[] = {LineForm::formatted, LineForm::extended, LineForm::basic,
                                  LineForm::data};
    FormCounts counts;
    LineFields fields;
    bool stampSeen = false;
    while (!head.empty() && counts.lines < mostLines) {
        const std::size_t end = head.find('\n');
        std::string_view line = head.substr(0, end);
        head.remove_prefix(end == std::string_view::npos ? head.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty()) continue;
        ++counts.lines;
        for (const LineForm form : forms) {
            if (!cutLine(line, form, fields) || !isOwn(form, line, fields)) continue;
            Stamp stamp;
            const bool stamped = readStamp(fields.timeStamp, stamp);
            // Many a comma-separated text has a number in its third place.
            if (form == LineForm::data && !name.isDataFile && !stamped) continue;
            ++counts.of(form);
            if (stamped && !stampSeen) first.dated = stamp.dated;
            stampSeen = stampSeen || stamped;
        }
    }
    if (name.isDataFile && counts.isCommon(LineForm::data)) {
        first.form = LineForm::data;
        return first;
    }
    for (const LineForm form : forms)
        if (!first.form && counts.isCommon(form)) first.form = form;
    return first;
}

FirstStamps readFirstStamps(const FileDescriptor& file, LineForm form)
{
    FirstStamps stamps;
    LineReader reader(file);
    DayCarry carry(Moment{0});
    FileLine line;
    LineFields fields;
    Stamp stamp;
    Moment first = noMoment;
    while (!stamps.dated && reader.next(line)) {
        if (!cutLine(line.text, form, fields) || !readStamp(fields.timeStamp, stamp)) continue;
        if (std::exchange(stamp.dated, false)) stamps.dated = stamp.day;
        carry.at(stamp);
        if (first == noMoment) first = carry.last();
    }
    if (first != noMoment)
        stamps.midnights =
            static_cast<int>((dayOf(carry.last()) - dayOf(first)) / millisecondsPerDay);
    return stamps;
}

} // namespace timeline
