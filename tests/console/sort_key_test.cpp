#include "console/sort_key.h"

#include <gtest/gtest.h>

TEST(SortKey, PutsNumbersBeforeDatesBeforeTexts)
{
    struct Case {
        const char* because;
        const char* less;
        const char* more;
    };
    const Case cases[] = {
        {"numbers compare by value, blanks around them aside", " 9", " 10"},
        {"a negative number is below zero", "-5", "0"},
        {"dates compare by time, not by letters", "2/9/2025 3:23:07 PM", "11/2/2025 1:00:00 AM"},
        {"a date alone is its midnight", "2/9/2025", "2/9/2025 12:00:01 AM"},
        {"a number stands before a date", "99999", "2/9/2025"},
        {"a date stands before a text", "2/9/2025", "a"},
        {"a text with a slash that is no date is a text", "7/x/2", "a"},
        {"times of a log compare as they stand", "14:41:15:089", "14:41:34:375"},
        {"letters compare without regard to case", "Alpha", "beta"},
        {"nothing stands before something", "", "a"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_TRUE(sortKeyOf(c.less) < sortKeyOf(c.more));
        EXPECT_FALSE(sortKeyOf(c.more) < sortKeyOf(c.less));
    }
}
