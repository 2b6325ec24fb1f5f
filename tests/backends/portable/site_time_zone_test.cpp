#include "backends/portable/site_time_zone.h"

#include "backends/portable/site_clock.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

TimeZoneInformation recordOf(const char* text, int year = 2006)
{
    return timeZoneRecord(parsePosixTimeZone(text), year);
}

SystemTime rule(int year, int month, int dayOfWeek, int day, int hour, int minute = 0,
                int second = 0)
{
    return {year, month, dayOfWeek, day, hour, minute, second, 0};
}

TEST(TimeZoneRecord, HoldsBiasesInMinutesAndTheRules)
{
    const auto zone = recordOf("PST8PDT,M3.2.0,M11.1.0");

    EXPECT_EQ(480, zone.bias);
    EXPECT_EQ(0, zone.standardBias);
    EXPECT_EQ(-60, zone.daylightBias);
    EXPECT_EQ("PST", zone.standardName);
    EXPECT_EQ("PDT", zone.daylightName);
    EXPECT_EQ(rule(0, 3, 0, 2, 2), zone.daylightDate);
    EXPECT_EQ(rule(0, 11, 0, 1, 2), zone.standardDate);
}

TEST(TimeZoneRecord, TellsZonesOfManyKinds)
{
    struct Case {
        const char* because;
        const char* text;
        int bias;
        int daylightBias;
        SystemTime daylightDate;
        SystemTime standardDate;
    };
    const Case cases[] = {
        {"no daylight rule", "<+0530>-5:30", -330, 0, {}, {}},
        {"seconds round to the minute", "LMT-0:14:44", -15, 0, {}, {}},
        {"half an hour of daylight time", "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", -630, -30,
         rule(0, 10, 0, 1, 2), rule(0, 4, 0, 1, 2)},
        {"daylight time behind standard time", "IST-1GMT0,M10.5.0,M3.5.0/1", -60, 60,
         rule(0, 10, 0, 5, 2), rule(0, 3, 0, 5, 1)},
        {"a time past midnight moves to the next day", "IST-2IDT,M3.4.4/26,M10.5.0", -120, -60,
         rule(0, 3, 5, 4, 2), rule(0, 10, 0, 5, 2)},
        {"one before midnight to the day before", "<-02>2<-01>,M3.5.0/-1,M10.5.0/0", 120, -60,
         rule(0, 3, 6, 5, 23), rule(0, 10, 0, 5, 0)},
        {"a numbered day is one of the year", "AAA0BBB,J60/2:30,299", 0, -60,
         rule(2006, 3, 3, 1, 2, 30), rule(2006, 10, 5, 27, 2)},
        {"and stays in it", "XXX3EDT4,0/-1,J365/25", 180, 60, rule(2006, 1, 0, 1, 0),
         rule(2006, 12, 0, 31, 23, 59, 59)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto zone = recordOf(c.text);
        EXPECT_EQ(c.bias, zone.bias);
        EXPECT_EQ(c.daylightBias, zone.daylightBias);
        EXPECT_EQ(c.daylightDate, zone.daylightDate);
        EXPECT_EQ(c.standardDate, zone.standardDate);
    }
}

TEST(SiteTimeZone, TellsWhichPartOfTheYearIsInForce)
{
    struct Case {
        const char* because;
        const char* text;
        std::int64_t now;
        TimeZoneState expected;
    };
    constexpr std::int64_t january = 1136678400; // 8 January 2006
    constexpr std::int64_t july = 1152316800;    // 8 July 2006
    const Case cases[] = {
        {"winter in the north", "PST8PDT,M3.2.0,M11.1.0", january, TimeZoneState::standardTime},
        {"summer in the north", "PST8PDT,M3.2.0,M11.1.0", july, TimeZoneState::daylightTime},
        {"summer in the south", "AEST-10AEDT,M10.1.0,M4.1.0/3", january,
         TimeZoneState::daylightTime},
        {"winter in the south", "AEST-10AEDT,M10.1.0,M4.1.0/3", july, TimeZoneState::standardTime},
        {"no daylight rule in winter", "MST7", january, TimeZoneState::unknown},
        {"and in summer", "MST7", july, TimeZoneState::unknown},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TimeZoneInformation zone;
        const SiteTimeZone service(parsePosixTimeZone(c.text), [&] { return c.now; });
        EXPECT_EQ(c.expected, service.read(zone));
        EXPECT_EQ(recordOf(c.text).bias, zone.bias);
    }
}

TEST(SiteTimeZone, ConvertsAsThePosixRulesDo)
{
    for (const char* text : {"PST8PDT,M3.2.0,M11.1.0", "CET-1CEST,M3.5.0,M10.5.0/3", "MST7",
                             "AEST-10AEDT,M10.1.0,M4.1.0/3", "IST-1GMT0,M10.5.0,M3.5.0/1",
                             "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", "AAA0BBB,J60/2:30,J299"}) {
        SCOPED_TRACE(text);
        const auto zone = parsePosixTimeZone(text);
        const SiteTimeZone service(zone, [] { return 1136678400; });
        TimeZoneInformation record;
        service.read(record);
        for (std::int64_t moment = 1136073600; moment < 1136073600 + 3LL * 365 * 86400;
             moment += 10800) {
            std::tm parts{};
            const std::time_t time = moment;
            ::gmtime_r(&time, &parts);
            const auto local = service.toLocal(record, {parts.tm_year + 1900, parts.tm_mon + 1,
                                                        parts.tm_wday, parts.tm_mday, parts.tm_hour,
                                                        parts.tm_min, parts.tm_sec, 7});
            const auto expected = partsOf(localDate(zone, moment));
            ASSERT_EQ(expected.day, local.day) << moment;
            ASSERT_EQ(expected.hour, local.hour) << moment;
            ASSERT_EQ(expected.minute, local.minute) << moment;
            ASSERT_EQ(expected.dayOfWeek - 1, local.dayOfWeek) << moment;
            ASSERT_EQ(7, local.milliseconds);
        }
    }
}

TEST(SiteTimeZone, ARuleThatIsNoDateCountsAsNone)
{
    const SiteTimeZone service{PosixTimeZone{}};
    const SystemTime noon{2006, 7, 6, 8, 12, 0, 0, 0};
    for (const auto& bad : {SystemTime{0, 13, 0, 1, 2, 0, 0, 0}, SystemTime{0, 3, 0, 0, 2, 0, 0, 0},
                            SystemTime{0, 3, 0, 1, 2'000'000'000, 0, 0, 0},
                            SystemTime{0, -1, -1, -1, -1, -1, -1, -1}}) {
        TimeZoneInformation zone;
        zone.bias = 60;
        zone.daylightBias = -60;
        zone.standardDate = rule(0, 11, 0, 1, 2);
        zone.daylightDate = bad;
        EXPECT_EQ(11, service.toLocal(zone, noon).hour);
    }
    TimeZoneInformation far;
    far.bias = INT_MIN;
    EXPECT_NE(0, service.toLocal(far, noon).year);
}

TEST(SiteClock, TellsTheTimeInItsZone)
{
    const SiteClock utc{parsePosixTimeZone("UTC0")};
    const SiteClock india{parsePosixTimeZone("IST-5:30")};

    const auto apart = wholeSeconds(india.now()) - wholeSeconds(utc.now());

    EXPECT_GE(apart, 19800 - 2);
    EXPECT_LE(apart, 19800 + 2);
    const auto parts = partsOf(utc.now());
    const double expected = parts.hour * 3600 + parts.minute * 60 + parts.second;
    EXPECT_NEAR(expected, utc.timer(), 2.0);
}

} // namespace
