#pragma once

#include "platform/languages.h"

#include <gtest/gtest.h>

#include <string>

/// What every Languages promises. A `Machine` has a default constructor, `Languages& languages()`
/// and `std::string add(code, id, text)`, which puts a library with one text in place and gives the
/// path under which the tool asks for it, such as `C:\OrvanDiagnostics\ZMKbrandingres_FRA.dll`.
template <typename Machine>
class LanguagesContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(LanguagesContract);

TYPED_TEST_P(LanguagesContract, ALibraryGivesItsTexts)
{
    const std::string path = this->machine.add("FRA", 1000, "Processus \xC3\xA9teint");
    Languages& languages = this->machine.languages();
    const std::int32_t handle = languages.loadLibrary(path);
    ASSERT_GT(handle, 0);
    EXPECT_EQ("Processus \xC3\xA9teint", languages.text(handle, 1000));
    EXPECT_FALSE(languages.text(handle, 1001).has_value());
    EXPECT_FALSE(languages.text(handle, 0).has_value());
    EXPECT_FALSE(languages.text(handle, -1).has_value());
}

TYPED_TEST_P(LanguagesContract, ALibraryIsFoundWithoutRegardToCase)
{
    this->machine.add("FRA", 1000, "un");
    Languages& languages = this->machine.languages();
    const auto handle = languages.loadLibrary("c:\\orvandiagnostics\\zmkBRANDINGres_fra.DLL");
    EXPECT_EQ("un", languages.text(handle, 1000));
}

TYPED_TEST_P(LanguagesContract, AMissingLibraryHasNoHandleAndNoTexts)
{
    Languages& languages = this->machine.languages();
    EXPECT_EQ(0, languages.loadLibrary("C:\\None\\ZMKbrandingres_FRA.dll"));
    EXPECT_FALSE(languages.text(0, 1000).has_value());
}

TYPED_TEST_P(LanguagesContract, AFreedLibraryHasNoTextsAndAnotherKeepsIts)
{
    Languages& languages = this->machine.languages();
    const std::int32_t french = languages.loadLibrary(this->machine.add("FRA", 1000, "un"));
    const std::int32_t german = languages.loadLibrary(this->machine.add("DEU", 1000, "eins"));
    EXPECT_NE(french, german);
    languages.freeLibrary(french);
    EXPECT_FALSE(languages.text(french, 1000).has_value());
    EXPECT_EQ("eins", languages.text(german, 1000));
}

TYPED_TEST_P(LanguagesContract, TheUserHasALanguage)
{
    EXPECT_GT(this->machine.languages().userDefaultLanguage(), 0);
}

TYPED_TEST_P(LanguagesContract, ALanguageHasANameInTheSystemsWords)
{
    const Languages& languages = this->machine.languages();
    EXPECT_NE("", languages.languageName(1033));
    EXPECT_NE(languages.languageName(1033), languages.languageName(1036));
}

REGISTER_TYPED_TEST_SUITE_P(LanguagesContract, ALibraryGivesItsTexts,
                            ALibraryIsFoundWithoutRegardToCase,
                            AMissingLibraryHasNoHandleAndNoTexts,
                            AFreedLibraryHasNoTextsAndAnotherKeepsIts, TheUserHasALanguage,
                            ALanguageHasANameInTheSystemsWords);
