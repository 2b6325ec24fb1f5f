#include "core/language_table.h"

#include <gtest/gtest.h>

namespace {

struct Language {
    const char* code;
    std::int32_t id;
    const char* name;
};

const Language languages[] = {
    {"ENU", 1033, "English (United States)"},
    {"ENG", 2057, "English (United Kingdom)"},
    {"ENA", 3081, "English (Australia)"},
    {"ENC", 4105, "English (Canada)"},
    {"ENZ", 5129, "English (New Zealand)"},
    {"ENI", 6153, "English (Ireland)"},
    {"DEU", 1031, "German (Germany)"},
    {"DES", 2055, "German (Switzerland)"},
    {"DEA", 3079, "German (Austria)"},
    {"DEL", 4103, "German (Luxembourg)"},
    {"DEC", 5127, "German (Liechtenstein)"},
    {"ESP", 1034, "Spanish (Spain, Traditional Sort)"},
    {"ESM", 2058, "Spanish (Mexico)"},
    {"ESN", 3082, "Spanish (Spain)"},
    {"ESG", 4106, "Spanish (Guatemala)"},
    {"ESC", 5130, "Spanish (Costa Rica)"},
    {"ESA", 6154, "Spanish (Panama)"},
    {"ESD", 7178, "Spanish (Dominican Republic)"},
    {"ESV", 8202, "Spanish (Venezuela)"},
    {"ESO", 9226, "Spanish (Colombia)"},
    {"ESR", 10250, "Spanish (Peru)"},
    {"ESS", 11274, "Spanish (Argentina)"},
    {"ESH", 18442, "Spanish (Honduras)"},
    {"ESI", 19466, "Spanish (Nicaragua)"},
    {"ESU", 20490, "Spanish (Puerto Rico)"},
    {"FRA", 1036, "French (France)"},
    {"FRB", 2060, "French (Belgium)"},
    {"FRC", 3084, "French (Canada)"},
    {"FRS", 4108, "French (Switzerland)"},
    {"FRL", 5132, "French (Luxembourg)"},
    {"ITA", 1040, "Italian (Italy)"},
    {"ITS", 2064, "Italian (Switzerland)"},
    {"JPN", 1041, "Japanese (Japan)"},
    {"NLD", 1043, "Dutch (Netherlands)"},
    {"NLB", 2067, "Dutch (Belgium)"},
    {"NOR", 1044, "Norwegian, Bokmål (Norway)"},
    {"NON", 2068, "Norwegian, Nynorsk (Norway)"},
    {"PTB", 1046, "Portuguese (Brazil)"},
    {"PTG", 2070, "Portuguese (Portugal)"},
};

} // namespace

TEST(LanguageTable, EachRowIsFoundBothWaysAndHasAName)
{
    EXPECT_EQ(39u, std::size(languages));
    for (const Language& language : languages) {
        SCOPED_TRACE(language.code);
        EXPECT_EQ(language.code, codeFromLanguageId(language.id));
        EXPECT_EQ(language.id, languageIdFromCode(language.code));
        EXPECT_EQ(language.name, languageName(language.id));
        EXPECT_EQ(language.name, languageNameFromCode(language.code));
    }
}

TEST(LanguageTable, AnIdentifierWithoutARowHasTheCodeError)
{
    for (const std::int32_t id : {0, 1028, 1042, 2052, 1049, -1, 65536})
        EXPECT_EQ("ERROR", codeFromLanguageId(id)) << id;
}

TEST(LanguageTable, ACodeWithoutARowIsEnglish)
{
    for (const char* code : {"ZZZ", "", "enu", "fra", "FR", "FRAU", "ERROR"})
        EXPECT_EQ(1033, languageIdFromCode(code)) << code;
    EXPECT_EQ("English (United States)", languageNameFromCode("ZZZ"));
}

TEST(LanguageName, KnowsLanguagesThatTheToolIsNotTranslatedTo)
{
    EXPECT_EQ("Russian (Russia)", languageName(1049));
    EXPECT_EQ("Korean (Korea)", languageName(1042));
    EXPECT_EQ("Arabic (Saudi Arabia)", languageName(1025));
}

TEST(LanguageName, AnIdentifierThatNamesNoneIsNeutral)
{
    for (const std::int32_t id : {0, 1, 1024, 99999, -1})
        EXPECT_EQ("Language Neutral", languageName(id)) << id;
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
