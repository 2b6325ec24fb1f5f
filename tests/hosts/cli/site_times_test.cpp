#include "hosts/cli/site_times.h"

#include "hosts/cli/pacific_times.h"
#include "runtime/run_time_error.h"
#include "support/error_of.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace cli {
namespace {

using timeline::dayOf;
using timeline::Moment;

constexpr Moment aMinute = 60'000;
constexpr Moment anHour = 60 * aMinute;

TEST(SiteTimes, TellsATimeWithItsZone)
{
    const SiteTimes times = pacificTimes({2025, 2, 20, 15, 23, 7});
    EXPECT_EQ("2025-02-20 15:23:07 PST (UTC-08:00)", times.text(times.now()));
    EXPECT_EQ("2025-07-20 15:00 PDT (UTC-07:00)", times.text(dayOf(2025, 7, 20) + 15 * anHour));
    EXPECT_EQ("2025-02-20T15:23:07-08:00", times.isoText(times.now()));
    EXPECT_EQ("2025-07-20T15:00:00-07:00", times.isoText(dayOf(2025, 7, 20) + 15 * anHour));
}

TEST(SiteTimes, TellsAZoneWithoutDaylightTimeAndWithoutAName)
{
    TimeZoneInformation zone;
    zone.bias = -330;
    const auto ahead = std::make_shared<timeline::ServerClock>(
        [](Moment universal) { return universal + 330 * aMinute; });
    const SiteTimes times(ahead, zone, dayOf(2025, 2, 20));
    EXPECT_EQ("2025-02-20 00:00 (UTC+05:30)", times.text(times.now()));
}

TEST(SiteTimes, TellsTheZoneOfAFrameOnceUnlessItChanges)
{
    const SiteTimes times = pacificTimes({2025, 3, 9, 12});
    const Moment night = dayOf(2025, 3, 9);
    EXPECT_EQ("2025-03-09 00:00 to 2025-03-09 01:00 PST (UTC-08:00)",
              times.text(night, night + anHour));
    EXPECT_EQ("2025-03-09 00:00 PST (UTC-08:00) to 2025-03-09 05:00 PDT (UTC-07:00)",
              times.text(night, night + 5 * anHour));
}

TEST(SiteTimes, TellsWhatIsOddAboutATime)
{
    const SiteTimes times = pacificTimes({2025, 12, 1});
    EXPECT_EQ("the site's clock skips 2025-03-09 02:30",
              times.oddity(dayOf(2025, 3, 9) + anHour * 5 / 2));
    EXPECT_EQ("the site's clock shows 2025-11-02 01:30 twice",
              times.oddity(dayOf(2025, 11, 2) + anHour * 3 / 2));
    EXPECT_EQ("", times.oddity(dayOf(2025, 11, 2)));
}

TEST(SiteTimes, AreThoseOfTheServer)
{
    TestTool tool;
    const SiteTimes times(tool.context);
    EXPECT_EQ(momentOf(FakeClock::initial), times.now());
    TimeZoneInformation zone;
    tool.timeZone.read(zone);
    EXPECT_EQ("2005-10-08 15:23:07 " + zone.daylightName + " (UTC-07:00)", times.text(times.now()));
}

TEST(Moments, AreThoseOfTheToolsCalendar)
{
    const Date date = ::dateOf(2024, 2, 29, 23, 59, 59);
    EXPECT_EQ(dayOf(2024, 3, 1) - 1000, momentOf(date));
    EXPECT_EQ(date, dateOf(momentOf(date)));
    EXPECT_EQ(runTimeErrors::invalidCall, errorOf([] { dateOf(dayOf(99, 12, 31)); }));
    EXPECT_EQ(runTimeErrors::invalidCall, errorOf([] { dateOf(dayOf(10000, 1, 1)); }));
}

} // namespace
} // namespace cli
