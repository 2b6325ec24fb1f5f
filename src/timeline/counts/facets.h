#pragma once

#include "timeline/filter/filter.h"
#include "timeline/record.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace timeline {

class Timeline;

/// A value of a column, and how many rows have it.
struct Facet {
    std::string value; ///< UTF-8, numbers in decimal form
    std::uint64_t rows = 0;
};

/// Counts the values that rows of a timeline have in one column. A line without a form has no
/// values, and is not counted.
class FacetCounter {
public:
    /// `timeline` outlives it.
    FacetCounter(const Timeline& timeline, Column column);

    /// Counts a row. Raises what reading its texts raises, where the index does not tell.
    void add(const IndexRow& row);

    /// The values, those of most rows first, and those of as many in the order of their bytes.
    std::vector<Facet> facets() const;

private:
    bool countByIndex(const IndexRow& row);

    const Timeline& timeline_;
    Column column_;
    Record record_;
    std::vector<std::vector<std::uint64_t>> ofComponents_; ///< of each source, by their numbers
    std::vector<std::uint64_t> ofSources_;
    std::uint64_t ofLevels_[256] = {};
    std::unordered_map<std::string, std::uint64_t> ofValues_;
};

} // namespace timeline
