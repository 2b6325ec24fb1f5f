#include "backends/site/code_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include <iconv.h>

namespace {

struct NamedPage {
    int number;
    const char* name; ///< the machine's own for it
};

const NamedPage singleBytePages[] = {
    {437, "CP437"},         {737, "CP737"},         {770, "CP770"},         {771, "CP771"},
    {772, "CP772"},         {773, "CP773"},         {774, "CP774"},         {775, "CP775"},
    {813, "ISO-8859-7"},    {819, "ISO-8859-1"},    {848, "IBM848"},        {850, "CP850"},
    {851, "CP851"},         {852, "CP852"},         {855, "CP855"},         {857, "CP857"},
    {858, "CP858"},         {860, "CP860"},         {861, "CP861"},         {862, "CP862"},
    {863, "CP863"},         {865, "CP865"},         {866, "CP866"},         {868, "CP868"},
    {869, "CP869"},         {874, "WINDOWS-874"},   {901, "CP901"},         {902, "CP902"},
    {912, "ISO-8859-2"},    {915, "ISO-8859-5"},    {916, "IBM916"},        {920, "ISO-8859-9"},
    {921, "CP921"},         {922, "CP922"},         {1089, "ISO-8859-6"},   {1124, "CP1124"},
    {1125, "CP1125"},       {1129, "CP1129"},       {1133, "CP1133"},       {1250, "CP1250"},
    {1251, "CP1251"},       {1252, "CP1252"},       {1253, "CP1253"},       {1254, "CP1254"},
    {1255, "CP1255"},       {1256, "CP1256"},       {1257, "CP1257"},       {1258, "CP1258"},
    {10007, "CP10007"},     {20127, "US-ASCII"},    {20866, "KOI8-R"},      {21866, "KOI8-U"},
    {28591, "ISO-8859-1"},  {28592, "ISO-8859-2"},  {28593, "ISO-8859-3"},  {28594, "ISO-8859-4"},
    {28595, "ISO-8859-5"},  {28596, "ISO-8859-6"},  {28597, "ISO-8859-7"},  {28598, "ISO-8859-8"},
    {28599, "ISO-8859-9"},  {28600, "ISO-8859-10"}, {28601, "ISO-8859-11"}, {28603, "ISO-8859-13"},
    {28604, "ISO-8859-14"}, {28605, "ISO-8859-15"}, {28606, "ISO-8859-16"},
};

/// What the machine reads in bytes, as UTF-8; nothing where one of them is no character.
std::string readByTheMachine(const char* name, std::string bytes)
{
    const iconv_t converter = iconv_open("UTF-8", name);
    EXPECT_NE(reinterpret_cast<iconv_t>(-1), converter) << name;
    std::string text(bytes.size() * 8, '\0');
    char* from = bytes.data();
    char* to = text.data();
    std::size_t left = bytes.size();
    std::size_t room = text.size();
    const bool read = iconv(converter, &from, &left, &to, &room) == 0 &&
                      iconv(converter, nullptr, nullptr, &to, &room) == 0;
    iconv_close(converter);
    text.resize(read ? text.size() - room : 0);
    return text;
}

std::string readByTheTable(const CodePage& codePage, const std::string& bytes)
{
    std::string text;
    codePage.appendUtf8(text, bytes);
    return text;
}

/// Where the machine knows no character: the control character of the number, else U+FFFD.
std::string ofAnUnusedByte(int byte)
{
    if (byte < 0xA0) return {'\xC2', static_cast<char>(byte)};
    return "\xEF\xBF\xBD";
}

TEST(CodePages, EveryByteAloneIsWhatTheMachineReadsInIt)
{
    for (const auto& page : singleBytePages) {
        SCOPED_TRACE(page.number);
        const auto codePage = codePageOf(page.number);
        ASSERT_TRUE(codePage);
        for (int byte = 0; byte < 256; ++byte) {
            const std::string alone(1, static_cast<char>(byte));
            const std::string known = readByTheMachine(page.name, alone);
            const std::string expected =
                known.empty() && byte > 0x7F ? ofAnUnusedByte(byte) : known;
            EXPECT_EQ(expected, readByTheTable(*codePage, alone)) << byte;
            if (!known.empty()) {
                EXPECT_EQ(known, readByTheTable(*codePage, codePage->bytesOf(known))) << byte;
            }
        }
    }
}

TEST(CodePages, SequencesAreWhatTheMachineReadsInThem)
{
    std::mt19937 random(7);
    for (const auto& page : singleBytePages) {
        if (page.number == 1255 || page.number == 1258) continue; // the machine joins some letters
        SCOPED_TRACE(page.number);
        const auto codePage = codePageOf(page.number).value();
        std::string used;
        for (int byte = 0; byte < 256; ++byte) {
            const std::string alone(1, static_cast<char>(byte));
            if (!readByTheMachine(page.name, alone).empty()) used += alone;
        }
        EXPECT_EQ(readByTheMachine(page.name, used), readByTheTable(codePage, used));
        for (int round = 0; round < 20; ++round) {
            std::string bytes;
            while (bytes.size() < 50) bytes += used[random() % used.size()];
            EXPECT_EQ(readByTheMachine(page.name, bytes), readByTheTable(codePage, bytes));
        }
    }
}

TEST(CodePages, AMarkFollowsTheLetterThatCarriesIt)
{
    EXPECT_EQ("ti\xC3\xAA\xCC\x81ng Vi\xC3\xAA\xCC\xA3t",
              readByTheTable(codePageOf(1258).value(), "ti\xEA\xECng Vi\xEA\xF2t"));
    EXPECT_EQ("\xD7\xA9\xD7\x81\xD7\x90", readByTheTable(codePageOf(1255).value(), "\xF9\xD1\xE0"));
    EXPECT_EQ("\xD7\xA9", readByTheTable(codePageOf(1255).value(), "\xF9")) << "at the end too";
}

TEST(CodePages, RefusesWhatIsNoSingleBytePageOfAsciiKind)
{
    const struct {
        const char* because;
        int number;
    } cases[] = {
        {"UTF-8", 65001},
        {"UTF-7", 65000},
        {"UTF-16", 1200},
        {"UTF-16, highest byte first", 1201},
        {"Japanese", 932},
        {"simplified Chinese", 936},
        {"Korean", 949},
        {"traditional Chinese", 950},
        {"all of Chinese", 54936},
        {"a page with other basic letters", 37},
        {"another one", 500},
        {"a percent sign of its own", 864},
        {"no page of ISO", 28602},
        {"no page at all", 1},
        {"a number too large", 65535},
    };
    for (const auto& c : cases) EXPECT_FALSE(codePageOf(c.number)) << c.because;
}

TEST(CodePages, AreListedWhereTheMachineKnowsThem)
{
    const std::vector<int> known = knownCodePages();
    EXPECT_TRUE(std::is_sorted(known.begin(), known.end()));
    for (const int number : known) EXPECT_TRUE(codePageOf(number)) << number;
    for (const int number : {437, 850, 1250, 1252, 28591})
        EXPECT_TRUE(std::binary_search(known.begin(), known.end(), number)) << number;
}

} // namespace
