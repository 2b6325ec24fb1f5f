#include "backends/site/language/site_languages.h"

#include "drives/site_paths.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(LanguageOfLocale, KnowsLanguagesAndTheirCountries)
{
    struct Case {
        const char* because;
        const char* locale;
        int expected;
    };
    const Case cases[] = {
        {"a language and its country", "fr_CA", 3084},
        {"with an encoding", "fr_CA.UTF-8", 3084},
        {"with a variant", "de_AT@euro", 3079},
        {"a language alone", "ja", 1041},
        {"a country without an entry", "fr_SN.UTF-8", 1036},
        {"Chinese of either script", "zh_TW.UTF-8", 1028},
        {"the other one", "zh_CN", 2052},
        {"English of Britain", "en_GB.UTF-8", 2057},
        {"no language", "C", 1033},
        {"none either", "POSIX", 1033},
        {"nothing", "", 1033},
        {"an unknown one", "tlh_XX.UTF-8", 1033},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, languageOfLocale(c.locale));
    }
}

class SiteLanguagesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    SitePaths paths{folder.path()};
    SiteLanguages languages{1036, paths};
};

TEST_F(SiteLanguagesTest, TheSitesLanguageComesBeforeTheMachines)
{
    EXPECT_EQ(1036, languages.userDefaultLanguage());
    ::setenv("LANG", "it_CH.UTF-8", 1);
    EXPECT_EQ(2064, SiteLanguages({}, paths).userDefaultLanguage());
    ::unsetenv("LANG");
    EXPECT_EQ(1033, SiteLanguages({}, paths).userDefaultLanguage());
}

TEST_F(SiteLanguagesTest, AreThoseOfMessagesBeforeThoseOfAllElse)
{
    const SiteLanguages ofTheMachine({}, paths);
    ::setenv("LANG", "it_CH.UTF-8", 1);
    ::setenv("LC_MESSAGES", "fr_FR.UTF-8", 1);
    EXPECT_EQ(1036, ofTheMachine.userDefaultLanguage());
    ::setenv("LC_ALL", "de_AT.UTF-8", 1);
    EXPECT_EQ(3079, ofTheMachine.userDefaultLanguage());
    ::setenv("LC_ALL", "", 1);
    EXPECT_EQ(1036, ofTheMachine.userDefaultLanguage()) << "an empty variable says nothing";
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(1033, ofTheMachine.userDefaultLanguage());
    for (const char* name : {"LANG", "LC_MESSAGES", "LC_ALL"}) ::unsetenv(name);
}

TEST_F(SiteLanguagesTest, ACatalogueServesAsTheLibraryOfItsName)
{
    folder.write("drive_c/Tool/zmkBrandingRes_FRA.TXT", "1062 = D'accord\n");

    const auto handle = languages.loadLibrary("C:\\Tool\\ZMKbrandingres_FRA.dll");

    ASSERT_NE(0, handle);
    EXPECT_EQ("D'accord", languages.text(handle, 1062));
    EXPECT_EQ(std::nullopt, languages.text(handle, 1));
    EXPECT_EQ(std::nullopt, languages.text(handle + 1, 1062));
    EXPECT_NE(handle, languages.loadLibrary("C:\\Tool\\ZMKbrandingres_FRA"));
    languages.freeLibrary(handle);
    languages.freeLibrary(handle);
    EXPECT_EQ(std::nullopt, languages.text(handle, 1062));
}

TEST_F(SiteLanguagesTest, WhatDoesNotLoadHasNoHandle)
{
    folder.write("drive_c/bad.txt", "no catalogue");
    folder.makeFolder("drive_c/folder.txt");

    for (const auto& path : {std::string("C:\\bad.dll"), std::string("C:\\none.dll"), std::string(),
                             std::string("C:\\folder.dll"), std::string("C:\\a\0b", 6)})
        EXPECT_EQ(0, languages.loadLibrary(path)) << path;
    EXPECT_EQ(std::nullopt, languages.text(0, 1062));
}

} // namespace
