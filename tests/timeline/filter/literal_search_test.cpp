#include "timeline/filter/literal_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace timeline {
namespace {

std::string small(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    });
    return text;
}

TEST(LiteralSearch, FindsTheFirstPlaceFromOneOn)
{
    const LiteralSearch search("call");
    EXPECT_EQ(2u, search.find("a call, a call"));
    EXPECT_EQ(2u, search.find("a call, a call", 2));
    EXPECT_EQ(10u, search.find("a call, a call", 3));
    EXPECT_EQ(std::string::npos, search.find("a call, a call", 11));
    EXPECT_EQ(std::string::npos, search.find("cal"));
    EXPECT_EQ(std::string::npos, search.find(""));
    EXPECT_EQ(std::string::npos, search.find("call", 5));
}

TEST(LiteralSearch, FindsTheEmptyTextEverywhere)
{
    EXPECT_EQ(0u, LiteralSearch("").find(""));
    EXPECT_EQ(3u, LiteralSearch("").find("call", 3));
}

TEST(LiteralSearch, TakesLettersOfAsciiForTheSameInAnyCase)
{
    EXPECT_EQ(1u, LiteralSearch("Rule[1]", true).find(" rULE[1]"));
    EXPECT_EQ(std::string::npos, LiteralSearch("Rule[1]", true).find(" rULE{1]"));
    EXPECT_EQ(std::string::npos, LiteralSearch("@`", true).find("`@"));
    EXPECT_EQ(std::string::npos, LiteralSearch("\xC9", true).find("\xE9")) << "no letter of ASCII";
    EXPECT_EQ(std::string::npos, LiteralSearch("Rule").find("rule"));
}

TEST(LiteralSearch, FindsWhatAPlainSearchFinds)
{
    std::mt19937 random(7);
    const auto any = [&](std::size_t most) {
        std::string text;
        for (auto size = random() % (most + 1); size > 0; --size)
            text += "aAbB@`\n\xE1\xC1"[random() % 9];
        return text;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::string bytes = any(round % 4 == 0 ? 300 : 90);
        // A text from among the bytes, or any other one, and long ones too.
        std::string text = any(5);
        if (round % 2 == 0 && !bytes.empty())
            text = bytes.substr(random() % bytes.size(), random() % 80);
        const std::size_t from = bytes.empty() ? 0 : random() % bytes.size();
        ASSERT_EQ(bytes.find(text, from), LiteralSearch(text).find(bytes, from));
        ASSERT_EQ(small(bytes).find(small(text), from),
                  LiteralSearch(text, true).find(bytes, from));
    }
}

} // namespace
} // namespace timeline
