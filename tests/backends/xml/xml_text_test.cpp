#include "backends/xml/xml_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(DeclaredEncoding, IsThatOfTheDeclarationInFront)
{
    const struct {
        const char* because;
        std::string text;
        const char* expected;
    } cases[] = {
        {"in single quotes", "<?xml version='1.0' encoding='windows-1252'?><G/>", "windows-1252"},
        {"in double quotes", "<?xml version=\"1.0\" encoding=\"KOI8-R\" ?>", "KOI8-R"},
        {"with blanks around the sign", "<?xml version='1.0'\r\n\tencoding = 'a'?>", "a"},
        {"behind a byte order mark", "\xEF\xBB\xBF<?xml version='1.0' encoding='a'?>", "a"},
        {"before something else", "<?xml version='1.0' encoding='a' standalone='yes'?>", "a"},
        {"none", "<?xml version='1.0'?>", ""},
        {"no declaration", "<G encoding='a'/>", ""},
        {"a declaration that is not in front", " <?xml version='1.0' encoding='a'?>", ""},
        {"another instruction", "<?xml-style encoding='a'?>", ""},
        {"behind the declaration", "<?xml version='1.0'?><G encoding='a'/>", ""},
        {"part of another name", "<?xml noencoding='a'?>", ""},
        {"without quotes", "<?xml encoding=a?>", ""},
        {"characters that no encoding's name has", "<?xml encoding='a//TRANSLIT'?>", ""},
        {"cut short", "<?xml encoding", ""},
        {"nothing", "", ""},
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, declaredEncoding(c.text)) << c.because;
}

TEST(XmlText, ConvertsTextsOfAnyLength)
{
    for (const std::size_t length : {0U, 1U, 2047U, 2048U, 2049U, 4096U, 100'000U}) {
        const std::string head = "<?xml version='1.0' encoding='windows-1252'?>";
        const std::string bytes = head + std::string(length, '\xE9') + "x";
        std::string expected = head;
        for (std::size_t count = 0; count < length; ++count) expected += "\xC3\xA9";
        EXPECT_EQ(expected + "x", xmlText(bytes, windows1252())) << length;
    }
}

TEST(XmlText, GivesTheLetterThatItsEncodingHoldsBackAtTheEnd)
{
    EXPECT_EQ("<?xml version='1.0' encoding='windows-1258'?>\xC3\xAA",
              xmlText("<?xml version='1.0' encoding='windows-1258'?>\xEA", windows1252()));
}

TEST(XmlText, IsNothingForACharacterCutShort)
{
    EXPECT_EQ(std::nullopt,
              xmlText("<?xml version='1.0' encoding='Shift_JIS'?>\x93", windows1252()));
    EXPECT_EQ(std::nullopt, xmlText(std::string("\xFF\xFE<\0G", 5), windows1252()));
}

} // namespace
