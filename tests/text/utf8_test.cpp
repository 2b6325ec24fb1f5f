#include "text/utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8CharacterLength, CountsTheBytesOfAWholeCharacterAndNoneOfABrokenOne)
{
    struct Case {
        const char* because;
        std::string_view text;
        std::size_t length;
    };
    const Case cases[] = {
        {"nothing begins with no character", "", 0},
        {"ASCII", "ab", 1},
        {"two bytes", "\xC3\xA9 and more", 2},
        {"the first character of two bytes", "\xC2\x80", 2},
        {"an overlong form of two bytes", "\xC1\xBF", 0},
        {"three bytes", "\xE2\x82\xAC", 3},
        {"four bytes", "\xF0\x9F\x93\x81", 4},
        {"a byte that only continues", "\x80", 0},
        {"a single-byte code page", "\xE9t\xE9", 0},
        {"an overlong form", "\xE0\x80\xAF", 0},
        {"half of a surrogate pair", "\xED\xA0\x80", 0},
        {"past the last character", "\xF4\x90\x80\x80", 0},
        {"cut short", "\xE2\x82", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.length, utf8CharacterLength(c.text));
    }
}

TEST(IsUtf8, AsksEveryByte)
{
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("caf\xC3\xA9"));
    EXPECT_FALSE(isUtf8("caf\xE9"));
    EXPECT_FALSE(isUtf8("caf\xC3\xA9\xC3"));
}

TEST(Utf8, TellsCharactersFromBytesThatAreNone)
{
    struct Case {
        const char* because;
        std::string text;
        bool valid;
    };
    const Case cases[] = {
        {"nothing is valid", "", true},
        {"ASCII", "abc", true},
        {"two, three and four bytes", "é参\xF0\x9F\x93\x81", true},
        {"a lone continuation byte", "\x80", false},
        {"a single-byte code page", "caf\xE9", false},
        {"an overlong form", "\xC0\xAF", false},
        {"a surrogate", "\xED\xA0\x80", false},
        {"past the last code point", "\xF4\x90\x80\x80", false},
        {"cut short", "\xE3\x81", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.valid, isUtf8(c.text));
        EXPECT_TRUE(isUtf8(validUtf8(c.text)));
        EXPECT_EQ(c.valid, validUtf8(c.text) == c.text);
    }
}

TEST(Utf8, GoesToUtf16AndBack)
{
    const std::string text = "a é 参 \xF0\x9F\x93\x81 \xEF\xBF\xBF";

    EXPECT_EQ(text, utf8OfUtf16(utf16LittleEndian(text)));
    EXPECT_EQ(std::string("\x3D\xD8\xC1\xDC", 4), utf16LittleEndian("\xF0\x9F\x93\x81"));
    EXPECT_EQ("é", utf8OfUtf16(std::string("\x00\xE9", 2), true));
}

TEST(Utf8, GoesToUnitsOfUtf16AndBack)
{
    std::u16string units = u"> ";
    appendUtf16(units, "a\xE9é\xF0\x9F\x93\x81");
    EXPECT_EQ(u"> a\uFFFDé\U0001F4C1", units);
    EXPECT_EQ("> a\xEF\xBF\xBDé\xF0\x9F\x93\x81", utf8OfUtf16(units));
    const std::u16string halves = {u'a', char16_t{0xDC00}, char16_t{0xD800}, char16_t{0xD800}};
    EXPECT_EQ("a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD", utf8OfUtf16(halves));
}

TEST(Utf8, PutsAReplacementForHalvesOfUtf16)
{
    const std::string mark = "\xEF\xBF\xBD";

    EXPECT_EQ(mark + "a", utf8OfUtf16(std::string("\x00\xD8\x61\x00", 4)));
    EXPECT_EQ(mark, utf8OfUtf16(std::string("\x00\xDC", 2)));
    EXPECT_EQ("a" + mark, utf8OfUtf16(std::string("a\0b", 3)));
}

TEST(FirstCharacters, CutsBetweenCharacters)
{
    EXPECT_EQ("caf\u00e9", firstCharacters("caf\u00e9 \u3053", 4));
    EXPECT_EQ("caf", firstCharacters("caf\u00e9", 3));
    EXPECT_EQ("caf\u00e9", firstCharacters("caf\u00e9", 9));
    EXPECT_EQ("", firstCharacters("\u00e9", 0));
}

TEST(CharacterCount, CountsNoByteThatGoesOnWithACharacter)
{
    EXPECT_EQ(0U, characterCount(""));
    EXPECT_EQ(4U, characterCount("caf\u00e9"));
    EXPECT_EQ(3U, characterCount("\u3053\U0001F600a"));
    EXPECT_EQ(2U, characterCount("\xE9\xE9")) << "bytes that begin a character and end none";
}

TEST(FoldCase, MakesNamesThatDifferInCaseAloneEqual)
{
    EXPECT_EQ(foldCase("Größe Ébène Ωmega"), foldCase("größe éBÈNE ωMEGA"));
    EXPECT_NE(foldCase("a_"), foldCase("aA"));
    EXPECT_EQ("\xE9\x41", foldCase("\xE9\x61")) << "a byte that is no character stays";
}

} // namespace
