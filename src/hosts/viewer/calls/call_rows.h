#pragma once

#include "hosts/viewer/document/shown_row.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace viewer {

/// A row of a call, and the lane that it stands in.
struct CallRow {
    timeline::IndexRow index;
    std::uint16_t lane = 0;
    Severity severity = Severity::none;
};

/// The rows of one call in the order of time, each in the lane of its process.
struct CallRows {
    std::string id;                 ///< UTF-8
    std::vector<std::string> lanes; ///< processes in the order of their first rows, in UTF-8; empty
                                    ///< for one that nobody knows
    std::vector<CallRow> rows;
    double share = 0;      ///< of all rows that were looked at, from 0 to 1
    bool complete = false; ///< whether the looking has ended
    bool leftOut = false;  ///< whether it ended early, as there were so many rows
};

} // namespace viewer
