#include "timeline/lines/day_carry.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

constexpr Moment second = 1000;
constexpr Moment minute = 60 * second;
constexpr Moment hour = 60 * minute;
const Moment day = dayOf(2025, 2, 19);

Stamp clock(Moment intoDay)
{
    return {.dated = false, .day = 0, .clock = static_cast<std::int32_t>(intoDay)};
}

TEST(DayCarry, BeginsOnTheDayThatTheLogWasOpened)
{
    DayCarry carry(day + 14 * hour);
    EXPECT_EQ(noMoment, carry.last());
    EXPECT_EQ(day + 15 * hour, carry.at(clock(15 * hour)));
    EXPECT_EQ(day + 15 * hour, carry.last());
}

TEST(DayCarry, MovesOnByADayWhenTheClockGoesBack)
{
    DayCarry carry(day);
    carry.at(clock(23 * hour));
    EXPECT_EQ(day + millisecondsPerDay + hour, carry.at(clock(hour)));
    EXPECT_EQ(day + 2 * millisecondsPerDay, carry.at(clock(0)));
    EXPECT_EQ(day + 2 * millisecondsPerDay + 5, carry.at(clock(5)));
}

TEST(DayCarry, DoesNotMoveOnWithinASecond)
{
    DayCarry carry(day);
    carry.at(clock(hour + 900));
    EXPECT_EQ(day + hour + 100, carry.at(clock(hour + 100)));
    EXPECT_EQ(day + millisecondsPerDay + hour - 1, carry.at(clock(hour - 1)));
}

TEST(DayCarry, TakesTheFirstLineForTheNextDayWhenItIsBeforeTheMinuteOfTheOpening)
{
    DayCarry sameMinute(day + 14 * hour + 41 * minute + 59 * second);
    EXPECT_EQ(day + 14 * hour + 41 * minute, sameMinute.at(clock(14 * hour + 41 * minute)));
    DayCarry before(day + 14 * hour + 41 * minute);
    EXPECT_EQ(day + millisecondsPerDay + 14 * hour, before.at(clock(14 * hour)));
}

TEST(DayCarry, GoesOnFromTheDayOfADatedStamp)
{
    DayCarry carry(day);
    const Moment later = dayOf(2025, 3, 1);
    EXPECT_EQ(later + hour, carry.at({.dated = true, .day = later, .clock = hour}));
    EXPECT_EQ(later + 2 * hour, carry.at(clock(2 * hour)));
    EXPECT_EQ(later + millisecondsPerDay + hour, carry.at(clock(hour)));
    EXPECT_EQ(day + 3 * hour, carry.at({.dated = true, .day = day, .clock = 3 * hour}));
}

TEST(DayCarry, GoesOnBehindLinesWhoseDayWasNotKnown)
{
    for (const Moment first : {hour, 23 * hour}) {
        DayCarry whole(day);
        DayCarry front(day);
        whole.at(clock(22 * hour));
        front.at(clock(22 * hour));
        DayCarry rest = DayCarry::ofUnknownDay(clock(first));
        const Moment middle = rest.at(clock(first));
        EXPECT_TRUE(DayCarry::isOfUnknownDay(middle));
        const Moment later = rest.at(clock(hour / 2));
        const Moment moved = front.goOn(rest, clock(first));
        EXPECT_EQ(whole.at(clock(first)), middle + moved);
        EXPECT_EQ(whole.at(clock(hour / 2)), later + moved);
        EXPECT_EQ(whole.last(), front.last());
        EXPECT_EQ(whole.at(clock(hour / 4)), front.at(clock(hour / 4)));
    }
}

TEST(DayCarry, GoesOnFromADateAmongLinesWhoseDayWasNotKnown)
{
    DayCarry front(day);
    DayCarry rest = DayCarry::ofUnknownDay(clock(hour));
    rest.at(clock(hour));
    const Moment dated = rest.at({.dated = true, .day = day + 9 * millisecondsPerDay, .clock = 5});
    EXPECT_FALSE(DayCarry::isOfUnknownDay(dated));
    front.goOn(rest, clock(hour));
    EXPECT_EQ(dated, front.last());
    EXPECT_EQ(dated + hour, front.at(clock(hour + 5)));
}

} // namespace
} // namespace timeline
