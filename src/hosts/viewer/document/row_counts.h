#pragma once

#include "timeline/counts/facets.h"
#include "timeline/counts/histogram.h"
#include "timeline/filter/filter.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace viewer {

/// The columns whose values stand beside the table with their counts.
inline constexpr std::array facetColumns = {timeline::Column::process, timeline::Column::component,
                                            timeline::Column::source, timeline::Column::level};

/// How many rows a choice takes, lines that belong to one left out.
struct RowCounts {
    /// The values of each facet's column, those of most rows first: of the rows that all of the
    /// choice but what it asks of this column takes. Unset for one that was not counted.
    std::array<std::optional<std::vector<timeline::Facet>>, facetColumns.size()> facets;

    /// Rows over time by their levels; unset where none has a moment.
    std::optional<timeline::Histogram> histogram;
};

} // namespace viewer
