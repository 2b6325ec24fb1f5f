#include "timeline/lines/stamp.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

constexpr std::int32_t clockOf(int hour, int minute, int second, int millisecond)
{
    return ((hour * 60 + minute) * 60 + second) * 1000 + millisecond;
}

TEST(Stamps, HaveATimeOfDayWithMilliseconds)
{
    Stamp stamp;
    ASSERT_TRUE(readStamp("15:23:07:123,Conv", stamp));
    EXPECT_FALSE(stamp.dated);
    EXPECT_EQ(clockOf(15, 23, 7, 123), stamp.clock);
    ASSERT_TRUE(readStamp("23:59:59:999", stamp));
    EXPECT_EQ(clockOf(23, 59, 59, 999), stamp.clock);
}

TEST(Stamps, OrADayWithATimeToTheSecond)
{
    Stamp stamp;
    ASSERT_TRUE(readStamp("2025-02-20 15:23:07,Conv", stamp));
    EXPECT_TRUE(stamp.dated);
    EXPECT_EQ(dayOf(2025, 2, 20), stamp.day);
    EXPECT_EQ(clockOf(15, 23, 7, 0), stamp.clock);
}

TEST(Stamps, KeepTheTimeOfADayThatIsNone)
{
    Stamp stamp;
    ASSERT_TRUE(readStamp("2025-02-30 15:23:07", stamp));
    EXPECT_FALSE(stamp.dated);
    EXPECT_EQ(clockOf(15, 23, 7, 0), stamp.clock);
}

TEST(Stamps, AreNothingElse)
{
    Stamp stamp;
    for (const char* line :
         {"", "15:23:07", "15:23:07:12", "15:23:07.123", "24:00:00:000", "15:60:00:000",
          "15:23:60:000", "1x:23:07:123", "15:23:07:12x", "2025-02-20T15:23:07", "2025-02-20 15:23",
          "2025-02-20 25:23:07", "2025/02/20 15:23:07", "garbage that is long enough"})
        EXPECT_FALSE(readStamp(line, stamp)) << line;
}

} // namespace
} // namespace timeline
