#pragma once

#include "timeline/timeline.h"

#include <vector>

namespace viewer {

/// Whether the rows of each source may have call ids: some forms of lines have none, and their
/// texts need not be read to look for one.
inline std::vector<bool> sourcesWithCalls(const timeline::Timeline& timeline)
{
    std::vector<bool> have(timeline.sourceCount());
    for (std::size_t source = 0; source < have.size(); ++source)
        have[source] = timeline.source(source).has(timeline::Column::callId);
    return have;
}

} // namespace viewer
