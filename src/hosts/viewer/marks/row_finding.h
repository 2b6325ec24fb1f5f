#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/document/newest_task.h"
#include "hosts/viewer/marks/row_identity.h"

#include <cstddef>
#include <string>
#include <vector>

namespace viewer {

/// A row that is looked for, and the sources that may have it.
struct WantedRow {
    std::size_t number = 0; ///< by which it is told of
    RowIdentity identity;
    std::vector<timeline::SourceNumber> sources;
};

/// The sources of a document that have the rows of a file by a name, such as a cabinet's member.
std::vector<timeline::SourceNumber> sourcesOf(const Document& document, const std::string& file,
                                              const QString& name);

/// The identity of a row of a document. Raises what reading the row raises, and 57 for one of no
/// source that is known.
RowIdentity identityIn(Document& document, const timeline::IndexRow& row);

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
