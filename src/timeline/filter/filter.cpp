#include "timeline/filter/filter.h"

#include "runtime/run_time_error.h"
#include "text/code_page.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace timeline {

namespace {

constexpr std::array<std::string_view, 8> columnNames = {
    "process", "source", "component", "level", "thread", "port", "callId", "traceNumber"};

char lowerLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

/// Whether two texts are the same in any case of their ASCII letters.
bool sameText(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lowerLetter(a) == lowerLetter(b); });
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
}

bool isNumber(Column column)
{
    return column == Column::level || column == Column::traceNumber;
}

std::int32_t numberIn(const Record& record, Column column)
{
    return column == Column::level ? record.level : record.traceNumber;
}

std::string_view textIn(const Record& record, Column column)
{
    switch (column) {
    case Column::process:
        return record.process;
    case Column::source:
        return record.source;
    case Column::component:
        return record.component;
    case Column::thread:
        return record.thread;
    case Column::port:
        return record.port;
    case Column::callId:
        return record.callId;
    case Column::level:
    case Column::traceNumber:
        break;
    }
    return {};
}

/// Whether a text of a record needs no decoding. A process is the name of a file, which is UTF-8
/// whatever the code page of the lines.
bool isUtf8In(const Record& record, Column column, std::string_view text)
{
    return record.codePage == nullptr || column == Column::process || isAscii(text);
}

/// "7", "0-3" or "-99", bounds included. Raises 5 for any other text.
struct Range {
    std::int32_t first = 0;
    std::int32_t last = 0;

    explicit Range(std::string_view text, Column column)
    {
        const char* const end = text.data() + text.size();
        auto [at, error] = std::from_chars(text.data(), end, first);
        last = first;
        if (error == std::errc{} && at != end && *at == '-')
            std::tie(at, error) = std::tuple(std::from_chars(at + 1, end, last).ptr,
                                             std::from_chars(at + 1, end, last).ec);
        if (error != std::errc{} || at != end || last < first)
            throw RunTimeError(runTimeErrors::invalidCall,
                               std::string(nameOf(column)) + " \"" + std::string(text) +
                                   "\" is neither a number nor a range such as 0-3");
    }

    bool has(std::int32_t number) const { return number >= first && number <= last; }
};

} // namespace

std::string_view nameOf(Column column)
{
    return columnNames[static_cast<std::size_t>(column)];
}

std::optional<Column> columnOf(std::string_view name)
{
    if (sameText(name, "call")) return Column::callId;
    if (sameText(name, "number")) return Column::traceNumber;
    for (std::size_t at = 0; at < columnNames.size(); ++at)
        if (sameText(name, columnNames[at])) return static_cast<Column>(at);
    return std::nullopt;
}

std::string valueOf(const Record& record, Column column)
{
    if (isNumber(column)) return std::to_string(numberIn(record, column));
    const std::string_view text = textIn(record, column);
    if (isUtf8In(record, column, text)) return std::string(text);
    std::string decoded;
    record.codePage->appendUtf8(decoded, text);
    return decoded;
}

/// A choice by a column, with its values read.
struct Filter::Wanted {
    Column column;
    bool excluded;
    std::vector<std::string> texts;
    std::vector<Range> ranges;

    explicit Wanted(const ColumnChoice& choice) : column(choice.column), excluded(choice.excluded)
    {
        if (!isNumber(column))
            texts = choice.values;
        else
            for (const std::string& value : choice.values) ranges.emplace_back(value, column);
    }

    bool names(const Record& record) const
    {
        if (isNumber(column)) {
            const std::int32_t number = numberIn(record, column);
            return std::any_of(ranges.begin(), ranges.end(),
                               [&](const Range& range) { return range.has(number); });
        }
        const std::string_view text = textIn(record, column);
        if (isUtf8In(record, column, text)) return namesText(text);
        return namesText(valueOf(record, column));
    }

    bool namesText(std::string_view text) const
    {
        return std::any_of(texts.begin(), texts.end(),
                           [&](const std::string& wanted) { return sameText(wanted, text); });
    }
};

Filter::Filter() : wanted_(std::make_shared<const std::vector<Wanted>>()) {}

Filter::Filter(Choice choice) : choice_(std::move(choice))
{
    std::vector<Wanted> wanted;
    for (const ColumnChoice& column : choice_.columns) wanted.emplace_back(column);
    wanted_ = std::make_shared<const std::vector<Wanted>>(std::move(wanted));
    if (choice_.since) since_ = *choice_.since;
    if (choice_.until) until_ = *choice_.until;
    everything_ = !choice_.since && !choice_.until && !asksForFields() && !hasPatterns();
}

bool Filter::takesFields(const Record& record) const
{
    if (!takesMoment(record.moment)) return false;
    if (!asksForFields()) return true;
    if (!record.hasForm) return false;
    for (const Wanted& wanted : *wanted_)
        if (wanted.names(record) == wanted.excluded) return false;
    if (!choice_.macroTrace) return true;
    std::string decoded;
    std::string_view own = record.component;
    if (!isUtf8In(record, Column::component, own))
        own = decoded = valueOf(record, Column::component);
    const auto& traced = *choice_.macroTrace;
    return std::any_of(traced.begin(), traced.end(), [&](const ComponentLevels& component) {
        return sameText(component.component, own) &&
               std::find(component.levels.begin(), component.levels.end(), record.level) !=
                   component.levels.end();
    });
}

Filter::Search::Search(const Filter& filter, const CodePage* codePage)
{
    for (const auto& pattern : filter.choice().patterns)
        wanted_.push_back(pattern->searchIn(codePage));
    for (const auto& pattern : filter.choice().without)
        unwanted_.push_back(pattern->searchIn(codePage));
    found_.resize(wanted_.size());
    begin();
}

void Filter::Search::begin()
{
    std::fill(found_.begin(), found_.end(), false);
    missing_ = found_.size();
    spoilt_ = false;
}

void Filter::Search::look(std::string_view line)
{
    for (std::size_t at = 0; at < found_.size(); ++at)
        if (!found_[at] && wanted_[at]->occursIn(line)) {
            found_[at] = true;
            --missing_;
        }
    for (const auto& unwanted : unwanted_) spoilt_ = spoilt_ || unwanted->occursIn(line);
}

std::size_t Filter::Search::firstPlaceIn(std::string_view lines) const
{
    std::size_t first = 0;
    for (const auto& wanted : wanted_) first = std::max(first, wanted->firstPlaceIn(lines));
    return first;
}

} // namespace timeline
