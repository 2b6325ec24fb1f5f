#include "hosts/cli/reading/server_clock.h"

#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

namespace cli {
namespace {

using timeline::momentText;

constexpr timeline::Moment hour = 3'600'000;

std::string localText(const std::string& zone, timeline::Moment universal)
{
    return momentText(clockOf(zoneOfText(zone))->local(universal));
}

TEST(Zone, IsWhatAClockIsAheadOfUniversalTime)
{
    const timeline::Moment noon = timeline::dayOf(2025, 2, 20) + 12 * hour + 7;
    EXPECT_EQ("2025-02-20 13:00:00.007", localText("+01:00", noon));
    EXPECT_EQ("2025-02-20 17:30:00.007", localText("+0530", noon));
    EXPECT_EQ("2025-02-20 04:00:00.007", localText("-8", noon));
    EXPECT_EQ("2025-02-20 09:30:00.007", localText("-02:30", noon));
    EXPECT_EQ("2025-02-20 12:00:00.007", localText("Z", noon));
    EXPECT_EQ("1969-12-31 22:59:59.500", localText("-01:00", -500));
}

TEST(Zone, IsATextAsASiteHasIt)
{
    const std::string pacific = "PST8PDT,M3.2.0,M11.1.0";
    EXPECT_EQ("2025-02-20 04:00:00.000",
              localText(pacific, timeline::dayOf(2025, 2, 20) + 12 * hour));
    EXPECT_EQ("2025-07-20 05:00:00.000",
              localText(pacific, timeline::dayOf(2025, 7, 20) + 12 * hour));
    const auto clock = clockOf(zoneOfText(pacific));
    const timeline::Moment summer = timeline::dayOf(2025, 7, 20) + 5 * hour;
    EXPECT_EQ(summer + 7 * hour, clock->universal(summer));
}

TEST(Zone, IsNothingElse)
{
    for (const char* text : {"", "+", "-", "+1:", "+25:00", "+01:60", "+15", "+1:5", "+012",
                             "+0x10", "01:00", "+01:00x", "+-1", "Europe/Nowhere", "PST"}) {
        SCOPED_TRACE(text);
        try {
            zoneOfText(text);
            ADD_FAILURE() << "taken";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(runTimeErrors::invalidCall, error.number());
            EXPECT_NE(std::string::npos, error.description().find("+01:00"));
        }
    }
}

} // namespace
} // namespace cli
