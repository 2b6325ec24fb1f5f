#include "backends/site/language/language_names.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

struct Language {
    std::int32_t id;
    const char* name;
};

const Language languages[] = {
    {1033, "English (United States)"},
    {2057, "English (United Kingdom)"},
    {3081, "English (Australia)"},
    {4105, "English (Canada)"},
    {5129, "English (New Zealand)"},
    {6153, "English (Ireland)"},
    {1031, "German (Germany)"},
    {2055, "German (Switzerland)"},
    {3079, "German (Austria)"},
    {4103, "German (Luxembourg)"},
    {5127, "German (Liechtenstein)"},
    {1034, "Spanish (Spain, Traditional Sort)"},
    {2058, "Spanish (Mexico)"},
    {3082, "Spanish (Spain)"},
    {4106, "Spanish (Guatemala)"},
    {5130, "Spanish (Costa Rica)"},
    {6154, "Spanish (Panama)"},
    {7178, "Spanish (Dominican Republic)"},
    {8202, "Spanish (Venezuela)"},
    {9226, "Spanish (Colombia)"},
    {10250, "Spanish (Peru)"},
    {11274, "Spanish (Argentina)"},
    {18442, "Spanish (Honduras)"},
    {19466, "Spanish (Nicaragua)"},
    {20490, "Spanish (Puerto Rico)"},
    {1036, "French (France)"},
    {2060, "French (Belgium)"},
    {3084, "French (Canada)"},
    {4108, "French (Switzerland)"},
    {5132, "French (Luxembourg)"},
    {1040, "Italian (Italy)"},
    {2064, "Italian (Switzerland)"},
    {1041, "Japanese (Japan)"},
    {1043, "Dutch (Netherlands)"},
    {2067, "Dutch (Belgium)"},
    {1044, "Norwegian, Bokmål (Norway)"},
    {2068, "Norwegian, Nynorsk (Norway)"},
    {1046, "Portuguese (Brazil)"},
    {2070, "Portuguese (Portugal)"},
};

TEST(NameOfLanguageId, KnowsEachLanguageThatTheToolMayBeTranslatedTo)
{
    for (const Language& language : languages)
        EXPECT_EQ(language.name, nameOfLanguageId(language.id));
}

TEST(NameOfLanguageId, KnowsOthersThatAUserMayHave)
{
    EXPECT_EQ("Russian (Russia)", nameOfLanguageId(1049));
    EXPECT_EQ("Korean (Korea)", nameOfLanguageId(1042));
    EXPECT_EQ("Arabic (Saudi Arabia)", nameOfLanguageId(1025));
}

TEST(NameOfLanguageId, AnIdentifierThatNamesNoneIsNeutral)
{
    for (const std::int32_t id : {0, 1, 1024, 99999, -1})
        EXPECT_EQ("Language Neutral", nameOfLanguageId(id)) << id;
}

} // namespace
