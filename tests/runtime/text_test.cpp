#include "runtime/text.h"

#include "support/error_of.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using Pieces = std::vector<std::string>;

TEST(Mid, TakesCharactersFromAPlaceCountedFromOne)
{
    struct Case {
        const char* because;
        const char* text;
        int start;
        int length;
        const char* expected;
    };
    const Case cases[] = {
        {"within the text", "abcdef", 2, 3, "bcd"},
        {"from the first character", "abcdef", 1, 1, "a"},
        {"the text ends before the length", "abcdef", 5, 10, "ef"},
        {"the longest length", "abcdef", 5, INT_MAX, "ef"},
        {"no length", "abcdef", 2, 0, ""},
        {"just behind the end", "abc", 4, 1, ""},
        {"far behind the end", "abc", INT_MAX, 1, ""},
        {"the empty text", "", 1, 5, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, mid(c.text, c.start, c.length));
    }
    EXPECT_EQ("cdef", mid("abcdef", 3));
    EXPECT_EQ("", mid("abcdef", 7));
}

TEST(Mid, RaisesInvalidCallForAStartBelowOneOrANegativeLength)
{
    EXPECT_EQ(5, errorOf([] { mid("abc", 0, 1); }));
    EXPECT_EQ(5, errorOf([] { mid("abc", INT_MIN, 1); }));
    EXPECT_EQ(5, errorOf([] { mid("abc", 1, -1); }));
    EXPECT_EQ(5, errorOf([] { mid("abc", 9, -1); }));
    EXPECT_EQ(5, errorOf([] { mid("abc", 0); }));
}

TEST(PositionOf, CountsFromOneAndGivesZeroForNone)
{
    struct Case {
        const char* because;
        const char* text;
        const char* wanted;
        std::size_t start;
        std::size_t expected;
    };
    const Case cases[] = {
        {"the first of two", "a_b_c", "_", 1, 2},
        {"the one at the start itself", "a_b_c", "_", 2, 2},
        {"the one after the start", "a_b_c", "_", 3, 4},
        {"none from there", "a_b_c", "_", 5, 0},
        {"behind the end", "a_b_c", "_", 99, 0},
        {"capitals differ", "LOG", "log", 1, 0},
        {"several characters", "xx) yy", ") ", 1, 3},
        {"the empty text", "", "_", 1, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, positionOf(c.text, c.wanted, c.start));
    }
    EXPECT_EQ(5, errorOf([] { positionOf("abc", "a", 0); }));
}

TEST(ReplaceAll, ReplacesEveryOneOnceFromTheLeft)
{
    EXPECT_EQ("C:\\a\\b", replaceAll("C:\\\\a\\\\b", "\\\\", "\\"));
    EXPECT_EQ("ba", replaceAll("aaa", "aa", "b"));
    EXPECT_EQ("aaaa", replaceAll("aa", "a", "aa")) << "what was put in is not searched again";
    EXPECT_EQ("AbA", replaceAll("AbA", "a", "x"));
    EXPECT_EQ("", replaceAll("aa", "a", ""));
    EXPECT_EQ("abc", replaceAll("abc", "", "x"));
    EXPECT_EQ("", replaceAll("", "a", "x"));
}

TEST(Split, GivesThePiecesBetweenSeparators)
{
    EXPECT_EQ((Pieces{"a", " b", ""}), split("a, b,", ','));
    EXPECT_EQ((Pieces{"", ""}), split(",", ','));
    EXPECT_EQ((Pieces{"abc"}), split("abc", ','));
    EXPECT_EQ(Pieces{}, split("", ','));
}

TEST(Split, LeavesSeparatorsInTheLastPieceOfALimit)
{
    EXPECT_EQ((Pieces{"a", "b,c,d"}), split("a,b,c,d", ',', 2));
    EXPECT_EQ((Pieces{"a,b"}), split("a,b", ',', 1));
    EXPECT_EQ((Pieces{"a", "b"}), split("a,b", ',', 9));
    EXPECT_EQ((Pieces{"a", "b"}), split("a,b", ',', -1));
}

TEST(LetterCase, ChangesAsciiLettersAlone)
{
    EXPECT_EQ("abz 09@[`{\xC4\xE4", lowerCase("aBZ 09@[`{\xC4\xE4"));
    EXPECT_EQ("ABZ 09@[`{\xC4\xE4", upperCase("aBz 09@[`{\xC4\xE4"));
}

TEST(EqualIgnoringCase, ComparesAsciiLettersWithoutCase)
{
    EXPECT_TRUE(equalIgnoringCase("RoCsMgr", "ROCSMGR"));
    EXPECT_TRUE(equalIgnoringCase("", ""));
    EXPECT_FALSE(equalIgnoringCase("a", "ab"));
    EXPECT_FALSE(equalIgnoringCase("[", "{"));
    EXPECT_FALSE(equalIgnoringCase("\xC4", "\xE4"));
}

TEST(BeginsWith, ComparesTheHeadWithCase)
{
    EXPECT_TRUE(beginsWith("diag_x", "diag_"));
    EXPECT_TRUE(beginsWith("diag_x", ""));
    EXPECT_FALSE(beginsWith("Diag_x", "diag_"));
    EXPECT_FALSE(beginsWith("di", "diag_"));
}

TEST(Trim, TakesBlanksAndNoOtherWhiteSpace)
{
    EXPECT_EQ("a b", trim("  a b  "));
    EXPECT_EQ("\ta\r\n", trim(" \ta\r\n "));
    EXPECT_EQ("", trim("   "));
    EXPECT_EQ("", trim(""));
    EXPECT_EQ("  a", trimEnd("  a  "));
    EXPECT_EQ("", trimEnd("  "));
}

TEST(RightAlign, FillsWithBlanksAndKeepsALongerText)
{
    EXPECT_EQ("   Info", rightAlign("Info", 7));
    EXPECT_EQ("VerInfo", rightAlign("VerInfo", 7));
    EXPECT_EQ("longer text", rightAlign("longer text", 7));
    EXPECT_EQ("  ", rightAlign("", 2));
}

} // namespace
