#include "runtime/numbers.h"

#include "support/error_of.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(ToInteger16, RoundsToTheNearestNumberAndHalvesToTheEvenOne)
{
    struct Case {
        const char* because;
        double value;
        int expected;
    };
    const Case cases[] = {
        {"a half goes down to an even number", 2.5, 2},
        {"a half goes up to an even number", 3.5, 4},
        {"a half goes down to zero", 0.5, 0},
        {"the same holds below zero", -2.5, -2},
        {"and for odd numbers below zero", -3.5, -4},
        {"anything past a half goes up", 2.500001, 3},
        {"anything short of a half goes down", 2.499999, 2},
        {"the largest number is still one", 32767.4, 32767},
        {"the smallest number takes the half", -32768.5, -32768},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, toInteger16(c.value));
    }
}

TEST(ToInteger16, RaisesOverflowPastSixteenBits)
{
    for (const double value :
         {32767.5, 40000.0, -32768.6, 1e300, infinity, -infinity, notANumber}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(6, errorOf([&] { toInteger16(value); }));
    }
}

TEST(ToInteger32, RoundsHalvesToEvenAndRaisesOverflowPastThirtyTwoBits)
{
    EXPECT_EQ(2147483647, toInteger32(2147483647.4));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), toInteger32(-2147483648.5));
    EXPECT_EQ(100000, toInteger32(100000.5));
    EXPECT_EQ(100002, toInteger32(100001.5));
    for (const double value : {2147483647.5, -2147483648.6, 1e300, infinity, notANumber}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(6, errorOf([&] { toInteger32(value); }));
    }
}

TEST(ToNumber, ReadsAWholeText)
{
    struct Case {
        const char* because;
        const char* text;
        double expected;
    };
    const Case cases[] = {
        {"digits", "1033", 1033},
        {"blanks around", "  42  ", 42},
        {"a sign", "-5", -5},
        {"a plus sign", "+5", 5},
        {"thousands commas", "1,234,567", 1234567},
        {"a decimal point", "12.5", 12.5},
        {"a point without digits before it", ".5", .5},
        {"a point without digits behind it", "5.", 5},
        {"an exponent", "1e3", 1000},
        {"an exponent with a sign", "25E-1", 2.5},
        {"an exponent with a plus sign", "2E+2", 200},
        {"the other exponent letter", "1d2", 100},
        {"hexadecimal digits", "&H1F", 31},
        {"small hexadecimal letters", " &hff ", 255},
        {"the highest bit is the sign", "&HFFFFFFFF", -1},
        {"the smallest word", "&H80000000", -2147483648.0},
        {"zeros in front", "000000000000000000000007", 7},
        {"too small for a double", "1e-999", 0},
        {"zero whatever its exponent", "0e999", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_TRUE(isNumeric(c.text));
        EXPECT_EQ(c.expected, toNumber(c.text));
    }
}

TEST(ToNumber, RaisesTypeMismatchForATextThatIsNoNumber)
{
    const char* const texts[] = {"",     "   ",   "abc",      "12abc", "1 2", "-",    "+",
                                 ".",    "-.",    "1.2.3",    "1e",    "1e+", "e5",   "--5",
                                 "- 5",  "5-",    ",5",       "1.,",   "&H",  "&HG",  "&H-1",
                                 "-&H1", "1e5.",  "1e5e5",    "inf",   "nan", "0x10", "12\t",
                                 "$5",   "1\xFF", "2005-10-8"};
    for (const char* const text : texts) {
        SCOPED_TRACE(text);
        EXPECT_EQ(13, errorOf([&] { toNumber(text); }));
        EXPECT_EQ(13, errorOf([&] { toInteger32(std::string_view(text)); }));
        EXPECT_FALSE(isNumeric(text));
    }
    EXPECT_FALSE(isNumeric(std::string_view("5\0", 2)));
}

TEST(ToNumber, RaisesOverflowPastItsRange)
{
    EXPECT_EQ(6, errorOf([] { toNumber("1e999"); }));
    EXPECT_EQ(6, errorOf([] { toNumber("&H100000000"); }));
}

TEST(ToInteger32, ReadsATextAsANumberAndRoundsHalvesToEven)
{
    EXPECT_EQ(2, toInteger32(std::string_view("2.5")));
    EXPECT_EQ(4, toInteger32(std::string_view("3.5")));
    EXPECT_EQ(-1, toInteger32(std::string_view("&HFFFFFFFF")));
    EXPECT_EQ(2147483647, toInteger32(std::string_view("2,147,483,647")));
    EXPECT_EQ(6, errorOf([] { toInteger32(std::string_view("2147483648")); }));
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatCannotBelongToIt)
{
    struct Case {
        const char* because;
        const char* text;
        double expected;
    };
    const Case cases[] = {
        {"digits alone", "1013", 1013},
        {"garbage behind", "12abc", 12},
        {"garbage in front", "abc12", 0},
        {"nothing at all", "", 0},
        {"blanks alone", "   ", 0},
        {"blanks in front", "   7", 7},
        {"tabs and line feeds in front", "\t\n 7", 7},
        {"a blank ends it", "1 2 3", 1},
        {"so do tabs", "1\t2", 1},
        {"and line feeds", "1\n2", 1},
        {"a carriage return ends it", "1\r2", 1},
        {"a sign", "-5", -5},
        {"a plus sign", "+5", 5},
        {"a blank behind the sign", "- 5", 0},
        {"two signs are no number", "--5", 0},
        {"a sign alone", "-", 0},
        {"a decimal point", "2.75x", 2.75},
        {"two points", "1.2.3", 1.2},
        {"a point in front", ".5", .5},
        {"a point alone", ".", 0},
        {"a comma ends it", "1,234", 1},
        {"an exponent", "1E3", 1000},
        {"a small exponent letter", "1e3", 1000},
        {"the other exponent letter", "1D3", 1000},
        {"its small form", "1d-2", .01},
        {"an exponent with a sign", "15E-1", 1.5},
        {"a blank before the exponent", "1 E3", 1},
        {"a blank within the exponent", "1E 3", 1},
        {"a blank behind the exponent's sign", "1E+ 3", 1},
        {"a blank behind the point", "1. 5", 1},
        {"an exponent without digits", "5E", 5},
        {"an exponent of a sign alone", "5E+", 5},
        {"an exponent without a number", "E5", 0},
        {"an exponent behind a point alone", ".E5", 0},
        {"an exponent has no point", "1E2.5", 100},
        {"a level and its text", "13 - Call control", 13},
        {"a level whose text begins with digits", "01  1st stage", 1},
        {"a level whose text begins as an exponent", "02  E1 trunk", 2},
        {"a level whose text begins with a point", "04  .5 s", 4},
        {"no words that other scans take", "inf", 0},
        {"nor these", "nan", 0},
        {"a single quote", "'5", 0},
        {"bytes past ASCII", "7\xE9", 7},
        {"too small for a double", "1E-999", 0},
        {"far too small with a point", "0.0000001E-400", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, leadingNumber(c.text));
    }
    EXPECT_EQ(4, leadingNumber(std::string_view("4\0005", 3))) << "a zero byte ends it";
}

TEST(LeadingNumber, RaisesOverflowPastTheRangeOfADouble)
{
    EXPECT_EQ(6, errorOf([] { leadingNumber("1E999"); }));
    EXPECT_EQ(6, errorOf([] { leadingNumber("-1E309"); }));
    EXPECT_EQ(6, errorOf([] { leadingNumber("1E99999999999999999999"); }));
    EXPECT_EQ(6, errorOf([] { leadingNumber(std::string(400, '9')); }));
    EXPECT_EQ(6, errorOf([] { leadingNumber(std::string(400, '9') + "E-5"); }));
    EXPECT_EQ(0, leadingNumber("0." + std::string(400, '0') + "1"));
    EXPECT_EQ(0, leadingNumber("0." + std::string(400, '0') + "1E5"));
    EXPECT_EQ(1e20, leadingNumber("100000000000000000000"));
}

} // namespace
