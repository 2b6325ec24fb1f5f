#pragma once

#include "hosts/viewer/calls/call_rows.h"

#include <cstddef>
#include <optional>

namespace viewer {

/// The ways from a row of a call to another.
enum class LaneMove {
    next, ///< in whatever lane
    previous,
    nextInLane,
    previousInLane,
    laneBelow, ///< the row of the next lane that is nearest in time
    laneAbove,
    first,
    last,
    firstInLane,
    lastInLane,
};

/// Where a way leads from a row, by numbers of rows; nothing where there is no such row.
std::optional<std::size_t> moved(const CallRows& rows, std::size_t row, LaneMove move);

} // namespace viewer
