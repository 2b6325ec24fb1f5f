#include "timeline/counts/facets.h"

#include "timeline/timeline.h"

#include <algorithm>
#include <map>

namespace timeline {

namespace {

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
}

std::string_view componentOf(const Timeline& timeline, std::size_t source, std::size_t number)
{
    return timeline.source(source).components().text(static_cast<std::uint16_t>(number));
}

} // namespace

FacetCounter::FacetCounter(const Timeline& timeline, Column column)
    : timeline_(timeline), column_(column), ofComponents_(timeline.sourceCount()),
      ofSources_(timeline.sourceCount())
{}

/// Counts by what the index keeps, which is much cheaper than the row's texts. False where it does
/// not tell.
bool FacetCounter::countByIndex(const IndexRow& row)
{
    if (column_ == Column::level && row.level != IndexRow::otherLevel) {
        ++ofLevels_[row.level - IndexRow::otherLevel];
        return true;
    }
    if (column_ == Column::component && row.component != NameTable::other) {
        auto& counts = ofComponents_[row.source()];
        if (counts.size() <= row.component) counts.resize(row.component + std::size_t{1});
        std::uint64_t& rows = counts[row.component];
        // The index has bytes: what they stand for past ASCII, a row of theirs tells.
        if (rows == 0 && !isAscii(componentOf(timeline_, row.source(), row.component)))
            return false;
        ++rows;
        return true;
    }
    if (column_ == Column::process && !timeline_.source(row.source()).facts().process.empty()) {
        ++ofSources_[row.source()];
        return true;
    }
    return false;
}

void FacetCounter::add(const IndexRow& row)
{
    if (row.belongsToRowBefore() || countByIndex(row)) return;
    timeline_.record(row, record_);
    ++ofValues_[valueOf(record_, column_)];
}

std::vector<Facet> FacetCounter::facets() const
{
    std::map<std::string, std::uint64_t> counts(ofValues_.begin(), ofValues_.end());
    for (std::size_t at = 0; at < std::size(ofLevels_); ++at)
        if (ofLevels_[at] > 0)
            counts[std::to_string(static_cast<int>(at) + int{IndexRow::otherLevel})] +=
                ofLevels_[at];
    for (std::size_t source = 0; source < ofComponents_.size(); ++source) {
        for (std::size_t number = 0; number < ofComponents_[source].size(); ++number)
            if (const std::uint64_t rows = ofComponents_[source][number]; rows > 0)
                counts[std::string(componentOf(timeline_, source, number))] += rows;
        if (ofSources_[source] > 0)
            counts[timeline_.source(source).facts().process] += ofSources_[source];
    }
    std::vector<Facet> facets;
    for (const auto& [value, rows] : counts) facets.push_back({value, rows});
    std::stable_sort(facets.begin(), facets.end(),
                     [](const Facet& one, const Facet& other) { return one.rows > other.rows; });
    return facets;
}

} // namespace timeline
