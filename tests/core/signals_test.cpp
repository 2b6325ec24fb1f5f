#include "core/signals.h"

#include "core/registry_store.h"
#include "core/tool_context.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace {

const std::string broadcastKey = std::string(logManagerKey) + "\\BroadCast";
const std::string stampRoutine = "[mdlUtility]getCurrentDateTimeInBinaryFormat";

using Bytes = std::vector<std::uint8_t>;

/// A stamp as another process reads it.
double stampOf(TestTool& tool)
{
    std::array<std::uint8_t, 8> bytes{};
    getCurrentDateTimeInBinaryFormat(tool.context, bytes);
    double stamp = 0;
    std::memcpy(&stamp, bytes.data(), sizeof stamp);
    return stamp;
}

Bytes written(const TestTool& tool, const char* name)
{
    const auto value = tool.registry.value(registryRoot::localMachine, broadcastKey, name);
    return value && value->type == registryType::bytes ? value->bytes : Bytes{};
}

} // namespace

TEST(Signals, AnAfternoonInPacificDaylightTimeHasItsEightBytes)
{
    const Bytes expected = {0x55, 0x6B, 0xD7, 0xD8, 0x3D, 0xDD, 0xE2, 0x40};
    TestTool tool;
    tool.registry.withKey(broadcastKey);

    signalDiagnosticGridChange(tool.context);
    EXPECT_EQ(expected, written(tool, "Diagnostic Grid Time Set"));
    EXPECT_FALSE(tool.registry.has(broadcastKey, "Cycle Diag File Time Set"));

    signalCycleDiagFiles(tool.context);
    EXPECT_EQ(expected, written(tool, "Cycle Diag File Time Set"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(Signals, AMissingKeyIsNotMade)
{
    TestTool tool;
    signalDiagnosticGridChange(tool.context);
    signalCycleDiagFiles(tool.context);
    EXPECT_FALSE(tool.registry.keyExists(registryRoot::localMachine, broadcastKey));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(Signals, ALaterMomentGivesAnotherStamp)
{
    TestTool tool;
    tool.registry.withKey(broadcastKey);
    signalCycleDiagFiles(tool.context);
    const Bytes first = written(tool, "Cycle Diag File Time Set");
    tool.clock.advance(1);
    signalCycleDiagFiles(tool.context);
    EXPECT_NE(first, written(tool, "Cycle Diag File Time Set"));
}

TEST(GetTZBias, IsInWholeHoursOfTheTimeInForce)
{
    struct Case {
        const char* because;
        int bias;
        int standardBias;
        int daylightBias;
        TimeZoneState state;
        int expected;
    };
    constexpr auto standard = TimeZoneState::standardTime;
    constexpr auto summer = TimeZoneState::daylightTime;
    constexpr auto unknown = TimeZoneState::unknown;
    const Case cases[] = {
        {"standard time takes the standard bias", 480, 0, -60, standard, 8},
        {"a standard bias counts", 480, 60, -60, standard, 9},
        {"daylight time takes the daylight bias", 480, 0, -60, summer, 7},
        {"east of Greenwich it is below zero", -60, 0, -60, summer, -2},
        {"a zone without a daylight rule counts as universal time", 480, 0, -60, unknown, 0},
        {"five and a half hours go up to six", 330, 0, 0, standard, 6},
        {"four and a half hours go down to four", 270, 0, 0, standard, 4},
        {"the same holds east of Greenwich", -330, 0, 0, standard, -6},
        {"to the even number there too", -270, 0, 0, standard, -4},
        {"three quarters go up", 345, 0, 0, standard, 6},
        {"universal time is no distance", 0, 0, 0, standard, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        TimeZoneInformation zone;
        zone.bias = c.bias;
        zone.standardBias = c.standardBias;
        zone.daylightBias = c.daylightBias;
        tool.timeZone.with(zone, c.state);
        EXPECT_EQ(c.expected, getTZBias(tool.context));
        EXPECT_EQ(c.bias, tool.context.g_timeZone.bias);
        EXPECT_EQ(c.daylightBias, tool.context.g_timeZone.daylightBias);
    }
}

TEST(TimeStamp, HasNoFractionAndOneErrorInZonesOfTenHoursAndMore)
{
    for (const int minutes : {600, 720, -600, -660, -840, 570, -570}) {
        SCOPED_TRACE(minutes);
        TestTool tool;
        tool.timeZone.inStandardTime(minutes);
        EXPECT_EQ(38633.0, stampOf(tool));
        EXPECT_EQ((std::vector<std::string>{"Err.Number = 6 Err.Description = Overflow"}),
                  tool.failures(stampRoutine));
        EXPECT_EQ(1u, tool.failures().size());
    }
}

TEST(TimeStamp, ASecondSignalOfTheDayIsTheSameInHawaii)
{
    TestTool tool;
    tool.timeZone.inStandardTime(600);
    const double first = stampOf(tool);
    tool.clock.advance(3600);
    EXPECT_EQ(first, stampOf(tool));
    tool.clock.advance(86400);
    EXPECT_EQ(first + 1, stampOf(tool));
}

TEST(TimeStamp, IsNearUniversalTimeInZonesUnderTenHours)
{
    for (int hours = -9; hours <= 9; ++hours) {
        SCOPED_TRACE(hours);
        TestTool tool;
        tool.timeZone.inStandardTime(hours * 60);
        EXPECT_NEAR(FakeClock::initial.days + hours / 24.0, stampOf(tool), 1e-9);
        EXPECT_TRUE(tool.failures().empty());
    }
}

TEST(TimeStamp, MayLieInTheNextOrThePreviousDay)
{
    TestTool late;
    late.clock.at(Date{38633 + 23.5 / 24});
    late.timeZone.inStandardTime(480);
    EXPECT_NEAR(38634 + 7.5 / 24, stampOf(late), 1e-9);

    TestTool early;
    early.clock.at(Date{38633 + 0.5 / 24});
    early.timeZone.inStandardTime(-120);
    EXPECT_NEAR(38632 + 22.5 / 24, stampOf(early), 1e-9);
}

TEST(TimeStamp, TakesLocalTimeForUniversalTimeWithoutADaylightRule)
{
    TestTool tool;
    tool.timeZone.fixed(600);
    EXPECT_NEAR(FakeClock::initial.days, stampOf(tool), 1e-9);
    EXPECT_TRUE(tool.failures().empty());
}

TEST(TimeStamp, IsTraced)
{
    TestTool tool;
    stampOf(tool);
    EXPECT_TRUE(tool.logged("Entering " + stampRoutine + "_0"));
    EXPECT_TRUE(tool.logged("Exiting " + stampRoutine + "_0"));
}
