#include "gather/importers/row_dates.h"

#include "core/utility.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

/// A row's dates at a file's creation and the time of a stamp.
RowDates datesAt(Date created, const std::string& timeStamp)
{
    RowDates dates;
    dates.startDay(created);
    dates.readTime(timeStamp);
    return dates;
}

} // namespace

TEST(RowDates, TheMomentEqualsThatOfTheTextsBitByBit)
{
    for (const Date day : {dateOf(1899, 12, 31), dateOf(1900, 1, 1), dateOf(2005, 10, 8),
                           dateOf(2024, 2, 29), dateOf(9999, 12, 31)}) {
        for (int second = 0; second < 86'400; second += 61) {
            const Date time = addSeconds(Date{}, second);
            RowDates dates = datesAt(day, clockTime(time) + ":123");
            dates.formMoment();
            const Date slow = parseDate(dateText(day) + " " + dateText(time));
            ASSERT_EQ(slow.days, dates.moment().days) << dateText(slow);
        }
    }
}

TEST(RowDates, BeforeTheZeroDateTheTimeStillCountsForward)
{
    RowDates dates = datesAt(dateOf(1899, 12, 28), "06:00:00:000");
    dates.formMoment();
    EXPECT_EQ(dateOf(1899, 12, 28, 6, 0, 0), dates.moment());
}

TEST(RowDates, TheZeroDateHasNoTextBehindWhichATimeCanStand)
{
    RowDates dates = datesAt(Date{}, "15:23:07:123");
    EXPECT_EQ(13, errorOf([&] { dates.formMoment(); }));
    EXPECT_EQ(Date{}, dates.moment());
}

TEST(RowDates, AStampThatNamesADateForATimeGivesNoMoment)
{
    RowDates dates = datesAt(dateOf(2005, 10, 8), "abc 10/9/2005");
    EXPECT_EQ(13, errorOf([&] { dates.formMoment(); }));
}

TEST(RowDates, AFailedStampKeepsTheTimeOfTheLineBefore)
{
    RowDates dates = datesAt(dateOf(2005, 10, 8), "15:23:07:123");
    EXPECT_EQ(13, errorOf([&] { dates.readTime("no time at all"); }));
    dates.formMoment();
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23, 7), dates.moment());
}

TEST(RowDates, FormsTheTextOfARowsDateInOneOfThreeWays)
{
    struct Case {
        const char* because;
        const char* timeStamp;
        const char* expected;
    };
    const Case cases[] = {
        {"exactly 12 characters are kept whole", "15:23:07:123", "10/8/2005 15:23:07:123"},
        {"what stands behind the milliseconds is dropped", "15:23:07:123456",
         "10/8/2005 15:23:07:123"},
        {"a shorter stamp is kept as it is", "15:23", "10/8/2005 15:23"},
        {"no stamp leaves the blank", "", "10/8/2005 "},
        {"a stamp with a date keeps its time alone", "1999-01-01 15:23:07",
         "10/8/2005 15:23:07:000"},
        {"however long it is", "1999-01-01 15:23:07:123 PST", "10/8/2005 15:23:07:123 PST:000"},
        {"a blank at position 2 counts", "1 15:23:07", "10/8/2005 15:23:07:000"},
        {"a blank at position 1 does not", " 15:23:07:123", "10/8/2005  15:23:07:12"},
    };
    const RowDates dates = datesAt(dateOf(2005, 10, 8, 9, 30, 0), "15:23:07:123");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string text = "left from before";
        dates.rowDate(c.timeStamp, text);
        EXPECT_EQ(c.expected, text);
    }
}

TEST(RowDates, TheLastDayOfTheCalendarHasNoNext)
{
    RowDates dates = datesAt(dateOf(9999, 12, 31), "00:00:00:000");
    EXPECT_EQ(5, errorOf([&] { dates.nextDay(); }));
}

TEST(RowDates, ReadsEveryStampAsItsTextIsRead)
{
    const char* stamps[] = {
        "15:23:07:123",
        "00:00:00:000",
        "23:59:59:999",
        "24:00:00:000",
        "23:60:00:000",
        "23:59:60:000",
        "1 :23:07:123",
        "15:23:07 123",
        "15:23:07:12x",
        "15:23:0x:123",
        "15:23:07.123",
        "2005-10-08 15:23:07",
        "2005-10-08 25:23:07",
        "2005-10-08  5:23:07",
        "2005-1 -08 15:23:07",
        "20 5-10-08 15:23:07",
        "99-99-9999 15:23:07",
        "",
        " ",
        ":",
        "15:23",
        "15:23:07:1234",
        "3:23:07 PM:12",
        "0000-00-00 00:00:00",
    };
    for (const std::string stamp : stamps) {
        SCOPED_TRACE(stamp);
        Date expected;
        const int error = errorOf([&] { expected = parseTimeText(stamp); });
        RowDates dates;
        dates.startDay(dateOf(2005, 10, 8));
        EXPECT_EQ(error, errorOf([&] { dates.readTime(stamp); }));
        if (error != 0 || expected.days < 0 || expected.days >= 1) continue;
        dates.formMoment();
        EXPECT_EQ(38'633 + expected.days, dates.moment().days);
    }
}
