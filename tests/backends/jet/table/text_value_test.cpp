#include "backends/jet/table/text_value.h"

#include <gtest/gtest.h>

#include <random>

using jet::TextValue;
using namespace std::string_literals;

namespace {

std::string plain(const TextValue& text)
{
    std::string stored(jet::plainSize(text.characters()), '?');
    text.writePlain(stored.data());
    return stored;
}

std::string compressed(const TextValue& text)
{
    std::string stored(jet::compressedSize(text.characters()), '?');
    text.writeCompressed(stored.data());
    return stored;
}

TEST(TextValue, ReadsBackInEitherFormAsTheCharactersThatItWasGiven)
{
    struct Case {
        const char* because;
        std::string bytes; ///< in Windows-1252
        std::string utf8;
        bool compressible;
    };
    const Case cases[] = {
        {"nothing", "", "", true},
        {"ASCII", "Session 4711", "Session 4711", true},
        {"control characters", "a\tb\x01", "a\tb\x01", true},
        {"Latin letters have one byte in the compressed form", "Zo\xEB", "Zo\xC3\xAB", true},
        {"the euro sign is none of the first 255 characters", "5 \x80", "5 \xE2\x82\xAC", false},
        {"an unused byte stands for itself", "\x81", "\xC2\x81", true},
        {"a zero byte can't be stored", "a\0b"s,
         "a\xEF\xBF\xBD"
         "b",
         false},
        {"a zero byte in the second word too", "12345678\0"s, "12345678\xEF\xBF\xBD", false},
        {"the last byte of a word counts", "1234567\x80", "1234567\xE2\x82\xAC", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TextValue text;
        text.assign(c.bytes, windows1252());
        EXPECT_EQ(c.bytes, text.source());
        EXPECT_EQ(c.bytes.size(), text.characters());
        EXPECT_EQ(c.utf8, jet::decodeStoredText(plain(text)));
        ASSERT_EQ(c.compressible, text.compressible());
        if (c.compressible) {
            EXPECT_EQ(c.utf8, jet::decodeStoredText(compressed(text)));
        }
    }
}

TEST(TextValue, TakesUtf8AndReplacesWhatIsNone)
{
    struct Case {
        const char* because;
        std::string text;
        std::string stored;
        std::size_t characters;
    };
    const Case cases[] = {
        {"two and three bytes", "\xD0\x96\xE4\xB8\xAD", "\xD0\x96\xE4\xB8\xAD", 2},
        {"a character beyond U+FFFF counts twice", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", 2},
        {"a byte order mark in front would read as the mark of the compressed form",
         "\xEF\xBB\xBFtext", "text", 4},
        {"nothing but one is nothing", "\xEF\xBB\xBF", "", 0},
        {"elsewhere it is a character", "a\xEF\xBB\xBF", "a\xEF\xBB\xBF", 2},
        {"a lone byte", "a\xFF!", "a\xEF\xBF\xBD!", 3},
        {"a character cut short", "a\xE4\xB8", "a\xEF\xBF\xBD\xEF\xBF\xBD", 3},
        {"a longer form than needed", "\xC0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD", 2},
        {"half of a pair", "\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD", 3},
        {"a zero", "a\0"s, "a\xEF\xBF\xBD", 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TextValue text;
        text.assignUtf8(c.text);
        EXPECT_EQ(c.text, text.source());
        EXPECT_EQ(c.characters, text.characters());
        EXPECT_EQ(c.stored, jet::decodeStoredText(plain(text)));
    }
}

TEST(TextValue, AnotherCodePageHasItsOwnCharacters)
{
    CodePage::Table table{};
    for (std::size_t byte = 0; byte < 128; ++byte) table[byte] = static_cast<char16_t>(byte);
    table[0xC6] = u'\u0416';
    table[0xC7] = u'\uFEFF';
    TextValue text;
    text.assign("a\xC6\xC7", CodePage(table));
    EXPECT_EQ("a\xD0\x96\xEF\xBF\xBD", jet::decodeStoredText(plain(text)));
}

TEST(TextValue, IsUsedAgainForAnotherText)
{
    TextValue text;
    text.assign("\x80\x80\x80\x80", windows1252());
    text.assign("abc", windows1252());
    EXPECT_TRUE(text.compressible());
    EXPECT_EQ("abc", jet::decodeStoredText(compressed(text)));
    text.clear();
    EXPECT_EQ(0u, text.characters());
}

TEST(DecodeStoredText, FollowsTheSwitchesOfTheCompressedForm)
{
    EXPECT_EQ("ab\xD0\x96"
              "c",
              jet::decodeStoredText("\xFF\xFE"
                                    "ab\0\x16\x04\0c"s));
    EXPECT_EQ("ab", jet::decodeStoredText("\xFF\xFE"
                                          "ab\0\x16"s));
}

TEST(DecodeStoredText, MakesUtf8OfAnyBytes)
{
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string stored(random() % 12, '\0');
        for (char& byte : stored) byte = static_cast<char>(random());
        const std::string text = jet::decodeStoredText(stored);
        TextValue again;
        again.assignUtf8(text);
        std::string expected = text;
        if (expected.substr(0, 3) == "\xEF\xBB\xBF") continue;  // dropped, as another test tells
        if (expected.find('\0') != std::string::npos) continue; // replaced, likewise
        EXPECT_EQ(expected, jet::decodeStoredText(plain(again)));
    }
}

} // namespace
