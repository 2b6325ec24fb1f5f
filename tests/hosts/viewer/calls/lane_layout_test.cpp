#include "hosts/viewer/calls/lane_layout.h"

#include "hosts/viewer/support/test_calls.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>

namespace viewer {
namespace {

const timeline::Moment testDay = timeline::dayOf(2025, 2, 20);

TimeScale scaleOf(const CallRows& rows, int width)
{
    TimeScale scale;
    const auto times = LaneLayout::timesOf(rows);
    scale.setWidth(width);
    if (times) scale.setAll(times->first, times->second);
    return scale;
}

int rank(Severity severity)
{
    return severity == Severity::error ? 2 : severity == Severity::warning ? 1 : 0;
}

/// The dots of a lane by a plain loop over all rows.
std::vector<LaneLayout::Dot> plainDots(const CallRows& rows, const TimeScale& scale,
                                       std::size_t lane)
{
    std::vector<LaneLayout::Dot> dots;
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        if (rows.rows[row].lane != lane) continue;
        const double exact = scale.xOf(static_cast<double>(rows.rows[row].index.moment));
        if (exact < scale.xOf(scale.from()) - 6 || exact > scale.xOf(scale.to()) + 6) continue;
        const int x = static_cast<int>(std::lround(exact));
        if (dots.empty() || x - dots.back().x >= LaneLayout::cell)
            dots.push_back({x, row, 0, rows.rows[row].severity});
        ++dots.back().count;
        if (rank(rows.rows[row].severity) > rank(dots.back().severity)) {
            dots.back().row = row;
            dots.back().severity = rows.rows[row].severity;
        }
    }
    return dots;
}

TEST(LaneLayout, PlacesRowsAsAPlainLoopDoes)
{
    const CallRows rows = someCall(3000, 5, testDay + 50'000'000);
    TimeScale scale = scaleOf(rows, 700);
    for (int look = 0; look < 12; ++look) {
        SCOPED_TRACE(look);
        const LaneLayout layout(rows, scale);
        ASSERT_EQ(5u, layout.lanes());
        for (std::size_t lane = 0; lane < 5; ++lane) {
            const auto expected = plainDots(rows, scale, lane);
            const auto& dots = layout.dots(lane);
            ASSERT_EQ(expected.size(), dots.size()) << lane;
            for (std::size_t at = 0; at < dots.size(); ++at) {
                EXPECT_EQ(expected[at].x, dots[at].x);
                EXPECT_EQ(expected[at].row, dots[at].row);
                EXPECT_EQ(expected[at].count, dots[at].count);
                EXPECT_EQ(expected[at].severity, dots[at].severity);
            }
        }
        scale.zoom(0.6, 300);
        scale.pan(look % 2 == 0 ? 90 : -40);
    }
}

TEST(LaneLayout, HasNoMoreDotsThanTheScreenShows)
{
    const CallRows rows = someCall(100'000, 6, testDay);
    const TimeScale scale = scaleOf(rows, 1600);
    const auto begin = std::chrono::steady_clock::now();
    const LaneLayout layout(rows, scale);
    const auto taken = std::chrono::steady_clock::now() - begin;
    std::size_t placed = 0;
    for (std::size_t lane = 0; lane < layout.lanes(); ++lane) {
        EXPECT_LE(layout.dots(lane).size(), 1600u / LaneLayout::cell + 1);
        for (const LaneLayout::Dot& dot : layout.dots(lane)) placed += dot.count;
    }
    EXPECT_EQ(100'000u, placed) << "each row is in a dot";
    EXPECT_LT(taken, std::chrono::milliseconds(500));
}

TEST(LaneLayout, RowsWithoutAMomentStandAtTheBeginning)
{
    CallRows rows = someCall(3, 1, testDay);
    rows.rows[0].index.moment = timeline::noMoment;
    rows.rows[1].index.moment = testDay;
    rows.rows[2].index.moment = testDay + 1000;
    const TimeScale scale = scaleOf(rows, 500);
    const LaneLayout layout(rows, scale);
    ASSERT_EQ(2u, layout.dots(0).size());
    EXPECT_EQ(2u, layout.dots(0)[0].count);
    EXPECT_EQ(TimeScale::margin, layout.dots(0)[0].x);
}

TEST(LaneLayout, FindsTheDotNextToAPoint)
{
    CallRows rows = someCall(2, 1, testDay);
    rows.rows[0].index.moment = testDay;
    rows.rows[1].index.moment = testDay + 1000;
    const LaneLayout layout(rows, scaleOf(rows, 520));
    ASSERT_EQ(2u, layout.dots(0).size());
    const int last = layout.dots(0)[1].x;
    EXPECT_EQ(510, last);
    EXPECT_EQ(1u, layout.dotAt(0, last - 5, 6)->row);
    EXPECT_FALSE(layout.dotAt(0, last - 7, 6));
    EXPECT_FALSE(layout.dotAt(1, last, 6)) << "there is no such lane";
}

TEST(TimeScale, ZoomsAroundAPlaceAndShowsAllAgain)
{
    TimeScale scale;
    scale.setWidth(1020);
    scale.setAll(testDay, testDay + 100'000);
    const double moment = scale.momentAt(300);
    scale.zoom(0.5, 300);
    EXPECT_NEAR(moment, scale.momentAt(300), 0.01);
    EXPECT_NEAR(50'000, scale.to() - scale.from(), 0.01);
    EXPECT_FALSE(scale.showsAll());
    for (int turn = 0; turn < 100; ++turn) scale.zoom(0.5, 300);
    EXPECT_NEAR(TimeScale::shortest, scale.to() - scale.from(), 0.001);
    for (int turn = 0; turn < 100; ++turn) scale.zoom(2, 300);
    EXPECT_TRUE(scale.showsAll());
}

TEST(TimeScale, StaysAmongAllTimes)
{
    TimeScale scale;
    scale.setWidth(1020);
    scale.setAll(testDay, testDay + 100'000);
    scale.zoom(0.1, 500);
    scale.pan(1e9);
    EXPECT_DOUBLE_EQ(static_cast<double>(testDay + 100'000), scale.to());
    EXPECT_NEAR(10'000, scale.to() - scale.from(), 0.01);
    scale.bringInSight(static_cast<double>(testDay));
    EXPECT_DOUBLE_EQ(static_cast<double>(testDay), scale.from());
    EXPECT_NEAR(10'000, scale.to() - scale.from(), 0.01);
}

TEST(TimeScale, GivesASingleMomentRoom)
{
    TimeScale scale;
    scale.setWidth(1020);
    scale.setAll(testDay, testDay);
    EXPECT_DOUBLE_EQ(510, scale.xOf(static_cast<double>(testDay)));
}

} // namespace
} // namespace viewer
