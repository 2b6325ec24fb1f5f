#include "timeline/moment.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

TEST(Moments, BeginIn1970AndCountMilliseconds)
{
    EXPECT_EQ(0, dayOf(1970, 1, 1));
    EXPECT_EQ(millisecondsPerDay, dayOf(1970, 1, 2));
    EXPECT_EQ(-millisecondsPerDay, dayOf(1969, 12, 31));
    EXPECT_EQ("2025-02-20 00:00:00.000", momentText(dayOf(2025, 2, 20)));
}

TEST(Moments, KnowTheirDayAlsoBefore1970)
{
    EXPECT_EQ(dayOf(2024, 2, 29), dayOf(dayOf(2024, 2, 29) + millisecondsPerDay - 1));
    EXPECT_EQ(dayOf(1969, 12, 31), dayOf(Moment{-1}));
    EXPECT_EQ("1969-12-31 23:59:59.999", momentText(-1));
}

TEST(Moments, HaveATextWithEachPart)
{
    const Moment moment = dayOf(2005, 10, 8) + ((15 * 60 + 3) * 60 + 7) * 1000 + 45;
    EXPECT_EQ("2005-10-08 15:03:07.045", momentText(moment));
    EXPECT_EQ("", momentText(noMoment)) << "no moment has no text";
}

} // namespace
} // namespace timeline
