#include "cabmaker/names.h"

#include <gtest/gtest.h>

namespace cabmaker {

TEST(Utf8FromWindows1252, DecodesEveryByteOfTheCodePage)
{
    struct Case {
        const char* because;
        const char* bytes;
        const char* expected;
    };
    const Case cases[] = {
        {"ASCII is the same", "Application.csv", "Application.csv"},
        {"upper half letters take two bytes", "\xC4rger\xFF", "Ärgerÿ"},
        {"the euro sign stands where Latin-1 has a control character", "\x80", "€"},
        {"so do the dashes and quotes", "\x96\x97\x93\x94", "–—“”"},
        {"a free byte keeps its number", "\x81", "\xC2\x81"},
        {"the last of the special ones", "\x9F", "Ÿ"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, utf8FromWindows1252(c.bytes));
    }
}

TEST(FoldedName, BringsTheLettersOfTheCodePageToLowerCase)
{
    struct Case {
        const char* because;
        const char* name;
        const char* expected;
    };
    const Case cases[] = {
        {"ASCII letters", "ZMK.DDF", "zmk.ddf"},
        {"accented letters", "ÀÖØÞ", "àöøþ"},
        {"the multiplication sign is no letter", "×", "×"},
        {"the sharp s has no other case here", "ß", "ß"},
        {"letters that Latin-1 lacks", "ŠŒŽŸ", "šœžÿ"},
        {"other scripts stay", "日本 Ω", "日本 Ω"},
        {"a broken sequence stays", "\xC3", "\xC3"},
        {"a lead byte without its follower stays",
         "\xC3"
         "A",
         "\xC3"
         "a"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, foldedName(c.name));
    }
}

TEST(IsUtf8, TakesWholeCharactersInTheirShortestForm)
{
    for (const char* text : {"", "a", "é€", "日本", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(text)) << text;
    for (const char* text :
         {"\x80", "\xC0\x80", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82"})
        EXPECT_FALSE(isUtf8(text)) << text;
}

TEST(BaseName, IsWhatStandsBehindTheLastSeparatorOfEitherKind)
{
    EXPECT_EQ("a.csv", baseName("C:\\Temp\\a.csv"));
    EXPECT_EQ("a.csv", baseName("/tmp/x\\y/a.csv"));
    EXPECT_EQ("a.csv", baseName("a.csv"));
    EXPECT_EQ("", baseName("C:\\Temp\\"));
}

} // namespace cabmaker
