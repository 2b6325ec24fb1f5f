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

constexpr std::size_t rowsAskedAtOnce = 64; ///< between two looks at the clock
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
    for (std::size_t rows = 1; walk_.peek() != nullptr; ++rows) {
        askRow(timeline);
        if (rows % rowsAskedAtOnce == 0 && std::chrono::steady_clock::now() >= until) return false;
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

/// Asks the next row, with the lines that belong to it. One that was asked before is taken as it
/// was, if it has no new line.
void RowAsking::askRow(const Timeline& timeline)
{
    lines_.clear();
    const IndexRow* row = walk_.next();
    position_ = walk_.position();
    lines_.push_back(row);
    for (const IndexRow* line = walk_.peek();
         line != nullptr && line->belongsToRowBefore() && line->source() == row->source();
         line = walk_.peek())
        lines_.push_back(walk_.next());
    std::size_t known = 0;
    if (before_)
        while (known < lines_.size() && before_->has(*lines_[known])) ++known;
    if (known == 0) return taken_.append(takes(timeline, Counting::add), lines_.size());
    if (known < lines_.size()) return askAgain(timeline, known);
    taken_.append(takenBefore_.has(nextBefore_), known);
    nextBefore_ += known;
}

/// Asks a row whose first lines were asked before.
void RowAsking::askAgain(const Timeline& timeline, std::size_t known)
{
    std::vector<const IndexRow*> whole = lines_;
    lines_.resize(known);
    const bool tookIt = takes(timeline, Counting::remove);
    lines_ = std::move(whole);
    const bool takesIt = takes(timeline, Counting::add);
    if (takesIt != tookIt) same_ = std::min(same_, taken_.size());
    taken_.append(takesIt, lines_.size());
    nextBefore_ += known;
}

/// Whether the choice takes the row with its lines, which are counted, or taken back.
bool RowAsking::takes(const Timeline& timeline, Counting counting)
{
    const IndexRow& row = *lines_.front();
    recorded_ = false;
    std::array<Value, facets> values;
    values.fill(none);
    Against against = this->against(timeline, row, values);
    // What has one thing of a facet against it is counted for that facet, if nothing else is.
    const bool counts = (against & (against - 1)) == 0 && (against & all) == 0;
    if (counts && rest_.hasPatterns()) against |= againstTexts(timeline);
    if ((against & all) != 0) return false;
    for (std::size_t facet = 0; facet < facets; ++facet) {
        if (values[facet] == none || (against & ~(1U << facet)) != 0) continue;
        if (counting == Counting::add)
            values_[facet]->count(values[facet]);
        else
            values_[facet]->uncount(values[facet]);
    }
    if (against != 0) return false;
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

/// Looks for the patterns in all lines of the row.
RowAsking::Against RowAsking::againstTexts(const Timeline& timeline)
{
    Filter::Search* search = nullptr;
    for (const IndexRow* line : lines_) {
        if (line != lines_.front()) recorded_ = false;
        if (!reads(timeline, *line)) continue;
        if (search == nullptr) {
            search =
                &searches_.try_emplace(record_.codePage, rest_, record_.codePage).first->second;
            search->begin();
        }
        anyLineOf(record_, room_, [&](std::string_view text) {
            search->look(text);
            return false;
        });
    }
    return search != nullptr && search->fits() ? 0 : all;
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
