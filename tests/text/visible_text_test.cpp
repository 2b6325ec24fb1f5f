#include "text/visible_text.h"

#include "text/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// Whether a terminal, of whatever encoding, shows each byte.
bool isSeen(const std::string& text)
{
    return isUtf8(text) && std::none_of(text.begin(), text.end(), [](char c) {
               return (c != '\t' && static_cast<unsigned char>(c) < ' ') || c == '\x7F';
           });
}

TEST(VisibleText, LeavesNoByteThatActsOnATerminal)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text = "a" + std::string(1, static_cast<char>(byte)) + "b";
        SCOPED_TRACE(byte);
        EXPECT_TRUE(isSeen(visibleText(text)));
        const bool plain = (byte >= ' ' && byte <= '~') || byte == '\t';
        EXPECT_EQ(plain, visibleText(text) == text);
    }
}

TEST(VisibleText, WritesOutWhatActsUnseen)
{
    EXPECT_EQ("\\x1b[2J\\x07", visibleText("\x1B[2J\a"));
    EXPECT_EQ("\\x0a\\x0d\\x00", visibleText(std::string("\n\r\0", 3)));
    EXPECT_EQ("\\u007f", visibleText("\x7F"));
    EXPECT_EQ("\\u0080\\u009b\\u009f", visibleText("\u0080\u009b\u009f")) << "C1";
    EXPECT_EQ("\\x9b\\xc3", visibleText("\x9B\xC3")) << "no UTF-8";
    EXPECT_EQ("\\u061c\\u200e\\u200f", visibleText("\u061c\u200e\u200f")) << "marks of direction";
    EXPECT_EQ("\\u202a\\u202e\\u2066\\u2069", visibleText("\u202a\u202e\u2066\u2069"));
    EXPECT_EQ("\\u2028\\u2029", visibleText("\u2028\u2029"));
}

TEST(VisibleText, LeavesWhatIsSeenAlone)
{
    const std::string text = "a\tb \u00a0caf\u00e9 \u3053 \u05d0 \u2027\u202f\u2065\U0001F600 ~";
    EXPECT_EQ(text, visibleText(text));
    EXPECT_EQ("", visibleText(""));
}

TEST(VisibleText, KeepsALineEndOnlyWhereItIsOne)
{
    EXPECT_EQ("a\\x0ab", visibleText("a\nb"));
    EXPECT_EQ("a\n\\x0d\n", visibleText("a\n\r\n", LineEnds::kept));
}

} // namespace
