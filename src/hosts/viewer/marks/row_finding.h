#pragma once

#include "hosts/viewer/document/newest_task.h"
#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/marks/row_identity.h"

#include <cstddef>
#include <vector>

namespace viewer {

/// A row that is looked for, and the sources that may have it.
struct WantedRow {
    std::size_t number = 0; ///< by which it is told of
    RowIdentity identity;
    std::vector<timeline::SourceNumber> sources;
};

struct FoundRow {
    std::size_t number = 0;
    timeline::IndexRow row;
};

/// Looks for rows among those that are read: at their moment, on their line or, where the log has
/// lost some, on another one. With `everyLine`, which takes a walk over all rows of a source, also
/// on their line at any moment: the day of some logs is a guess. A row of another text is none of
/// them. In steps of some milliseconds; gives what it has when it is given up.
std::vector<FoundRow> findRows(SharedTimeline& timeline, const std::vector<WantedRow>& wanted,
                               bool everyLine, const NewestTask::GivenUp& givenUp);

} // namespace viewer
