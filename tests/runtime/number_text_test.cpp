#include "runtime/numbers.h"

#include "support/error_of.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

struct Case {
    const char* because;
    double value;
    const char* expected;
};

TEST(NumberText, OfAWholeNumberIsItsDecimalDigits)
{
    EXPECT_EQ("0", numberText(std::int64_t{0}));
    EXPECT_EQ("-5", numberText(std::int64_t{-5}));
    EXPECT_EQ("1033", numberText(std::int64_t{1033}));
    EXPECT_EQ("-9223372036854775808", numberText(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ("9223372036854775807", numberText(std::numeric_limits<std::int64_t>::max()));
}

TEST(NumberText, OfADoubleHasUpToFifteenDigits)
{
    const Case cases[] = {
        {"zero", 0, "0"},
        {"zero with a sign", -0.0, "0"},
        {"a half", .5, "0.5"},
        {"a half below zero", -.5, "-0.5"},
        {"a whole number", 100, "100"},
        {"no trailing zeros", 12.50, "12.5"},
        {"the nearest fifteen digits", 0.1 + 0.2, "0.3"},
        {"a third", 1.0 / 3, "0.333333333333333"},
        {"the largest fixed number", 999999999999999, "999999999999999"},
        {"past fifteen digits", 1e15, "1E+15"},
        {"a huge number", -1.5e300, "-1.5E+300"},
        {"a small number", .00001, "0.00001"},
        {"more places than digits are shown", 1.0 / 30, "3.33333333333333E-02"},
        {"a tiny number", 2e-300, "2E-300"},
        {"rounded up to a power of ten", 0.99999999999999999, "1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, numberText(c.value));
    }
}

TEST(NumberText, OfASingleHasUpToSevenDigits)
{
    EXPECT_EQ("55387.5", numberText(55387.5f));
    EXPECT_EQ("55387.13", numberText(55387.13f));
    EXPECT_EQ("86399.99", numberText(86399.99f));
    EXPECT_EQ("0.1", numberText(.1f));
    EXPECT_EQ("0", numberText(0.0f));
    EXPECT_EQ("1.234568E+07", numberText(12345678.0f));
    EXPECT_EQ("9.765625E-04", numberText(0.0009765625f));
}

TEST(NumberText, RaisesOverflowForWhatIsNoNumber)
{
    EXPECT_EQ(6, errorOf([] { numberText(std::numeric_limits<double>::infinity()); }));
    EXPECT_EQ(6, errorOf([] { numberText(std::numeric_limits<double>::quiet_NaN()); }));
}

TEST(NumberTextWithLeadingBlank, LeavesABlankForTheSign)
{
    EXPECT_EQ(" 100", numberTextWithLeadingBlank(100));
    EXPECT_EQ(" 0", numberTextWithLeadingBlank(0));
    EXPECT_EQ("-5", numberTextWithLeadingBlank(-5));
}

TEST(MaskElapsedSeconds, HasOneToSixPlaces)
{
    const Case cases[] = {
        {"zero", 0, "0.0"},
        {"a whole number", 12, "12.0"},
        {"one place", .5, "0.5"},
        {"six places", .123456, "0.123456"},
        {"a seventh place rounds up", .1234565, "0.123457"},
        {"a seventh place rounds down", .1234564, "0.123456"},
        {"a small value", .000001, "0.000001"},
        {"half of the last place goes up", .0000005, "0.000001"},
        {"less than half of the last place", .0000004, "0.0"},
        {"nothing left below zero has no sign", -.0000004, "0.0"},
        {"rounds up into the whole part", 9.9999999, "10.0"},
        {"a routine that spans midnight", -86399.5, "-86399.5"},
        {"more than four digits before the point", 123456.25, "123456.25"},
        {"a huge value", 1e20, "100000000000000000000.0"},
        {"a single's digits past the sixth place", double{.1f}, "0.1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, maskElapsedSeconds(c.value));
    }
}

TEST(MaskOneDecimal, HasAPointEvenWhenNoPlaceFollows)
{
    const Case cases[] = {
        {"zero", 0, "0."},
        {"a whole number", 12, "12."},
        {"one place", 12.5, "12.5"},
        {"rounds to the nearest", 12.34, "12.3"},
        {"halves go up", 12.25, "12.3"},
        {"a half that no double holds exactly", 12.35, "12.4"},
        {"rounds up into the whole part", 19.96, "20."},
        {"a small value", .04, "0."},
        {"a small value that rounds up", .05, "0.1"},
        {"below zero", -1.26, "-1.3"},
        {"more digits than the mask", 12345.6, "12345.6"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, maskOneDecimal(c.value));
    }
}

TEST(MaskThousands, SetsCommasAndShowsNothingForZero)
{
    const Case cases[] = {
        {"zero", 0, ""},
        {"a small value", .4, ""},
        {"a half goes up", .5, "1"},
        {"another half goes up", 2.5, "3"},
        {"three digits", 999, "999"},
        {"rounds up to four", 999.5, "1,000"},
        {"four digits", 1234, "1,234"},
        {"more digits than the mask", 1234567, "1,234,567"},
        {"a huge value", 1e15, "1,000,000,000,000,000"},
        {"below zero", -123456, "-123,456"},
        {"a small value below zero", -.4, ""},
        {"megabytes of a disk", 80026.361856, "80,026"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, maskThousands(c.value));
    }
}

} // namespace
