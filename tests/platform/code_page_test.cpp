#include "platform/code_page.h"

#include <gtest/gtest.h>

TEST(CodePage, AppendsTheUtf8OfEachByte)
{
    struct Case {
        const char* because;
        std::string bytes;
        std::string expected;
    };
    const Case cases[] = {
        {"nothing stays nothing", "", ""},
        {"ASCII stands for itself", "a\tZ~", "a\tZ~"},
        {"a zero byte is a character", std::string("a\0b", 3), std::string("a\0b", 3)},
        {"a letter of two bytes", "caf\xE9", "caf\xC3\xA9"},
        {"a sign of three bytes", "\x80 5", "\xE2\x82\xAC 5"},
        {"quotes next to each other", "\x93x\x94", "\xE2\x80\x9Cx\xE2\x80\x9D"},
        {"an unused byte is a control character", "\x81", "\xC2\x81"},
        {"the last byte", "\xFF", "\xC3\xBF"},
    };
    const CodePage codePage = windows1252();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string text = "> ";
        codePage.appendUtf8(text, c.bytes);
        EXPECT_EQ("> " + c.expected, text);
    }
}

TEST(CodePage, FollowsTheTableThatItWasGiven)
{
    CodePage::Table table{};
    table[0xC1] = 0x0391;
    const CodePage greek(table);

    std::string text;
    greek.appendUtf8(text, "A\xC1");

    EXPECT_EQ("A\xCE\x91", text);
    EXPECT_EQ(0x0391, greek.character('\xC1'));
}
