#include "system/windows/zone_text.h"

#include <gtest/gtest.h>

namespace {

TIME_ZONE_INFORMATION zone(LONG bias)
{
    TIME_ZONE_INFORMATION made{};
    made.Bias = bias;
    return made;
}

TEST(ZoneText, HasTheRulesOfAZoneWithDaylightTime)
{
    TIME_ZONE_INFORMATION pacific = zone(480);
    pacific.DaylightDate = {0, 3, 0, 2, 2, 0, 0, 0};
    pacific.StandardDate = {0, 11, 0, 1, 2, 0, 0, 0};
    pacific.DaylightBias = -60;
    EXPECT_EQ("STD8:00DST7:00,M3.2.0/2:00:00,M11.1.0/2:00:00", zoneTextOf(pacific));
}

TEST(ZoneText, IsAnOffsetAloneWithoutDaylightTime)
{
    EXPECT_EQ("STD-5:30", zoneTextOf(zone(-330)));
    EXPECT_EQ("STD0:00", zoneTextOf(zone(0)));
}

TEST(ZoneText, TakesAChangeOfOneYearForOneOfEveryYear)
{
    TIME_ZONE_INFORMATION once = zone(-60);
    once.DaylightDate = {2026, 3, 0, 29, 2, 0, 0, 0};
    once.StandardDate = {2026, 10, 0, 25, 3, 0, 0, 0};
    once.DaylightBias = -60;
    EXPECT_EQ("STD-1:00DST-2:00,J88/2:00:00,J298/3:00:00", zoneTextOf(once));
}

} // namespace
