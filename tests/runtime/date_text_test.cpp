#include "runtime/dates.h"

#include <gtest/gtest.h>

namespace {

constexpr double second = 1.0 / 86400;

TEST(DateText, ShowsDateAndTimeOrTheOneThatIsNotZero)
{
    struct Case {
        const char* because;
        Date date;
        const char* expected;
    };
    const Case cases[] = {
        {"both", dateOf(2005, 10, 8, 15, 23, 7), "10/8/2005 3:23:07 PM"},
        {"a zero date shows the time alone", dateOf(1899, 12, 30, 15, 23, 7), "3:23:07 PM"},
        {"a zero time shows the date alone", dateOf(2005, 10, 8), "10/8/2005"},
        {"the zero moment", Date{0}, "12:00:00 AM"},
        {"noon", dateOf(2005, 1, 2, 12), "1/2/2005 12:00:00 PM"},
        {"just after midnight", dateOf(2005, 1, 2, 0, 0, 1), "1/2/2005 12:00:01 AM"},
        {"just before noon", dateOf(2005, 1, 2, 11, 59, 59), "1/2/2005 11:59:59 AM"},
        {"just before midnight", dateOf(2005, 1, 2, 23, 59, 59), "1/2/2005 11:59:59 PM"},
        {"the day before the zero date", Date{-1}, "12/29/1899"},
        {"a time before the zero date", Date{-1.25}, "12/29/1899 6:00:00 AM"},
        {"fractions go to the nearest second", Date{38633 + 7.6 * second}, "10/8/2005 12:00:08 AM"},
        {"up to midnight", Date{38633 + 86399.9999 * second}, "10/9/2005"},
        {"up to midnight of the zero date", Date{86399.9999 * second}, "12/31/1899"},
        {"an early year", dateOf(100, 1, 1), "1/1/100"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, dateText(c.date));
        std::string text = "at ";
        appendDateText(text, c.date);
        EXPECT_EQ(std::string("at ") + c.expected, text);
    }
}

TEST(NamedForms, ShowTheSameMoment)
{
    const Date moment = dateOf(2005, 10, 8, 15, 23, 7);
    EXPECT_EQ("10/8/2005", shortDate(moment));
    EXPECT_EQ("Saturday, October 8, 2005", longDate(moment));
    EXPECT_EQ("3:23:07 PM", longTime(moment));
    EXPECT_EQ("03:23 PM", mediumTime(moment));
    EXPECT_EQ("15:23", shortTime(moment));
    EXPECT_EQ("15:23:07", clockTime(moment));
    EXPECT_EQ("20051008_152307", fileStamp(moment));
    EXPECT_EQ("2005-10-08 15:23:07", sortableDateTime(moment));
}

TEST(NamedForms, ShowMidnightAndNoon)
{
    const Date midnight = dateOf(2005, 1, 2);
    EXPECT_EQ("12:00:00 AM", longTime(midnight));
    EXPECT_EQ("12:00 AM", mediumTime(midnight));
    EXPECT_EQ("00:00", shortTime(midnight));
    EXPECT_EQ("00:00:00", clockTime(midnight));
    EXPECT_EQ("20050102_000000", fileStamp(midnight));
    EXPECT_EQ("2005-01-02 00:00:00", sortableDateTime(midnight));
    const Date noon = dateOf(2005, 1, 2, 12, 59, 59);
    EXPECT_EQ("12:59:59 PM", longTime(noon));
    EXPECT_EQ("12:59 PM", mediumTime(noon)) << "minutes are cut, not rounded";
    EXPECT_EQ("12:59", shortTime(noon));
}

TEST(NamedForms, AgreeOnTheDayOfAMomentJustShortOfMidnight)
{
    const Date moment{38633 + 86399.9999 * second};
    EXPECT_EQ("10/9/2005", shortDate(moment));
    EXPECT_EQ("Sunday, October 9, 2005", longDate(moment));
    EXPECT_EQ("12:00:00 AM", longTime(moment));
    EXPECT_EQ("00:00:00", clockTime(moment));
    EXPECT_EQ("20051009_000000", fileStamp(moment));
    EXPECT_EQ("2005-10-09 00:00:00", sortableDateTime(moment));
}

TEST(NamedForms, FillShortYearsWhereTheWidthIsFixed)
{
    const Date early = dateOf(987, 6, 5, 4, 3, 2);
    EXPECT_EQ("6/5/987", shortDate(early));
    EXPECT_EQ("09870605_040302", fileStamp(early));
    EXPECT_EQ("0987-06-05 04:03:02", sortableDateTime(early));
}

TEST(LongDate, NamesEveryMonthAndDay)
{
    EXPECT_EQ("Wednesday, September 28, 2005", longDate(dateOf(2005, 9, 28)));
    const char* const months[] = {"January",   "February", "March",    "April",
                                  "May",       "June",     "July",     "August",
                                  "September", "October",  "November", "December"};
    const char* const days[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                "Thursday", "Friday", "Saturday"};
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= 7; ++day) {
            const Date date = dateOf(2005, month, day);
            const std::string expected = std::string(days[partsOf(date).dayOfWeek - 1]) + ", " +
                                         months[month - 1] + " " + std::to_string(day) + ", 2005";
            EXPECT_EQ(expected, longDate(date));
        }
    }
}

} // namespace
