#include "text/code_page.h"

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

TEST(CodePage, AnUnusedByteIsNoCharactersByte)
{
    CodePage::Table table{};
    table.fill(0xFFFD);
    const CodePage unused(table);
    EXPECT_EQ("??", unused.bytesOf("\xEF\xBF\xBD\xFF"));
}

TEST(CodePage, GivesTheBytesOfAText)
{
    struct Case {
        const char* because;
        std::string text;
        std::string expected;
    };
    const Case cases[] = {
        {"nothing stays nothing", "", ""},
        {"ASCII stands for itself", "C:\\a b~", "C:\\a b~"},
        {"a zero byte is a character", std::string("a\0b", 3), std::string("a\0b", 3)},
        {"a letter of two bytes", "caf\xC3\xA9", "caf\xE9"},
        {"a sign of three bytes", "\xE2\x82\xAC 5", "\x80 5"},
        {"a control character of an unused byte", "\xC2\x81", "\x81"},
        {"a letter that the code page lacks", "\xCE\x91x", "?x"},
        {"a character of four bytes", "\xF0\x9F\x98\x80x", "?x"},
        {"a byte that begins no character", "\x80x", "?x"},
        {"a character cut short", "\xE2\x82", "??"},
        {"a character that something else ends", "\xC3x", "?x"},
        {"a longer form than needed", "\xC1\x81", "??"},
        {"bytes that never stand in UTF-8", "\xFE\xFF", "??"},
        {"half of a surrogate pair", "\xED\xA0\x80x", "???x"},
        {"past the last character", "\xF4\x90\x80\x80x", "????x"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, windows1252().bytesOf(c.text));
    }
}

TEST(CodePage, GivesTheBytesOfEveryCharacterItHas)
{
    std::string all;
    for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
    std::string utf8;
    windows1252().appendUtf8(utf8, all);
    EXPECT_EQ(all, windows1252().bytesOf(utf8));
}
