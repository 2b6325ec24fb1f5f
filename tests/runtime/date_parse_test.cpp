#include "runtime/dates.h"

#include "support/error_of.h"

#include <gtest/gtest.h>
#include <random>

namespace {

Date timeAlone(int hour, int minute, int second = 0)
{
    return dateOf(1899, 12, 30, hour, minute, second);
}

TEST(ParseDate, ReadsEveryFormMonthFirst)
{
    struct Case {
        const char* because;
        const char* text;
        Date expected;
    };
    const Case cases[] = {
        {"the general form", "10/8/2005 3:23:07 PM", dateOf(2005, 10, 8, 15, 23, 7)},
        {"a date alone", "10/8/2005", dateOf(2005, 10, 8)},
        {"two digits each", "01/02/2005", dateOf(2005, 1, 2)},
        {"a long time alone", "3:23:07 PM", timeAlone(15, 23, 7)},
        {"a medium time", "03:23 PM", timeAlone(15, 23)},
        {"a short time", "15:23", timeAlone(15, 23)},
        {"a clock time", "15:23:07", timeAlone(15, 23, 7)},
        {"one digit each", "3:2:7", timeAlone(3, 2, 7)},
        {"a long date", "Saturday, October 8, 2005", dateOf(2005, 10, 8)},
        {"a long date and a time", "Saturday, October 8, 2005 03:23 PM",
         dateOf(2005, 10, 8, 15, 23)},
        {"names in any case", "SATURDAY, october 8, 2005", dateOf(2005, 10, 8)},
        {"year first", "2005-10-08", dateOf(2005, 10, 8)},
        {"year first and a time", "2005-10-08 15:23:07", dateOf(2005, 10, 8, 15, 23, 7)},
        {"a short time behind a date", "10/8/2005 15:23", dateOf(2005, 10, 8, 15, 23)},
        {"a small pm", "3:23:07 pm", timeAlone(15, 23, 7)},
        {"mixed case", "3:23:07 Am", timeAlone(3, 23, 7)},
        {"no blank before the half of the day", "3:23PM", timeAlone(15, 23)},
        {"noon", "12:00 PM", timeAlone(12, 0)},
        {"midnight", "12:00 AM", Date{0}},
        {"just past midnight", "12:00:01 AM", timeAlone(0, 0, 1)},
        {"just past noon", "12:59:59 PM", timeAlone(12, 59, 59)},
        {"midnight on the clock", "0:00:00", Date{0}},
        {"the last second", "23:59:59", timeAlone(23, 59, 59)},
        {"blanks at the ends", "  10/8/2005  ", dateOf(2005, 10, 8)},
        {"more blanks than one", "2005-10-08   15:23:07", dateOf(2005, 10, 8, 15, 23, 7)},
        {"a leap day", "2/29/2004", dateOf(2004, 2, 29)},
        {"the zero date", "12/30/1899", Date{0}},
        {"before the zero date", "12/29/1899 6:00:00 AM", Date{-1.25}},
        {"an early year", "1/1/100", dateOf(100, 1, 1)},
        {"the last day", "12/31/9999 11:59:59 PM", dateOf(9999, 12, 31, 23, 59, 59)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected.days, parseDate(c.text).days);
    }
}

TEST(ParseDate, RaisesTypeMismatchForAnythingElse)
{
    const char* const texts[] = {
        "",
        "   ",
        "abc",
        "10",
        "10/8",
        "10/8/",
        "10/8/05",
        "10/8/20055",
        "2005-010-08",
        "2005-10-008",
        "10/8/2005x",
        "10/8/2005 ,",
        "10/8/200515:23",
        "10/8/2005 3",
        "10/8/2005 3 PM",
        "10/8/2005 PM",
        "13/1/2005",
        "0/1/2005",
        "10/0/2005",
        "10/32/2005",
        "2/29/2005",
        "2/29/1900",
        "1/1/099",
        "-1/1/2005",
        "10-8-2005",
        "05-10-08",
        "2005-10",
        "2005-13-01",
        "2005/10/08",
        "2005-10-08T15:23:07",
        "2005-10-08 25:00",
        "24:00",
        "23:60",
        "23:59:60",
        "123:00",
        "1:234",
        "1:2:345",
        ":23",
        "15:",
        "15:23:",
        "15:23:07.5",
        "13:00 PM",
        "0:30 AM",
        "3:23 XM",
        "3:23 P",
        "3:23 PMM",
        "3:23 PM 5",
        "3:23 PM PM",
        "-3:23",
        "3:-23",
        "Sunday, October 8, 2005",
        "Saturday October 8, 2005",
        "Saturday, Oct 8, 2005",
        "October 8, 2005",
        "Saturday, October 8",
        "Saturday, October 32, 2005",
        "Satur",
        "20051008_152307",
        "99999999999999999999",
        "\xFF\xFE",
        "\t15:23",
        "15:23\r",
    };
    for (const char* const text : texts) {
        SCOPED_TRACE(text);
        EXPECT_EQ(13, errorOf([&] { parseDate(text); }));
    }
    EXPECT_EQ(13, errorOf([] { parseDate(std::string_view("15:23\0", 6)); }));
    EXPECT_EQ(13, errorOf([] { parseDate(std::string(100000, '1')); }));
}

TEST(ParseDate, TakesBackWhatEachTextShows)
{
    std::mt19937 random(20051008);
    std::uniform_int_distribution<int> days(-657434, 2958465);
    std::uniform_int_distribution<int> seconds(0, 86399);
    for (int round = 0; round < 20000; ++round) {
        const Date moment = addSeconds(Date{double(days(random))}, seconds(random));
        const DateParts parts = partsOf(moment);
        ASSERT_EQ(moment, parseDate(dateText(moment))) << dateText(moment);
        ASSERT_EQ(moment, parseDate(sortableDateTime(moment)));
        ASSERT_EQ(moment, parseDate(shortDate(moment) + " " + longTime(moment)));
        ASSERT_EQ(dayOf(moment), parseDate(shortDate(moment)));
        ASSERT_EQ(dayOf(moment), parseDate(longDate(moment))) << longDate(moment);
        ASSERT_EQ(timeOf(moment), parseDate(longTime(moment)));
        ASSERT_EQ(timeOf(moment), parseDate(clockTime(moment)));
        ASSERT_EQ(timeAlone(parts.hour, parts.minute), parseDate(mediumTime(moment)));
        ASSERT_EQ(timeAlone(parts.hour, parts.minute), parseDate(shortTime(moment)));
    }
}

TEST(ParseDate, RaisesNothingButTypeMismatchForGarbage)
{
    std::mt19937 random(7);
    const std::string characters = "0123456789:/- ,APMapmSaturdyOctobe\t";
    std::uniform_int_distribution<std::size_t> pick(0, characters.size() - 1);
    std::uniform_int_distribution<std::size_t> length(0, 24);
    int refused = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string text;
        for (std::size_t left = length(random); left > 0; --left) text += characters[pick(random)];
        const int error = errorOf([&] { parseDate(text); });
        ASSERT_TRUE(error == 0 || error == 13) << text;
        refused += error == 13;
    }
    EXPECT_GT(refused, 90000);
}

} // namespace
