#include "timeline/filter/text_pattern.h"

#include "support/error_of.h"
#include "text/code_page.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <vector>

namespace timeline {
namespace {

using Kind = TextPattern::Kind;

bool occurs(Kind kind, const std::string& pattern, const std::string& line,
            Letters letters = Letters::asWritten)
{
    const CodePage codePage = windows1252();
    return TextPattern(kind, pattern, letters).searchIn(&codePage)->occursIn(line);
}

TEST(TextPattern, OfATextIsFoundAsItStands)
{
    EXPECT_TRUE(occurs(Kind::text, "a.b", "xa.bx"));
    EXPECT_FALSE(occurs(Kind::text, "a.b", "xacbx"));
    EXPECT_FALSE(occurs(Kind::text, "Failed", "failed"));
    EXPECT_TRUE(occurs(Kind::text, "Fail.ed", "FAIL.ED", Letters::inAnyCase));
    EXPECT_FALSE(occurs(Kind::text, "Fail.ed", "FAILxED", Letters::inAnyCase));
}

TEST(TextPattern, OfAnExpressionIsSearchedInALine)
{
    EXPECT_TRUE(occurs(Kind::expression, "transfer.*fail", "a transfer has failed"));
    EXPECT_FALSE(occurs(Kind::expression, "^transfer", "a transfer"));
    EXPECT_TRUE(occurs(Kind::expression, "failed$", "it failed"));
    EXPECT_TRUE(occurs(Kind::expression, "FAILED", "it failed", Letters::inAnyCase));
}

TEST(TextPattern, KnowsTheLettersOfTheCodePage)
{
    EXPECT_TRUE(occurs(Kind::text, "caf\u00e9", "a caf\xE9"));
    EXPECT_TRUE(occurs(Kind::expression, "caf[\u00e9\u00e8]$", "a caf\xE9"));
    EXPECT_TRUE(occurs(Kind::expression, "CAF\u00c9", "a caf\xE9", Letters::inAnyCase));
    EXPECT_FALSE(occurs(Kind::text, "\u65e5", "?")) << "what it lacks is nowhere";
    EXPECT_FALSE(occurs(Kind::expression, "a\u65e5?b", "a?b"));
}

TEST(TextPattern, SearchesUtf8WithoutACodePage)
{
    const TextPattern pattern(Kind::expression, "^caf.$");
    EXPECT_TRUE(pattern.searchIn(nullptr)->occursIn("caf\u00e9"));
    EXPECT_FALSE(pattern.searchIn(nullptr)->occursIn("caf\u00e9\u00e9"));
}

TEST(TextPattern, TakesAnExpressionWithoutSignsForAText)
{
    EXPECT_TRUE(occurs(Kind::expression, "Rule 4, \"x\"", "a Rule 4, \"x\""));
    EXPECT_FALSE(occurs(Kind::expression, "rule 4", "Rule 4"));
    EXPECT_TRUE(occurs(Kind::expression, "rule 4", "Rule 4", Letters::inAnyCase));
    EXPECT_TRUE(occurs(Kind::expression, "\u00c9t\u00e9", "\xE9T\xC9", Letters::inAnyCase));
    EXPECT_TRUE(TextPattern(Kind::text, "kelvin", Letters::inAnyCase)
                    .searchIn(nullptr)
                    ->occursIn("\u212Aelvin"))
        << "the sign of the unit is a K";
}

TEST(TextPattern, TellsWhereItStandsInAPartOfALine)
{
    struct Case {
        const char* because;
        Kind kind;
        const char* pattern;
        std::optional<std::size_t> begin;
        std::size_t length;
    };
    constexpr std::string_view line = ",one two one,"; // the part is what the commas part
    const Case cases[] = {
        {"a text stands where it begins", Kind::text, "two", 5, 3},
        {"a text may not reach past the part", Kind::text, "one,", std::nullopt, 0},
        {"an expression takes as much as it wants", Kind::expression, "t[a-z ]+", 5, 7},
        {"nor may an expression reach past it", Kind::expression, "one,", std::nullopt, 0},
        {"the part is not where the line begins", Kind::expression, "^one", std::nullopt, 0},
        {"nor where it ends", Kind::expression, "one$", std::nullopt, 0},
        {"but where a word does", Kind::expression, "\\bone\\b", 1, 3},
        {"an expression may want nothing", Kind::expression, "x*", 1, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.because);
        const auto search = TextPattern(c.kind, c.pattern).searchIn(nullptr);
        const auto found = search->findIn(line, 1, line.size() - 1);
        ASSERT_EQ(c.begin.has_value(), found.has_value());
        if (!found) continue;
        EXPECT_EQ(*c.begin, found->begin);
        EXPECT_EQ(c.length, found->length);
    }
    EXPECT_EQ(9u, TextPattern(Kind::text, "one").searchIn(nullptr)->findIn(line, 2, 12)->begin);
}

TEST(TextPattern, RefusesWhatIsNoExpressionWithASentence)
{
    try {
        TextPattern(Kind::expression, "a(b");
        FAIL() << "it was taken";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(runTimeErrors::invalidCall, error.number());
        EXPECT_EQ("\"a(b\" is no regular expression: missing ): a(b", error.description());
    }
    EXPECT_NO_THROW(TextPattern(Kind::text, "a(b"));
}

TEST(TextPattern, PassesOverNoLineThatHasIt)
{
    const CodePage codePage = windows1252();
    const std::vector<std::string> expressions = {
        "ab",      "^a",      "b$",   "a.b",  "[^a]b",       "\\bb",      "a\\Bb",  "(?i)AB",
        "(?-m)^b", "\\Aa",    "b\\z", "a|$",  "a\\s*b",      "(?:a)b",    "x*",     "aab",
        "abb.",    "(?i)ABA", "aba$", "^aab", "(?:aab|bba)", "a(?:ab)+ ", "\\Aaba", "bab\\z"};
    std::mt19937 random(11);
    for (const std::string& expression : expressions) {
        const auto search = TextPattern(Kind::expression, expression).searchIn(&codePage);
        for (int round = 0; round < 2000; ++round) {
            std::string lines;
            std::size_t endOfFirst = std::string::npos;
            for (auto line = random() % 4 + 1; line > 0; --line) {
                std::string text;
                for (auto letter = random() % 7; letter > 0; --letter)
                    text += "aabb \t"[random() % 6];
                const bool first = endOfFirst == std::string::npos && search->occursIn(text);
                lines += text + (random() % 2 == 0 ? "\n" : "\r\n");
                if (first) endOfFirst = lines.size();
            }
            if (endOfFirst == std::string::npos) continue;
            ASSERT_LT(search->firstPlaceIn(lines), endOfFirst) << expression << " in " << lines;
        }
    }
}

} // namespace
} // namespace timeline
