#include "runtime/dates.h"

#include "support/error_of.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double second = 1.0 / 86400;

bool operator==(const DateParts& left, const DateParts& right)
{
    return left.year == right.year && left.month == right.month && left.day == right.day &&
           left.hour == right.hour && left.minute == right.minute && left.second == right.second &&
           left.dayOfWeek == right.dayOfWeek;
}

TEST(PartsOf, NamesTheCalendarDayAndTheTime)
{
    struct Case {
        const char* because;
        double days;
        DateParts expected;
    };
    const Case cases[] = {
        {"the zero date", 0, {1899, 12, 30, 0, 0, 0, 7}},
        {"the day after", 1, {1899, 12, 31, 0, 0, 0, 1}},
        {"the day before", -1, {1899, 12, 29, 0, 0, 0, 6}},
        {"time counts forward below zero too", -1.25, {1899, 12, 29, 6, 0, 0, 6}},
        {"and on the zero day", -0.25, {1899, 12, 30, 6, 0, 0, 7}},
        {"an ordinary moment", 38633 + 55387 * second, {2005, 10, 8, 15, 23, 7, 7}},
        {"a leap day", 36585, {2000, 2, 29, 0, 0, 0, 3}},
        {"the day after it", 36586, {2000, 3, 1, 0, 0, 0, 4}},
        {"1900 has no leap day", 61, {1900, 3, 1, 0, 0, 0, 5}},
        {"the day before that", 60, {1900, 2, 28, 0, 0, 0, 4}},
        {"the first second of time", 25569, {1970, 1, 1, 0, 0, 0, 5}},
        {"the earliest day", -657434, {100, 1, 1, 0, 0, 0, 6}},
        {"the latest second", 2958465 + 86399 * second, {9999, 12, 31, 23, 59, 59, 6}},
        {"less than half a second goes down", 38633 + 7.49 * second, {2005, 10, 8, 0, 0, 7, 7}},
        {"half a second goes up", 38633 + 7.51 * second, {2005, 10, 8, 0, 0, 8, 7}},
        {"up into the next day", 38633 + 86399.9999 * second, {2005, 10, 9, 0, 0, 0, 1}},
        {"short of the next day", 38633 + 86399.4 * second, {2005, 10, 8, 23, 59, 59, 7}},
        {"up into the next day below zero", -2 - 86399.9 * second, {1899, 12, 29, 0, 0, 0, 6}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_TRUE(c.expected == partsOf(Date{c.days})) << sortableDateTime(Date{c.days});
    }
}

TEST(PartsOf, RaisesInvalidCallOutsideTheCalendar)
{
    for (const double days :
         {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        SCOPED_TRACE(days);
        EXPECT_EQ(5, errorOf([&] { partsOf(Date{days}); }));
    }
    EXPECT_EQ(5, errorOf([] { partsOf(Date{2958465 + 86399.9 * second}); }))
        << "the last half second belongs to a day that is none";
}

TEST(DateOf, IsTheInverseOfPartsOfOnEveryDayFrom100To9999)
{
    int dayOfWeek = 6;
    for (int day = -657434; day <= 2958465; ++day) {
        const DateParts parts = partsOf(Date{double(day)});
        ASSERT_EQ(day, dateOf(parts.year, parts.month, parts.day).days);
        ASSERT_EQ(dayOfWeek, parts.dayOfWeek) << day;
        dayOfWeek = dayOfWeek % 7 + 1;
    }
}

TEST(DateOf, IsTheInverseOfPartsOfAtEverySecondOfADay)
{
    for (const int day : {8, 29}) {
        const int year = day == 8 ? 2005 : 1899;
        for (int time = 0; time < 86400; ++time) {
            const int hour = time / 3600;
            const int minute = time / 60 % 60;
            const DateParts parts = partsOf(dateOf(year, 12, day, hour, minute, time % 60));
            ASSERT_EQ(time, parts.hour * 3600 + parts.minute * 60 + parts.second);
            ASSERT_EQ(day, parts.day);
        }
    }
}

TEST(DateOf, RaisesInvalidCallForPartsOutOfTheirRanges)
{
    struct Case {
        const char* because;
        int year, month, day, hour, minute, second;
    };
    const Case cases[] = {
        {"year 99", 99, 1, 1, 0, 0, 0},
        {"year 10000", 10000, 1, 1, 0, 0, 0},
        {"month 0", 2005, 0, 1, 0, 0, 0},
        {"month 13", 2005, 13, 1, 0, 0, 0},
        {"day 0", 2005, 1, 0, 0, 0, 0},
        {"31 April", 2005, 4, 31, 0, 0, 0},
        {"29 February of a common year", 2005, 2, 29, 0, 0, 0},
        {"29 February of a century", 1900, 2, 29, 0, 0, 0},
        {"30 February of a leap year", 2004, 2, 30, 0, 0, 0},
        {"a year that 16 bits would take for 100", 65536 + 100, 1, 1, 0, 0, 0},
        {"a month that 8 bits would take for January", 2005, 256 + 1, 1, 0, 0, 0},
        {"a day that 8 bits would take for the first", 2005, 1, 256 + 1, 0, 0, 0},
        {"hour 24", 2005, 1, 1, 24, 0, 0},
        {"minute 60", 2005, 1, 1, 0, 60, 0},
        {"second 60", 2005, 1, 1, 0, 0, 60},
        {"hour -1", 2005, 1, 1, -1, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(5, errorOf([&] { dateOf(c.year, c.month, c.day, c.hour, c.minute, c.second); }));
    }
    for (const int month : {1, 3, 5, 7, 8, 10, 12})
        EXPECT_EQ(5, errorOf([&] { dateOf(2005, month, 32); })) << "month " << month;
    for (const int month : {4, 6, 9, 11})
        EXPECT_EQ(5, errorOf([&] { dateOf(2005, month, 31); })) << "month " << month;
    EXPECT_EQ(0, errorOf([] { dateOf(2000, 2, 29); }));
    EXPECT_EQ(-1.25, dateOf(1899, 12, 29, 6).days);
}

TEST(DayOfAndTimeOf, PartAMoment)
{
    const Date moment = dateOf(2005, 10, 8, 15, 23, 7);
    EXPECT_EQ(dateOf(2005, 10, 8), dayOf(moment));
    EXPECT_EQ(dateOf(1899, 12, 30, 15, 23, 7), timeOf(moment));
    EXPECT_EQ(Date{-1}, dayOf(Date{-1.25}));
    EXPECT_EQ(Date{.25}, timeOf(Date{-1.25}));
    const Date nearMidnight{38633 + 86399.9999 * second};
    EXPECT_EQ(Date{38634}, dayOf(nearMidnight)) << "as the texts show it";
    EXPECT_EQ(Date{0}, timeOf(nearMidnight));
}

TEST(AddSeconds, GivesTheDateOfTheResultingPartsBitByBit)
{
    struct Case {
        const char* because;
        Date start;
        double seconds;
        Date expected;
    };
    const Case cases[] = {
        {"within a minute", dateOf(2005, 10, 8, 15, 23, 7), 1, dateOf(2005, 10, 8, 15, 23, 8)},
        {"over midnight", dateOf(2005, 12, 31, 23, 59, 59), 1, dateOf(2006, 1, 1)},
        {"back over midnight", dateOf(2006, 1, 1), -1, dateOf(2005, 12, 31, 23, 59, 59)},
        {"back below zero", dateOf(1899, 12, 30), -1, dateOf(1899, 12, 29, 23, 59, 59)},
        {"up from below zero", dateOf(1899, 12, 29, 18), 21600, Date{0}},
        {"within a day below zero", dateOf(1899, 12, 28, 6), 3600, dateOf(1899, 12, 28, 7)},
        {"a fraction of a second", dateOf(2005, 10, 8), 1.6, dateOf(2005, 10, 8, 0, 0, 2)},
        {"more than 16 bits", dateOf(2005, 10, 8), 86400 * 365.0, dateOf(2006, 10, 8)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, addSeconds(c.start, c.seconds));
    }
    EXPECT_EQ(dateOf(2005, 10, 8, 17), addHours(dateOf(2005, 10, 8, 15), 2));
    EXPECT_EQ(dateOf(2005, 10, 7, 22, 30), addHours(dateOf(2005, 10, 8), -1.5));
    EXPECT_EQ(dateOf(2005, 9, 24, 15, 23, 7), addDays(dateOf(2005, 10, 8, 15, 23, 7), -14));
    EXPECT_EQ(dateOf(2004, 2, 29), addDays(dateOf(2004, 2, 28), 1));
}

TEST(AddSeconds, RaisesInvalidCallOutsideTheCalendar)
{
    EXPECT_EQ(5, errorOf([] { addSeconds(dateOf(9999, 12, 31, 23, 59, 59), 1); }));
    EXPECT_EQ(5, errorOf([] { addDays(dateOf(100, 1, 1), -1); }));
    EXPECT_EQ(5, errorOf([] { addDays(Date{0}, 1e300); }));
    EXPECT_EQ(5, errorOf([] { addSeconds(Date{0}, std::numeric_limits<double>::quiet_NaN()); }));
}

TEST(WholeSeconds, CountOnOneLineThroughZero)
{
    EXPECT_EQ(0, wholeSeconds(Date{0}));
    EXPECT_EQ(55387, wholeSeconds(dateOf(1899, 12, 30, 15, 23, 7)));
    EXPECT_EQ(-1, wholeSeconds(dateOf(1899, 12, 29, 23, 59, 59)));
    EXPECT_EQ(-86400, wholeSeconds(dateOf(1899, 12, 29)));
    EXPECT_EQ(38633LL * 86400 + 8, wholeSeconds(Date{38633 + 7.6 * second}));
}

} // namespace
