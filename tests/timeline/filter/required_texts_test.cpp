#include "timeline/filter/required_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace timeline {
namespace {

RE2::Options bytesOptions()
{
    RE2::Options options;
    options.set_encoding(RE2::Options::EncodingLatin1);
    options.set_never_nl(true);
    options.set_log_errors(false);
    return options;
}

std::vector<std::string> textsOf(const std::string& expression)
{
    std::vector<std::string> texts = requiredTexts(expression, bytesOptions());
    std::sort(texts.begin(), texts.end());
    return texts;
}

using Texts = std::vector<std::string>;

TEST(RequiredTexts, AreThoseThatNoMatchIsWithout)
{
    EXPECT_EQ((Texts{"calling "}), textsOf("calling [0-9]+, (direct|forwarded)"));
    EXPECT_EQ((Texts{"koruntime!rep"}), textsOf("KoRuntime!Rep[a-zA-Z]+\\+0x1C4"));
    EXPECT_EQ((Texts{"error code", "failed code"}), textsOf("(error|failed) code"));
    EXPECT_EQ((Texts{"rule"}), textsOf("(?i)^rule$"));
}

TEST(RequiredTexts, AreNoneWhereAMatchNeedsNoLongText)
{
    for (const std::string expression : {"", "ab", "[a-z]+", "a|call", "(call)?", "c.a.l.l",
                                         "alpha|beta1|gamma|delta|epsilon", "\xE9t\xE9", "a\\nb"})
        EXPECT_EQ(Texts{}, textsOf(expression)) << expression;
}

TEST(RequiredTexts, AreInEachLineThatTheExpressionOccursIn)
{
    std::mt19937 random(13);
    const Texts parts = {"abc",    "Cab",      "b",  ".",   "[ab]", "[^c]",     "(?:abc|bca)",
                         "(cab)?", "a+",       "^",  "$",   "\\b",  "(?i:aBc)", "|",
                         "c{2}",   "(?:aab)+", ".*", "\\w", "C"};
    int required = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string expression;
        for (auto count = random() % 6 + 1; count > 0; --count)
            expression += parts[random() % parts.size()];
        const RE2 re(expression, bytesOptions());
        if (!re.ok()) continue;
        const Texts texts = textsOf(expression);
        if (texts.empty()) continue;
        ++required;
        for (int line = 0; line < 40; ++line) {
            std::string text;
            for (auto letter = random() % 14; letter > 0; --letter) text += "abcC"[random() % 4];
            if (!RE2::PartialMatch(text, re)) continue;
            std::string small = text;
            std::replace(small.begin(), small.end(), 'C', 'c');
            ASSERT_TRUE(std::any_of(
                texts.begin(), texts.end(),
                [&](const std::string& one) { return small.find(one) != std::string::npos; }))
                << expression << " in " << text;
        }
    }
    EXPECT_GT(required, 500);
}

} // namespace
} // namespace timeline
