#include "timeline/filter/time_text.h"

#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

const Moment lastRow = dayOf(2025, 2, 20) + ((15 * 60 + 23) * 60 + 7) * 1000 + 123;

std::string since(const char* text)
{
    return momentText(TimeText(text).moment(FrameEnd::since, lastRow));
}

std::string until(const char* text)
{
    return momentText(TimeText(text).moment(FrameEnd::until, lastRow));
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

TEST(TimeText, GoesBackFromTheLastRow)
{
    EXPECT_EQ("2025-02-20 13:23:07.123", since("-2h"));
    EXPECT_EQ("2025-02-19 13:53:07.123", until("-1d1h30m"));
    EXPECT_EQ("2025-02-20 15:23:06.623", since("-500ms"));
    EXPECT_EQ("2025-02-13 15:23:07.123", since("-1w"));
}

TEST(TimeText, TellsWhetherItNeedsTheLastRow)
{
    for (const char* text : {"15:20", "today", "yesterday 15:20", "-2h"})
        EXPECT_TRUE(TimeText(text).needsLastRow()) << text;
    EXPECT_FALSE(TimeText("2025-02-20").needsLastRow());
    EXPECT_EQ(noMoment, TimeText("-2h").moment(FrameEnd::since, noMoment));
    EXPECT_EQ(noMoment, TimeText("15:20").moment(FrameEnd::until, noMoment));
    EXPECT_EQ(dayOf(2025, 2, 20), TimeText("2025-02-20").moment(FrameEnd::since, noMoment));
}

TEST(TimeText, RefusesWhatIsNoTime)
{
    for (const char* text : {"",
                             " ",
                             "now",
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
                             "2025-02-20 -2h"})
        EXPECT_EQ(runTimeErrors::invalidCall, errorOf(text)) << text;
}

TEST(ReadSpan, AddsItsParts)
{
    EXPECT_EQ(90'000, readSpan("90s"));
    EXPECT_EQ(5'400'000, readSpan("1h30m"));
    EXPECT_EQ(0, readSpan("0s"));
    for (const char* text : {"", "h", "1", "1.5h", "-1h"})
        EXPECT_THROW(readSpan(text), RunTimeError);
}

} // namespace
} // namespace timeline
