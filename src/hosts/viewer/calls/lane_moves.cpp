#include "hosts/viewer/calls/lane_moves.h"

namespace viewer {

namespace {

using Row = std::optional<std::size_t>;

/// The first row of a lane from a row on.
Row from(const CallRows& rows, std::size_t row, std::size_t lane)
{
    for (; row < rows.rows.size(); ++row)
        if (rows.rows[row].lane == lane) return row;
    return std::nullopt;
}

/// The last row of a lane before a row.
Row before(const CallRows& rows, std::size_t row, std::size_t lane)
{
    while (row > 0)
        if (rows.rows[--row].lane == lane) return row;
    return std::nullopt;
}

Row nearest(const CallRows& rows, std::size_t row, std::size_t lane)
{
    const Row earlier = before(rows, row, lane);
    const Row later = from(rows, row, lane);
    if (!earlier || !later) return earlier ? earlier : later;
    const auto moment = [&](std::size_t at) { return rows.rows[at].index.moment; };
    // A row without a moment is as far away as can be.
    if (moment(*earlier) == timeline::noMoment) return later;
    return moment(row) - moment(*earlier) < moment(*later) - moment(row) ? earlier : later;
}

} // namespace

Row moved(const CallRows& rows, std::size_t row, LaneMove move)
{
    if (row >= rows.rows.size()) return std::nullopt;
    const std::size_t lane = rows.rows[row].lane;
    switch (move) {
    case LaneMove::next:
        return row + 1 < rows.rows.size() ? Row(row + 1) : std::nullopt;
    case LaneMove::previous:
        return row > 0 ? Row(row - 1) : std::nullopt;
    case LaneMove::nextInLane:
        return from(rows, row + 1, lane);
    case LaneMove::previousInLane:
        return before(rows, row, lane);
    case LaneMove::laneBelow:
        return lane + 1 < rows.lanes.size() ? nearest(rows, row, lane + 1) : std::nullopt;
    case LaneMove::laneAbove:
        return lane > 0 ? nearest(rows, row, lane - 1) : std::nullopt;
    case LaneMove::first:
        return 0;
    case LaneMove::last:
        return rows.rows.size() - 1;
    case LaneMove::firstInLane:
        return from(rows, 0, lane);
    case LaneMove::lastInLane:
        return before(rows, rows.rows.size(), lane);
    }
    return std::nullopt;
}

} // namespace viewer
