#include "core/language_table.h"

#include <gtest/gtest.h>

namespace {

struct Language {
    const char* code;
    std::int32_t id;
};

const Language languages[] = {
    {"ENU", 1033},  {"ENG", 2057}, {"ENA", 3081},  {"ENC", 4105},  {"ENZ", 5129},  {"ENI", 6153},
    {"DEU", 1031},  {"DES", 2055}, {"DEA", 3079},  {"DEL", 4103},  {"DEC", 5127},  {"ESP", 1034},
    {"ESM", 2058},  {"ESN", 3082}, {"ESG", 4106},  {"ESC", 5130},  {"ESA", 6154},  {"ESD", 7178},
    {"ESV", 8202},  {"ESO", 9226}, {"ESR", 10250}, {"ESS", 11274}, {"ESH", 18442}, {"ESI", 19466},
    {"ESU", 20490}, {"FRA", 1036}, {"FRB", 2060},  {"FRC", 3084},  {"FRS", 4108},  {"FRL", 5132},
    {"ITA", 1040},  {"ITS", 2064}, {"JPN", 1041},  {"NLD", 1043},  {"NLB", 2067},  {"NOR", 1044},
    {"NON", 2068},  {"PTB", 1046}, {"PTG", 2070},
};

} // namespace

TEST(LanguageTable, EachRowIsFoundBothWays)
{
    EXPECT_EQ(39u, std::size(languages));
    for (const Language& language : languages) {
        SCOPED_TRACE(language.code);
        EXPECT_EQ(language.code, codeFromLanguageId(language.id));
        EXPECT_EQ(language.id, languageIdFromCode(language.code));
    }
}

TEST(LanguageTable, AnIdentifierWithoutARowHasTheCodeError)
{
    for (const std::int32_t id : {0, 1028, 1042, 2052, 1049, -1, 65536})
        EXPECT_EQ("ERROR", codeFromLanguageId(id)) << id;
}

TEST(LanguageTable, ACodeWithoutARowIsEnglish)
{
    for (const char* code : {"ZZZ", "", "FR", "FRAU", "ERROR"})
        EXPECT_EQ(1033, languageIdFromCode(code)) << code;
}

TEST(LanguageTable, ACodeMatchesWithoutRegardToCase)
{
    EXPECT_EQ(1036, languageIdFromCode("fra"));
    EXPECT_EQ(2070, languageIdFromCode("pTg"));
}

TEST(FontOfLanguage, IsSpecialForFourLanguages)
{
    EXPECT_EQ(136, fontOfLanguage(1028).charset);
    EXPECT_EQ("新細明體", fontOfLanguage(1028).name);
    EXPECT_EQ(128, fontOfLanguage(1041).charset);
    EXPECT_EQ("ＭＳ Ｐゴシック", fontOfLanguage(1041).name);
    EXPECT_EQ(129, fontOfLanguage(1042).charset);
    EXPECT_EQ("굴림", fontOfLanguage(1042).name);
    EXPECT_EQ(134, fontOfLanguage(2052).charset);
    EXPECT_EQ("宋体", fontOfLanguage(2052).name);
    for (const std::int32_t id : {0, 1033, 1036, 3076}) {
        EXPECT_EQ(1, fontOfLanguage(id).charset) << id;
        EXPECT_EQ("", fontOfLanguage(id).name) << id;
    }
}
