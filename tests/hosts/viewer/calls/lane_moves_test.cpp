#include "hosts/viewer/calls/lane_moves.h"

#include "hosts/viewer/support/test_calls.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace viewer {
namespace {

/// Rows at seconds, each in a lane.
CallRows rowsOf(const std::vector<std::pair<int, std::uint16_t>>& places, std::size_t lanes)
{
    CallRows rows;
    rows.lanes.resize(lanes);
    for (const auto& [second, lane] : places) {
        CallRow row;
        row.index.moment = second * 1000;
        row.lane = lane;
        rows.rows.push_back(row);
    }
    return rows;
}

TEST(LaneMoves, LeadToRowsAndLanes)
{
    // 0: row 0 . . row 3        1: row 1 row 2        2: row 4
    const CallRows rows = rowsOf({{0, 0}, {1, 1}, {5, 1}, {6, 0}, {9, 2}}, 3);
    struct Case {
        const char* because;
        std::size_t row;
        LaneMove move;
        std::optional<std::size_t> expected;
    };
    const Case cases[] = {
        {"the next line may be of another lane", 0, LaneMove::next, 1},
        {"the last line has no next one", 4, LaneMove::next, std::nullopt},
        {"the line before", 3, LaneMove::previous, 2},
        {"the first line has none before", 0, LaneMove::previous, std::nullopt},
        {"within the lane others are passed over", 0, LaneMove::nextInLane, 3},
        {"and backwards", 3, LaneMove::previousInLane, 0},
        {"the lane ends", 3, LaneMove::nextInLane, std::nullopt},
        {"the nearest line of the lane below", 0, LaneMove::laneBelow, 1},
        {"which may be earlier", 3, LaneMove::laneBelow, 2},
        {"or the only one", 1, LaneMove::laneBelow, 4},
        {"the lane above", 4, LaneMove::laneAbove, 2},
        {"no lane is above the first", 0, LaneMove::laneAbove, std::nullopt},
        {"no lane is below the last", 4, LaneMove::laneBelow, std::nullopt},
        {"the call's first line", 3, LaneMove::first, 0},
        {"its last", 0, LaneMove::last, 4},
        {"the lane's first line", 2, LaneMove::firstInLane, 1},
        {"its last", 0, LaneMove::lastInLane, 3},
        {"a row that is none leads nowhere", 9, LaneMove::first, std::nullopt},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.because);
        EXPECT_EQ(each.expected, moved(rows, each.row, each.move));
    }
}

TEST(LaneMoves, ReachTheNearestRowOfALaneAsAPlainLoopFindsIt)
{
    const CallRows rows = someCall(400, 4, 1'000'000);
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        const std::size_t lane = rows.rows[row].lane + 1u;
        if (lane == rows.lanes.size()) continue;
        timeline::Moment least = -1;
        for (const CallRow& other : rows.rows)
            if (const auto apart = std::abs(other.index.moment - rows.rows[row].index.moment);
                other.lane == lane && (least < 0 || apart < least))
                least = apart;
        const auto found = moved(rows, row, LaneMove::laneBelow);
        ASSERT_TRUE(found);
        EXPECT_EQ(lane, rows.rows[*found].lane);
        EXPECT_EQ(least, std::abs(rows.rows[*found].index.moment - rows.rows[row].index.moment));
    }
}

TEST(LaneMoves, EveryRowIsReachedByKeyThoughManyShareAMoment)
{
    const CallRows rows = someCall(500, 3, 1'000'000);
    std::size_t reached = 1;
    for (auto row = moved(rows, 0, LaneMove::next); row; row = moved(rows, *row, LaneMove::next))
        ++reached;
    EXPECT_EQ(500u, reached);
}

} // namespace
} // namespace viewer
