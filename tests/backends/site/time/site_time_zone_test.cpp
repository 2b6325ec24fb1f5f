#include "backends/site/time/site_time_zone.h"

#include "backends/site/time/site_clock.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

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
        {"the day beside it may stand in another week", "<-02>2<-01>,M10.2.0/-1,M9.4.4/26", 120,
         -60, rule(0, 10, 6, 1, 23), rule(0, 9, 5, 5, 2)},
        {"or in another month", "AAA0BBB,M10.1.0/-1,M5.5.3/26", 0, -60, rule(0, 9, 6, 5, 23),
         rule(0, 6, 4, 1, 2)},
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

/// The zones of the world by kind of rule, and some that no country has.
const char* const zonesOfManyRules[] = {
    "MST7",
    "PST8PDT,M3.2.0,M11.1.0",
    "CET-1CEST,M3.5.0,M10.5.0/3",
    "AEST-10AEDT,M10.1.0,M4.1.0/3",
    "IST-1GMT0,M10.5.0,M3.5.0/1",
    "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0",
    "<+1245>-12:45<+1345>,M9.5.0/2:45,M4.1.0/3:45",
    "EET-2EEST,M3.4.4/26,M10.4.4/50",
    "EET-2EEST,M3.4.4/50,M10.4.4/50",
    "IST-2IDT,M3.4.4/26,M10.5.0",
    "EET-2EEST,M4.5.5/0,M10.5.4/24",
    "<-02>2<-01>,M3.5.0/-1,M10.5.0/0",
    "<-04>4<-03>,M9.1.6/24,M4.1.6/24",
    "<-06>6<-05>,M9.1.6/22,M4.1.6/22",
    "EET-2EEST,M3.5.0/3,M10.5.0/4",
    "AAA3BBB,M3.1.0/-49,M10.5.6/167",
    "AAA-3BBB,M2.5.6/-167,M8.5.3/100:30",
    "AAA0BBB,J60/2:30,J299",
    "AAA0BBB,59/30,299/-5",
};

/// The C library's own arithmetic of a zone.
class LibraryZone {
public:
    explicit LibraryZone(const char* zone)
    {
        if (const char* variable = std::getenv("TZ")) before_ = variable;
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~LibraryZone()
    {
        if (before_)
            ::setenv("TZ", before_->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }
    LibraryZone(const LibraryZone&) = delete;
    LibraryZone& operator=(const LibraryZone&) = delete;

    static SystemTime local(std::time_t moment)
    {
        std::tm parts{};
        ::localtime_r(&moment, &parts);
        return systemTime(parts);
    }

    static SystemTime universal(std::time_t moment)
    {
        std::tm parts{};
        ::gmtime_r(&moment, &parts);
        return systemTime(parts);
    }

private:
    static SystemTime systemTime(const std::tm& parts)
    {
        return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_wday, parts.tm_mday,
                parts.tm_hour,        parts.tm_min,     parts.tm_sec,  0};
    }

    std::optional<std::string> before_;
};

constexpr std::time_t newYear2000 = 946684800;
constexpr std::time_t newYear2028 = 1830297600; ///< the days of the week and years come round
constexpr std::time_t fiveHours = 18000;        ///< takes each hour of a day in turn

TEST(SiteTimeZone, ConvertsAsTheCLibraryDoesInEveryYear)
{
    for (const char* text : zonesOfManyRules) {
        SCOPED_TRACE(text);
        const LibraryZone library(text);
        const SiteTimeZone service(parsePosixTimeZone(text), [] { return 1136678400; });
        TimeZoneInformation record;
        service.read(record);
        for (auto moment = newYear2000; moment < newYear2028; moment += fiveHours)
            ASSERT_EQ(library.local(moment), service.toLocal(record, library.universal(moment)))
                << moment;
    }
}

TEST(TimeZoneRecord, IsRightByItselfInItsYear)
{
    const SiteTimeZone anotherZone{PosixTimeZone{}};
    for (const char* text : zonesOfManyRules) {
        SCOPED_TRACE(text);
        const LibraryZone library(text);
        TimeZoneInformation record;
        int recordYear = 0;
        for (auto moment = newYear2000; moment < newYear2028; moment += fiveHours) {
            const SystemTime expected = library.local(moment);
            if (expected.year != recordYear) record = recordOf(text, recordYear = expected.year);
            ASSERT_EQ(expected, anotherZone.toLocal(record, library.universal(moment))) << moment;
        }
    }
}

TEST(SiteTimeZone, KeepsTheMillisecondsOfAMoment)
{
    const SiteTimeZone service(parsePosixTimeZone("PST8PDT,M3.2.0,M11.1.0"));
    TimeZoneInformation record;
    service.read(record);

    EXPECT_EQ(7, service.toLocal(record, {2006, 7, 6, 8, 12, 0, 0, 7}).milliseconds);
    EXPECT_EQ(7, service.toLocal({}, {2006, 7, 6, 8, 12, 0, 0, 7}).milliseconds);
}

TEST(SiteTimeZone, ADayPastTheThirtyFirstIsNoDateHoweverLargeItIs)
{
    const SiteTimeZone service{PosixTimeZone{}};
    for (const int day : {32, 256 + 1, 65536 + 1})
        EXPECT_EQ(5, errorOf([&] { service.toLocal({}, {2006, 7, 6, day, 12, 0, 0, 0}); })) << day;
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
