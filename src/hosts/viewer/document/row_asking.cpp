#include "hosts/viewer/document/row_asking.h"

#include "hosts/viewer/document/row_line.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <utility>

namespace viewer {

namespace {

using timeline::Choice;
using timeline::Column;
using timeline::Filter;
using timeline::IndexRow;
using timeline::NameTable;
using timeline::Record;
using timeline::Timeline;

constexpr std::size_t linesAskedAtOnce = 64; ///< between two looks at the clock
constexpr std::size_t bytesOfLine = 1024;    ///< that take as long as a line, searched
constexpr std::size_t mostBuckets = 400;

enum Facet : std::size_t { processFacet, componentFacet, sourceFacet, levelFacet };

/// What a choice asks of each facet's column, as a filter of its own.
std::array<Filter, facetColumns.size()> facetFiltersOf(Choice choice)
{
    std::array<Choice, facetColumns.size()> parts;
    for (timeline::ColumnChoice& wanted : choice.columns)
        if (const auto facet = std::find(facetColumns.begin(), facetColumns.end(), wanted.column);
            facet != facetColumns.end())
            parts[static_cast<std::size_t>(facet - facetColumns.begin())].columns.push_back(
                std::move(wanted));
    std::array<Filter, facetColumns.size()> filters;
    for (std::size_t facet = 0; facet < parts.size(); ++facet)
        filters[facet] = Filter(std::move(parts[facet]));
    return filters;
}

Filter restOf(Choice choice)
{
    std::erase_if(choice.columns, [](const timeline::ColumnChoice& wanted) {
        return std::find(facetColumns.begin(), facetColumns.end(), wanted.column) !=
               facetColumns.end();
    });
    choice.macroTrace.reset();
    return Filter(std::move(choice));
}

Filter macroTraceOf(const Choice& choice)
{
    Choice part;
    part.macroTrace = choice.macroTrace;
    return Filter(std::move(part));
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
}

} // namespace

/// The values of a facet's column that were met, with what the choice says of each.
class RowAsking::Values {
public:
    Values(Column column, Filter filter) : column_(column), filter_(std::move(filter)) {}

    bool asks() const { return !filter_.letsAllThrough(); }

    Value numberOf(const std::string& text)
    {
        const auto [known, isNew] = numbers_.try_emplace(text, static_cast<Value>(rows_.size()));
        if (!isNew) return known->second;
        rows_.push_back(0);
        fits_.push_back(fits(text));
        return known->second;
    }

    bool fits(Value value) const { return fits_[value]; }

    void count(Value value) { ++rows_[value]; }
    void uncount(Value value) { --rows_[value]; }

    const std::string* textOf(Value value) const
    {
        for (const auto& [text, number] : numbers_)
            if (number == value) return &text;
        return nullptr;
    }

    std::vector<timeline::Facet> facets() const
    {
        std::vector<timeline::Facet> facets;
        for (const auto& [text, number] : numbers_)
            if (rows_[number] > 0) facets.push_back({text, rows_[number]});
        std::stable_sort(facets.begin(), facets.end(),
                         [](const auto& one, const auto& other) { return one.rows > other.rows; });
        return facets;
    }

private:
    bool fits(const std::string& text) const
    {
        Record record;
        record.hasForm = true;
        if (column_ == Column::process) record.process = text;
        if (column_ == Column::component) record.component = text;
        if (column_ == Column::source) record.source = text;
        if (column_ == Column::level) record.level = static_cast<std::int16_t>(std::stoi(text));
        return filter_.takesFields(record);
    }

    Column column_;
    Filter filter_;
    std::map<std::string, Value> numbers_;
    std::vector<std::uint64_t> rows_;
    std::vector<bool> fits_;
};

RowAsking::RowAsking(const Timeline& timeline, std::shared_ptr<const RowOrder> order, Choice choice,
                     const RowNames& names, bool namesKnown)
    : order_(std::move(order)), names_(names), namesKnown_(namesKnown),
      walk_(order_->from(timeline, 0)), rest_(restOf(choice)), macroTrace_(macroTraceOf(choice)),
      components_(timeline.sourceCount())
{
    auto filters = facetFiltersOf(std::move(choice));
    for (std::size_t facet = 0; facet < facets; ++facet)
        values_[facet] = std::make_unique<Values>(facetColumns[facet], std::move(filters[facet]));
    for (auto* known : {&levels_, &processes_, &sources_}) known->fill(none);
    coverTimes(timeline);
}

RowAsking::~RowAsking() = default;

bool RowAsking::ask(const Timeline& timeline, std::chrono::steady_clock::time_point until)
{
    std::size_t lines = 0;
    while (const IndexRow* next = walk_.peek()) {
        const bool begins = row_.lines + row_.known == 0;
        if (passedFrom_ || (begins && before_ && before_->has(*next))) {
            passLine();
            ++lines;
        } else {
            lines += askLine(timeline);
        }
        if (lines < linesAskedAtOnce) continue;
        lines = 0;
        if (std::chrono::steady_clock::now() >= until) return walk_.peek() == nullptr;
    }
    return true;
}

/// Has the histogram reach over the times of all rows that the choice lets through.
void RowAsking::coverTimes(const Timeline& timeline)
{
    const auto span = order_->span(timeline);
    if (!span) return;
    const Choice& frame = rest_.choice();
    const timeline::Moment first = std::max(span->first, frame.since.value_or(span->first));
    const timeline::Moment last = std::min(span->second, frame.until.value_or(span->second));
    if (histogram_)
        histogram_->cover(first, std::max(first, last), mostBuckets);
    else
        histogram_.emplace(first, std::max(first, last), mostBuckets);
}

void RowAsking::growTo(const Timeline& timeline, std::shared_ptr<const RowOrder> order)
{
    before_ = std::exchange(order_, std::move(order));
    const RowOrder::Growth& growth = order_->growth();
    same_ = growth.same;
    takenBefore_ = taken_;
    taken_.truncate(growth.sameWhole);
    nextBefore_ = growth.sameWhole;
    walk_ = order_->from(timeline, growth.sameWhole);
    components_.resize(timeline.sourceCount());
    coverTimes(timeline);
}

/// Whether the next line belongs to the row of the last one.
bool RowAsking::goesOn(std::uint32_t source) const
{
    const IndexRow* next = walk_.peek();
    return next != nullptr && next->belongsToRowBefore() && next->source() == source;
}

/// Goes over the next line of a row that was asked before the order grew. The row is taken as it
/// was, but for one with a new line, which is asked from its first line on.
void RowAsking::passLine()
{
    if (!passedFrom_) passedFrom_ = walk_;
    if (!before_->has(*walk_.peek())) {
        walk_ = *std::exchange(passedFrom_, std::nullopt);
        row_.known = std::exchange(passed_, 0);
        return;
    }
    const auto source = walk_.next()->source();
    ++passed_;
    if (goesOn(source)) return;
    taken_.append(takenBefore_.has(nextBefore_), passed_);
    nextBefore_ += std::exchange(passed_, 0);
    passedFrom_.reset();
}

/// Asks the next line, and ends its row with the last one of that. Gives how long it took, in lines
/// of the usual length.
std::size_t RowAsking::askLine(const Timeline& timeline)
{
    const IndexRow line = *walk_.next();
    recorded_ = false;
    if (row_.lines++ == 0) beginRow(timeline, line);
    const std::size_t took = row_.searched ? searchLine(timeline, line) : 1;
    if (row_.lines == row_.known) row_.wasTaken = takes(Counting::remove);
    if (!goesOn(line.source())) endRow();
    return took;
}

void RowAsking::beginRow(const Timeline& timeline, const IndexRow& first)
{
    position_ = walk_.position();
    row_.first = first;
    row_.values.fill(none);
    row_.against = against(timeline, first, row_.values);
    // What has one thing of a facet against it is counted for that facet, if nothing else is.
    const bool counts = (row_.against & (row_.against - 1)) == 0 && (row_.against & all) == 0;
    row_.searched = counts && rest_.hasPatterns();
}

/// Looks for the patterns in a line of the row.
std::size_t RowAsking::searchLine(const Timeline& timeline, const IndexRow& line)
{
    const bool found = row_.search != nullptr && row_.search->fits();
    if (found && rest_.choice().without.empty()) return 1; // no line makes it unfit
    if (!reads(timeline, line)) return 1;
    if (row_.search == nullptr) {
        row_.search =
            &searches_.try_emplace(record_.codePage, rest_, record_.codePage).first->second;
        row_.search->begin();
    }
    std::size_t bytes = 0;
    anyLineOf(record_, room_, [&](std::string_view text) {
        row_.search->look(text);
        bytes += text.size();
        return false;
    });
    return 1 + bytes / bytesOfLine;
}

/// What speaks against the row by the lines of it that were searched.
RowAsking::Against RowAsking::againstTexts() const
{
    if (!row_.searched) return 0;
    return row_.search != nullptr && row_.search->fits() ? 0 : all;
}

void RowAsking::endRow()
{
    const bool takesIt = takes(Counting::add);
    if (row_.known > 0 && takesIt != row_.wasTaken) same_ = std::min(same_, taken_.size());
    taken_.append(takesIt, row_.lines);
    nextBefore_ += row_.known;
    row_ = Row();
}

/// Whether the choice takes the row with the lines of it that were asked, which is counted, or
/// taken back.
bool RowAsking::takes(Counting counting)
{
    const Against against = row_.against | againstTexts();
    if ((against & all) != 0) return false;
    for (std::size_t facet = 0; facet < facets; ++facet) {
        const Value value = row_.values[facet];
        if (value == none || (against & ~(1U << facet)) != 0) continue;
        if (counting == Counting::add)
            values_[facet]->count(value);
        else
            values_[facet]->uncount(value);
    }
    if (against != 0) return false;
    const IndexRow& row = row_.first;
    if (histogram_ && counting == Counting::add) histogram_->add(row.moment, row.level);
    if (histogram_ && counting == Counting::remove) histogram_->remove(row.moment, row.level);
    return true;
}

RowAsking::Against RowAsking::against(const Timeline& timeline, const IndexRow& row,
                                      std::array<Value, facets>& values)
{
    if (!rest_.takesMoment(row.moment)) return all;
    // A line without a form has no values; the index does not tell it from a row without a
    // component.
    if (row.component == 0 && reads(timeline, row) && !record_.hasForm) {
        Against against = rest_.takesFields(record_) && macroTrace_.takesFields(record_) ? 0 : all;
        for (std::size_t facet = 0; facet < facets; ++facet)
            if (values_[facet]->asks()) against |= 1U << facet;
        return against;
    }
    Against against = 0;
    for (std::size_t facet = 0; facet < facets; ++facet) {
        const bool byName = facet == processFacet || facet == sourceFacet;
        const bool asks = values_[facet]->asks();
        if (byName && !namesKnown_ && !asks) continue;
        values[facet] = value(timeline, row, facet);
        if (values[facet] == none || (asks && !values_[facet]->fits(values[facet])))
            against |= 1U << facet;
    }
    if (rest_.asksForFields() && (!reads(timeline, row) || !rest_.takesFields(record_)))
        against |= all;
    if (!macroTrace_.letsAllThrough() && values[componentFacet] != none) {
        const bool indexed = row.level != IndexRow::otherLevel;
        if (!indexed && !reads(timeline, row)) return against | all;
        if (!fitsMacroTrace(values[componentFacet], indexed ? row.level : record_.level))
            against |= all;
    }
    return against;
}

/// Whether the texts of the row could be read; they are read once.
bool RowAsking::reads(const Timeline& timeline, const IndexRow& row)
{
    if (recorded_) return readable_;
    recorded_ = true;
    try {
        timeline.record(row, record_);
        readable_ = true;
    } catch (const RunTimeError&) {
        readable_ = false; // the row itself tells why, wherever it is shown
    }
    return readable_;
}

/// Where the number of a row's value is noted, by what the index or the names tell; null where they
/// do not.
RowAsking::Value* RowAsking::knownValue(const IndexRow& row, std::size_t facet)
{
    switch (facet) {
    case processFacet: {
        const std::uint8_t name = names_.process(row.source(), position_);
        return name == RowNames::unknown ? nullptr : &processes_[name];
    }
    case sourceFacet: {
        const std::uint8_t name = names_.source(row.source(), position_);
        return name == RowNames::unknown ? nullptr : &sources_[name];
    }
    case componentFacet: {
        if (row.component == NameTable::other) return nullptr;
        auto& known = components_[row.source()];
        if (known.size() <= row.component) known.resize(row.component + std::size_t{1}, none);
        return &known[row.component];
    }
    default:
        if (row.level == IndexRow::otherLevel) return nullptr;
        return &levels_[static_cast<std::size_t>(row.level - IndexRow::otherLevel)];
    }
}

RowAsking::Value RowAsking::value(const Timeline& timeline, const IndexRow& row, std::size_t facet)
{
    Value* known = knownValue(row, facet);
    if (known != nullptr && *known != none) return *known;
    std::string text;
    const std::string_view component =
        timeline.source(row.source()).components().text(row.component);
    // The index has bytes of the log: what they stand for past ASCII, a row of theirs tells.
    if (known != nullptr && facet == processFacet)
        text = names_.processText(names_.process(row.source(), position_));
    else if (known != nullptr && facet == sourceFacet)
        text = names_.sourceText(names_.source(row.source(), position_));
    else if (known != nullptr && facet == levelFacet)
        text = std::to_string(row.level);
    else if (known != nullptr && isAscii(component))
        text = component;
    else if (reads(timeline, row))
        text = valueOf(record_, facetColumns[facet]);
    else
        return none;
    const Value number = values_[facet]->numberOf(text);
    if (known != nullptr) *known = number;
    return number;
}

bool RowAsking::fitsMacroTrace(Value component, std::int16_t level)
{
    const std::uint64_t key = (std::uint64_t{component} << 16) | static_cast<std::uint16_t>(level);
    const auto [known, isNew] = traced_.try_emplace(key, false);
    if (isNew) {
        Record record;
        record.hasForm = true;
        record.level = level;
        const std::string* text = values_[componentFacet]->textOf(component);
        if (text != nullptr) record.component = *text;
        known->second = macroTrace_.takesFields(record);
    }
    return known->second;
}

RowCounts RowAsking::counts() const
{
    RowCounts counts;
    for (std::size_t facet = 0; facet < facets; ++facet) {
        const bool byName = facet == processFacet || facet == sourceFacet;
        if (byName && !namesKnown_) continue;
        counts.facets[facet] = values_[facet]->facets();
    }
    counts.histogram = histogram_;
    return counts;
}

} // namespace viewer
