#include "timeline/server_clock.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

constexpr Moment anHour = 3'600'000;
const Moment forward = dayOf(2025, 3, 9) + 10 * anHour; ///< 2:00 becomes 3:00
const Moment back = dayOf(2025, 11, 2) + 9 * anHour;    ///< 2:00 becomes 1:00

Moment pacificTime(Moment universal)
{
    return universal - (universal >= forward && universal < back ? 7 : 8) * anHour;
}

std::vector<Moment> whenShown(Moment local)
{
    return ServerClock(pacificTime).whenShown(local);
}

TEST(ServerClock, ShowsATimeOnceOnMostDays)
{
    const Moment noon = dayOf(2025, 2, 20) + 12 * anHour;
    EXPECT_EQ(std::vector<Moment>{noon + 8 * anHour}, whenShown(noon));
    const Moment summer = dayOf(2025, 7, 20) + 12 * anHour;
    EXPECT_EQ(std::vector<Moment>{summer + 7 * anHour}, whenShown(summer));
}

TEST(ServerClock, SkipsTheHourByWhichItIsPutForward)
{
    const Moment night = dayOf(2025, 3, 9);
    EXPECT_EQ(std::vector<Moment>{forward - 1}, whenShown(night + 2 * anHour - 1));
    EXPECT_TRUE(whenShown(night + 2 * anHour).empty());
    EXPECT_TRUE(whenShown(night + 3 * anHour - 1).empty());
    EXPECT_EQ(std::vector<Moment>{forward}, whenShown(night + 3 * anHour));
}

TEST(ServerClock, ShowsTheHourTwiceByWhichItIsPutBack)
{
    const Moment night = dayOf(2025, 11, 2);
    EXPECT_EQ(std::vector<Moment>{back - anHour - 1}, whenShown(night + anHour - 1));
    EXPECT_EQ((std::vector<Moment>{back - anHour, back}), whenShown(night + anHour));
    EXPECT_EQ((std::vector<Moment>{back - 1, back + anHour - 1}),
              whenShown(night + 2 * anHour - 1));
    EXPECT_EQ(std::vector<Moment>{back + anHour}, whenShown(night + 2 * anHour));
}

TEST(ServerClock, TellsTheEarliestAndTheLatestTimeThatItShowed)
{
    ServerClock clock(pacificTime);
    const Moment night = dayOf(2025, 11, 2);
    const Moment halfPast = back - anHour / 2; // 1:30, for the first time
    EXPECT_EQ(night + anHour * 3 / 2, clock.earliestShown(halfPast, back - 1));
    EXPECT_EQ(night + anHour, clock.earliestShown(halfPast, back));
    EXPECT_EQ(night + anHour, clock.earliestShown(halfPast, back + 100 * anHour));
    EXPECT_EQ(night + 2 * anHour - 1, clock.latestShown(halfPast, back));
    EXPECT_EQ(night + 2 * anHour - 1,
              clock.latestShown(halfPast - 100 * anHour, back + anHour / 2));
    EXPECT_EQ(night + 3 * anHour, clock.latestShown(halfPast, back + 2 * anHour));
    EXPECT_EQ(night + anHour, clock.latestShown(back, back));
    EXPECT_EQ(night + 3 * anHour, clock.earliestShown(back + 2 * anHour, back))
        << "no time between";
}

} // namespace
} // namespace timeline
