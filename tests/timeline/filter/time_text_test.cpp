#include "timeline/filter/time_text.h"

#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

const Moment lastRow = dayOf(2025, 2, 20) + ((15 * 60 + 23) * 60 + 7) * 1000 + 123;

constexpr Moment anHour = 3'600'000;

/// Pacific time in 2025: put forward on 9 March, put back on 2 November, each time at 2:00.
Moment pacificTime(Moment universal)
{
    const bool daylight =
        universal >= dayOf(2025, 3, 9) + 10 * anHour && universal < dayOf(2025, 11, 2) + 9 * anHour;
    return universal - (daylight ? 7 : 8) * anHour;
}

std::string since(const char* text, Moment reference = lastRow)
{
    ServerClock clock(pacificTime);
    return momentText(TimeText(text).moment(FrameEnd::since, reference, clock));
}

std::string until(const char* text, Moment reference = lastRow)
{
    ServerClock clock(pacificTime);
    return momentText(TimeText(text).moment(FrameEnd::until, reference, clock));
}

int errorOf(const char* text)
{
    try {
        TimeText read(text);
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(TimeText, NamesADayAndATimeOfIt)
{
    const struct {
        const char* text;
        const char* moment;
    } cases[] = {
        {"2025-02-19 15:20", "2025-02-19 15:20:00.000"},
        {"2025-02-19T15:20:07", "2025-02-19 15:20:07.000"},
        {"2025-2-9 5:20:07.050", "2025-02-09 05:20:07.050"},
        {"2024-02-29 23:59:59:999", "2024-02-29 23:59:59.999"},
        {"today 00:00", "2025-02-20 00:00:00.000"},
        {"yesterday 15:20", "2025-02-19 15:20:00.000"},
        {"15:20", "2025-02-20 15:20:00.000"},
        {"15:23:07:124", "2025-02-20 15:23:07.124"},
        {"Yesterday 15:20", "2025-02-19 15:20:00.000"},
        {"2025-02-19t15:20", "2025-02-19 15:20:00.000"},
        {"2025-12-31 23:59:59", "2025-12-31 23:59:59.000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.moment, since(c.text)) << c.text;
        EXPECT_EQ(c.moment, until(c.text)) << c.text;
    }
}

TEST(TimeText, ADayAloneIsAllOfIt)
{
    EXPECT_EQ("2025-02-19 00:00:00.000", since("2025-02-19"));
    EXPECT_EQ("2025-02-19 23:59:59.999", until("2025-02-19"));
    EXPECT_EQ("2025-02-20 00:00:00.000", since("today"));
    EXPECT_EQ("2025-02-19 23:59:59.999", until("yesterday"));
}

TEST(TimeText, GoesBackFromTheReference)
{
    EXPECT_EQ("2025-02-20 13:23:07.123", since("-2h"));
    EXPECT_EQ("2025-02-19 13:53:07.123", until("-1d1h30m"));
    EXPECT_EQ("2025-02-20 15:23:06.623", since("-500ms"));
    EXPECT_EQ("2025-02-13 15:23:07.123", since("-1w"));
    EXPECT_EQ("2025-02-20 13:23:07.123", since("2 hours ago"));
    EXPECT_EQ("2025-02-20 13:53:07.123", until("1h30m ago"));
    EXPECT_EQ("2025-02-20 13:53:07.123", since("1 Hour 30 Minutes AGO"));
    EXPECT_EQ("2025-02-20 15:22:07.123", until("1min ago"));
    EXPECT_EQ("2025-02-20 15:23:07.123", since("now"));
    EXPECT_EQ("2025-02-20 15:23:07.123", until("Now"));
}

TEST(TimeText, ADayBeforeTheFirstOfAMonthIsTheLastOfTheOneBefore)
{
    const Moment firstOfMarch = dayOf(2024, 3, 1) + anHour;
    EXPECT_EQ("2024-02-29 00:00:00.000", since("yesterday", firstOfMarch));
    EXPECT_EQ("2024-02-29 23:59:59.999", until("yesterday", firstOfMarch));
    EXPECT_EQ("2024-02-29 23:00:00.000", since("-2h", firstOfMarch));
    EXPECT_EQ("2024-12-31 15:00:00.000", since("yesterday 15:00", dayOf(2025, 1, 1)));
}

TEST(TimeText, WithAnOffsetIsTheTimeOfThatClock)
{
    const struct {
        const char* text;
        const char* moment;
    } cases[] = {
        {"2025-02-20T23:20Z", "2025-02-20 15:20:00.000"},
        {"2025-02-20 23:20:07.123 z", "2025-02-20 15:20:07.123"},
        {"2025-02-21T00:20+01:00", "2025-02-20 15:20:00.000"},
        {"2025-02-21 00:20 +0100", "2025-02-20 15:20:00.000"},
        {"2025-02-21T00:20+1", "2025-02-20 15:20:00.000"},
        {"2025-02-21T04:50+05:30", "2025-02-20 15:20:00.000"},
        {"2025-02-20T15:20-08:00", "2025-02-20 15:20:00.000"},
        {"2025-07-20T22:20Z", "2025-07-20 15:20:00.000"},
        {"2024-02-29T23:30-08:00", "2024-02-29 23:30:00.000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.moment, since(c.text)) << c.text;
        EXPECT_EQ(c.moment, until(c.text)) << c.text;
        EXPECT_FALSE(TimeText(c.text).needsReference()) << c.text;
        EXPECT_TRUE(TimeText(c.text).isInstant()) << c.text;
    }
}

TEST(TimeText, GoesBackByTheHoursThatPassedWhereTheClockWasPutForward)
{
    const Moment afterwards = dayOf(2025, 3, 9) + 4 * anHour;
    EXPECT_EQ("2025-03-09 01:00:00.000", since("-2h", afterwards));
    EXPECT_EQ("2025-03-09 01:00:00.000", until("-2h", afterwards));
    EXPECT_EQ("2025-03-09 03:30:00.000", since("-30m", afterwards));
    EXPECT_EQ("2025-03-09 02:30:00.000", since("2025-03-09 02:30"))
        << "no clock shows it, and no row has it";
}

TEST(TimeText, GoesBackFarEnoughWhereTheClockWasPutBack)
{
    const Moment afterwards = dayOf(2025, 11, 2) + 4 * anHour;
    EXPECT_EQ("2025-11-02 03:00:00.000", since("-1h", afterwards));
    EXPECT_EQ("2025-11-02 01:00:00.000", since("-3h", afterwards));
    EXPECT_EQ("2025-11-02 01:00:00.000", since("-3h30m", afterwards))
        << "after half past one the clock showed one again";
    EXPECT_EQ("2025-11-02 01:00:00.000", since("-4h", afterwards));
    EXPECT_EQ("2025-11-02 00:00:00.000", since("-5h", afterwards));
    EXPECT_EQ("2025-11-01 23:30:00.000", since("-2h", dayOf(2025, 11, 2) + anHour * 3 / 2))
        << "the first half past one may be meant";
}

TEST(TimeText, OfAnHourThatComesTwiceTakesAll)
{
    ServerClock clock(pacificTime);
    const TimeText time("2025-11-02 01:30");
    const Moment firstTime = dayOf(2025, 11, 2) + 8 * anHour + anHour / 2;
    EXPECT_EQ(firstTime, time.universal(FrameEnd::since, noMoment, clock));
    EXPECT_EQ(firstTime + anHour, time.universal(FrameEnd::until, noMoment, clock));
}

TEST(TimeText, TellsWhetherItNeedsAReference)
{
    for (const char* text : {"15:20", "today", "yesterday 15:20", "-2h", "2 hours ago", "now"})
        EXPECT_TRUE(TimeText(text).needsReference()) << text;
    EXPECT_FALSE(TimeText("2025-02-20").needsReference());
    EXPECT_EQ("", since("-2h", noMoment));
    EXPECT_EQ("", until("15:20", noMoment));
    EXPECT_EQ("2025-02-20 00:00:00.000", since("2025-02-20", noMoment));
}

TEST(TimeText, RefusesWhatIsNoTime)
{
    for (const char* text : {"",
                             " ",
                             "now ",
                             "nowadays",
                             "now 15:20",
                             "2025-02-30",
                             "2025-13-01",
                             "25-02-20",
                             "24:00",
                             "15:60",
                             "15:2",
                             "15",
                             "15:20:7",
                             "15:20:07.1",
                             "15:20 ",
                             "2025-02-20 ",
                             "2025-02-2015:20",
                             "today15:20",
                             "todayT15:20",
                             "2h",
                             "-",
                             "-2",
                             "-h",
                             "-2x",
                             "-2h ",
                             "--2h",
                             "-99999999999h",
                             "-999999999w",
                             "2025-02-20 -2h",
                             "2025-02-29",
                             "2025-04-31",
                             "tomorrow",
                             "ago",
                             " ago",
                             "hours ago",
                             "2 ago",
                             "2 hours",
                             "2  hours ago",
                             "2 hours  ago",
                             "2 hours agog",
                             "-2h ago",
                             "2 fortnights ago",
                             "15:20Z",
                             "today 15:20+01:00",
                             "2025-02-20Z",
                             "2025-02-20+01:00",
                             "2025-02-20T15:20+",
                             "2025-02-20T15:20+15",
                             "2025-02-20T15:20+01:60",
                             "2025-02-20T15:20 Z ",
                             "2025-02-20T15:20 PST"})
        EXPECT_EQ(runTimeErrors::invalidCall, errorOf(text)) << text;
}

TEST(ReadSpan, AddsItsParts)
{
    EXPECT_EQ(90'000, readSpan("90s"));
    EXPECT_EQ(5'400'000, readSpan("1h30m"));
    EXPECT_EQ(0, readSpan("0s"));
    EXPECT_EQ(7'200'000, readSpan("2 hours"));
    EXPECT_EQ(93'600'000, readSpan("1 day 2 hrs"));
    EXPECT_EQ(604'800'001, readSpan("1week 1 millisecond"));
    for (const char* text :
         {"", "h", "1", "1.5h", "-1h", "1 h 2", "2 hourss", "ss", "1 ss", "1h  2m", "1h ", " 1h"})
        EXPECT_THROW(readSpan(text), RunTimeError);
}

} // namespace
} // namespace timeline
