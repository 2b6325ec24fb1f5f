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

} // namespace
