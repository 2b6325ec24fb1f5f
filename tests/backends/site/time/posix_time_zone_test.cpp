#include "backends/site/time/posix_time_zone.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Day = TimeZoneChange::Day;

constexpr std::int64_t secondsADay = 86400;

/// Seconds since 1970 of a moment of universal time.
std::int64_t at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return wholeSeconds(dateOf(year, month, day, hour, minute, second)) -
           wholeSeconds(dateOf(1970, 1, 1));
}

TEST(ParsePosixTimeZone, ReadsNamesOffsetsAndRules)
{
    struct Case {
        const char* because;
        const char* text;
        PosixTimeZone expected;
    };
    const TimeZoneChange march{Day::weekOfMonth, 3, 2, 0, 7200};
    const TimeZoneChange november{Day::weekOfMonth, 11, 1, 0, 7200};
    const Case cases[] = {
        {"no daylight time", "UTC0", {"UTC", 0, false, "", 0, {}, {}}},
        {"west is counted positive", "MST7", {"MST", -25200, false, "", 0, {}, {}}},
        {"a quoted name may hold digits", "<+0530>-5:30", {"+0530", 19800, false, "", 0, {}, {}}},
        {"a signed offset", "<-03>+3", {"-03", -10800, false, "", 0, {}, {}}},
        {"minutes and seconds", "LMT-0:14:44", {"LMT", 884, false, "", 0, {}, {}}},
        {"rules by week",
         "PST8PDT,M3.2.0,M11.1.0",
         {"PST", -28800, true, "PDT", -25200, march, november}},
        {"without rules those of the United States",
         "PST8PDT",
         {"PST", -28800, true, "PDT", -25200, march, november}},
        {"an offset but no rules",
         "PST8PDT6",
         {"PST", -28800, true, "PDT", -21600, march, november}},
        {"a daylight offset and times",
         "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0/3:30",
         {"+1030",
          37800,
          true,
          "+11",
          39600,
          {Day::weekOfMonth, 10, 1, 0, 7200},
          {Day::weekOfMonth, 4, 1, 0, 12600}}},
        {"numbered days, and hours past a day or below it",
         "AAA3BBB,J60/-1,300/25",
         {"AAA",
          -10800,
          true,
          "BBB",
          -7200,
          {Day::withoutLeap, 0, 0, 60, -3600},
          {Day::zeroBased, 0, 0, 300, 90000}}},
        {"daylight time that is behind standard time",
         "IST-1GMT0,M10.5.0,M3.5.0/1",
         {"IST",
          3600,
          true,
          "GMT",
          0,
          {Day::weekOfMonth, 10, 5, 0, 7200},
          {Day::weekOfMonth, 3, 5, 0, 3600}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, parsePosixTimeZone(c.text));
    }
}

TEST(ParsePosixTimeZone, Raises5ForWhatIsNoZone)
{
    for (const char* text : {"",
                             "PST",
                             "8",
                             "PS8",
                             "PST8PD",
                             "PST25",
                             "PST8:60",
                             "PST8PDT,M3.2.0",
                             "PST8PDT,",
                             "PST8PDT,M13.2.0,M11.1.0",
                             "PST8PDT,M3.6.0,M11.1.0",
                             "PST8PDT,M3.2.7,M11.1.0",
                             "PST8PDT,M0.2.0,M11.1.0",
                             "PST8PDT,J0,J365",
                             "PST8PDT,J1,J366",
                             "PST8PDT,0,366",
                             "PST8PDT,M3.2.0/168,M11.1.0",
                             "PST8PDT,M3.2.0,M11.1.0x",
                             "<PST8",
                             "<>8",
                             " PST8",
                             "America/New_York",
                             "PST99999999999999999999",
                             "PST8\n"})
        EXPECT_EQ(5, errorOf([&] { parsePosixTimeZone(text); })) << text;
}

TEST(ParsePosixTimeZone, AnswersAnyTextWithAZoneOr5)
{
    const std::string pieces[] = {"PST", "8", "PDT", ",", "M3.2.0", "/",  "-", "+",
                                  "J60", "<", ">",   ":", "167",    "59", ".", "\xFF"};
    std::mt19937 random(11);
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (unsigned count = random() % 12; count > 0; --count) text += pieces[random() % 16];
        const int error = errorOf([&] {
            const auto zone = parsePosixTimeZone(text);
            for (const std::int64_t moment : {INT64_MIN, std::int64_t{0}, INT64_MAX})
                localDate(zone, moment);
        });
        EXPECT_TRUE(error == 0 || error == 5) << text;
    }
}

TEST(IsDaylightTime, ChangesAtTheMomentOfTheRule)
{
    struct Case {
        const char* because;
        const char* zone;
        std::int64_t start;
        std::int64_t end;
    };
    const Case cases[] = {
        {"the west coast in 2006 by today's rule", "PST8PDT,M3.2.0,M11.1.0", at(2006, 3, 12, 10),
         at(2006, 11, 5, 9)},
        {"central Europe, the last Sundays", "CET-1CEST,M3.5.0,M10.5.0/3", at(2006, 3, 26, 1),
         at(2006, 10, 29, 1)},
        {"a week of five where the month has but four", "AAA0BBB,M2.5.3/0,M9.5.3/1",
         at(2006, 2, 22), at(2006, 9, 27)},
        {"a time past midnight of the next day", "IST-2IDT,M3.4.4/26,M10.5.0", at(2006, 3, 24),
         at(2006, 10, 28, 23)},
        {"a time before midnight", "<-02>2<-01>,M3.5.0/-1,M10.5.0/0", at(2006, 3, 26, 1),
         at(2006, 10, 29, 1)},
        {"a numbered day that passes over 29 February", "AAA0BBB,J60/0,J300/1", at(2004, 3, 1),
         at(2004, 10, 27)},
        {"a numbered day that counts it", "AAA0BBB,59/0,299/1", at(2004, 2, 29), at(2004, 10, 26)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto zone = parsePosixTimeZone(c.zone);
        EXPECT_FALSE(isDaylightTime(zone, c.start - 1));
        EXPECT_TRUE(isDaylightTime(zone, c.start));
        EXPECT_TRUE(isDaylightTime(zone, c.end - 1));
        EXPECT_FALSE(isDaylightTime(zone, c.end));
    }
}

TEST(IsDaylightTime, SpansTheNewYearInTheSouth)
{
    const auto sydney = parsePosixTimeZone("AEST-10AEDT,M10.1.0,M4.1.0/3");

    EXPECT_TRUE(isDaylightTime(sydney, at(2006, 1, 1) - 1));
    EXPECT_TRUE(isDaylightTime(sydney, at(2006, 1, 1)));
    EXPECT_TRUE(isDaylightTime(sydney, at(2006, 4, 1, 16) - 1));
    EXPECT_FALSE(isDaylightTime(sydney, at(2006, 4, 1, 16)));
    EXPECT_FALSE(isDaylightTime(sydney, at(2006, 9, 30, 16) - 1));
    EXPECT_TRUE(isDaylightTime(sydney, at(2006, 9, 30, 16)));
}

TEST(IsDaylightTime, CanLastTheWholeYear)
{
    const auto zone = parsePosixTimeZone("XXX3EDT4,0/0,J365/23");

    for (int day = 0; day < 800; ++day)
        EXPECT_TRUE(isDaylightTime(zone, at(2003, 12, 1) + day * secondsADay + 43200));
}

TEST(IsDaylightTime, BeginsInTheYearBesideItsRulesWhereTheTimeSaysSo)
{
    const auto early = parsePosixTimeZone("AAA0BBB,M1.1.0/-1,M7.1.0/0");
    EXPECT_FALSE(isDaylightTime(early, at(2005, 12, 31, 23) - 1)); // 1 January 2006 is a Sunday
    EXPECT_TRUE(isDaylightTime(early, at(2005, 12, 31, 23)));
    EXPECT_TRUE(isDaylightTime(early, at(2006, 1, 1)));

    const auto late = parsePosixTimeZone("AAA0BBB,M7.1.0/0,M12.5.0/25");
    EXPECT_TRUE(isDaylightTime(late, at(2007, 1, 1, 0) - 1)); // 31 December 2006 is a Sunday
    EXPECT_FALSE(isDaylightTime(late, at(2007, 1, 1, 0)));
    EXPECT_FALSE(isDaylightTime(late, at(2007, 1, 1, 1)));
}

TEST(LocalDate, IsTheDateOnTheServersWall)
{
    const auto zone = parsePosixTimeZone("PST8PDT,M3.2.0,M11.1.0");

    EXPECT_EQ(dateOf(2006, 7, 1, 5), localDate(zone, at(2006, 7, 1, 12)));
    EXPECT_EQ(dateOf(2005, 12, 31, 23, 59, 59), localDate(zone, at(2006, 1, 1, 7, 59, 59)));
    EXPECT_EQ(dateOf(1969, 12, 31, 16), localDate(zone, 0));
}

TEST(LocalDate, StaysWithinTheCalendar)
{
    EXPECT_EQ(dateOf(9999, 12, 31, 23, 59, 59), localDate(PosixTimeZone{}, INT64_MAX));
    EXPECT_EQ(dateOf(100, 1, 1), localDate(PosixTimeZone{}, INT64_MIN));
}

class MachineTimeZone : public testing::Test {
protected:
    MachineTimeZone()
    {
        if (const char* before = std::getenv("TZ")) before_ = before;
    }
    ~MachineTimeZone() override
    {
        if (before_.empty())
            ::unsetenv("TZ");
        else
            ::setenv("TZ", before_.c_str(), 1);
    }

    static PosixTimeZone with(const std::string& variable)
    {
        ::setenv("TZ", variable.c_str(), 1);
        return machineTimeZone();
    }

private:
    std::string before_;
};

TEST_F(MachineTimeZone, TakesTheTextOfTheVariable)
{
    EXPECT_EQ(parsePosixTimeZone("EST5EDT4,M3.1.0,M11.2.0"), with("EST5EDT4,M3.1.0,M11.2.0"));
    EXPECT_EQ(parsePosixTimeZone("AAA-3"), with(":AAA-3"));
}

TEST_F(MachineTimeZone, TakesTheRuleAtTheEndOfAZoneFile)
{
    const TemporaryFolder folder;
    const auto path = folder.write("zone", "TZif2\n(tables)\nCET-1CEST,M3.5.0,M10.5.0/3\n");

    EXPECT_EQ(parsePosixTimeZone("CET-1CEST,M3.5.0,M10.5.0/3"), with(path));
    EXPECT_EQ(parsePosixTimeZone("CET-1CEST,M3.5.0,M10.5.0/3"), with(":" + path));
}

TEST_F(MachineTimeZone, IsUniversalTimeWhenNothingTellsIt)
{
    const TemporaryFolder folder;

    EXPECT_EQ(PosixTimeZone{}, with(""));
    EXPECT_EQ(PosixTimeZone{}, with("No/Such_Zone"));
    EXPECT_EQ(PosixTimeZone{}, with(folder.write("zone", "TZif2 but no rule")));
    EXPECT_EQ(PosixTimeZone{}, with(folder.write("zone2", "TZif2\n\n")));
    EXPECT_EQ(PosixTimeZone{}, with(folder / "none"));
}

} // namespace
