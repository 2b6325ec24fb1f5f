#include "system/encoding_converter.h"

#include <gtest/gtest.h>

namespace {

using Result = EncodingConverter::Result;

TEST(EncodingConverter, AppendsAWholeText)
{
    EncodingConverter converter("ISO-8859-1", "UTF-8");
    ASSERT_TRUE(converter.isKnown());
    std::string text = "> ";
    EXPECT_EQ(Result::whole, converter.append(text, "caf\xE9"));
    EXPECT_EQ(Result::whole, converter.append(text, ""));
    EXPECT_EQ("> café", text);
}

TEST(EncodingConverter, ConvertsMoreThanItHoldsAtATime)
{
    EncodingConverter converter("ISO-8859-1", "UTF-8");
    std::string text;
    std::string expected;
    for (int letter = 0; letter < 10'001; ++letter) expected += "é";
    EXPECT_EQ(Result::whole, converter.append(text, std::string(10'001, '\xE9')));
    EXPECT_EQ(expected, text);
}

TEST(EncodingConverter, TellsWhatIsNoCharacterFromWhatIsCutShort)
{
    EncodingConverter converter("UTF-8", "UTF-16LE");
    std::string text;
    EXPECT_EQ(Result::noCharacter, converter.append(text, "\xFF"));
    EXPECT_EQ(Result::cutShort, converter.append(text, "\xE3\x81"));
    EXPECT_EQ("", text);
    EXPECT_EQ(Result::whole, converter.append(text, "a")) << "each text begins anew";
    EXPECT_EQ(std::string("a\0", 2), text);
}

TEST(EncodingConverter, ConvertsNothingOfAnEncodingThatTheMachineDoesNotKnow)
{
    EncodingConverter converter("no such encoding", "UTF-8");
    EXPECT_FALSE(converter.isKnown());
    std::string text;
    EXPECT_NE(Result::whole, converter.append(text, "a"));
    EXPECT_EQ("", text);
}

struct EncodedText {
    const char* encoding;
    std::string bytes;
    std::string text;
};

TEST(EncodingConverter, GoesBothWaysWithTheEncodingsOfDocumentsAndCodePages)
{
    for (const auto& [encoding, bytes, text] : {
             EncodedText{"UTF-16LE", {"\x3D\xD8\x00\xDE", 4}, "😀"},
             EncodedText{"UTF-16BE", {"\x00\xE9\x20\xAC", 4}, "é€"},
             EncodedText{"UTF-32BE", {"\x00\x01\xF6\x00", 4}, "😀"},
             EncodedText{"CP437", "\x82\xE1", "éß"},
             EncodedText{"CP1252", "\x80\xE9", "€é"},
             EncodedText{"windows-1251", "\xEF\xF0", "пр"},
             EncodedText{"ISO-8859-2", "\xB9", "š"},
             EncodedText{"KOI8-R", "\xC1", "а"},
             EncodedText{"Shift_JIS", "\x82\xA0", "あ"},
             EncodedText{"US-ASCII", "a", "a"},
         }) {
        std::string decoded;
        EXPECT_EQ(Result::whole, EncodingConverter(encoding, "UTF-8").append(decoded, bytes));
        EXPECT_EQ(text, decoded) << encoding;
        std::string encoded;
        EXPECT_EQ(Result::whole, EncodingConverter("UTF-8", encoding).append(encoded, text));
        EXPECT_EQ(bytes, encoded) << encoding;
    }
}

TEST(EncodingConverter, KeepsWhatComesBeforeTheFirstBytesThatDontFit)
{
    std::string text;
    EXPECT_EQ(Result::noCharacter, EncodingConverter("CP1252", "UTF-8").append(text, "a\x81z"));
    EXPECT_EQ(Result::noCharacter, EncodingConverter("UTF-8", "ISO-8859-1").append(text, "b€z"));
    EXPECT_EQ(Result::cutShort, EncodingConverter("CP932", "UTF-8").append(text, "c\x82"));
    EXPECT_EQ(Result::noCharacter,
              EncodingConverter("UTF-16LE", "UTF-8").append(text, std::string("d\0\0\xDCz\0", 6)));
    EXPECT_EQ(Result::cutShort,
              EncodingConverter("UTF-16LE", "UTF-8").append(text, std::string("e\0f", 3)));
    EXPECT_EQ("abcde", text);
}

} // namespace
