#include "core/user_texts.h"

#include "support/fakes/fake_host_module.h"
#include "support/fakes/fake_languages.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

constexpr const char* frenchLibrary = "C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll";

} // namespace

TEST(UserTexts, AreThoseOfTheUsersLanguageAndElseEnglish)
{
    FakeHostModule module;
    FakeLanguages languages;
    languages.userDefault = 1036;
    languages.with(frenchLibrary, {{1013, "Syst\xC3\xA8mes"}, {1015, ""}});

    const UserTexts texts(languages, module);

    EXPECT_EQ("Syst\xC3\xA8mes", texts.text(TextId::companyName));
    EXPECT_EQ("Kelma Orvan Diagnostics", texts.text(TextId::snapInName)) << "an empty text";
    EXPECT_EQ("Kelma Orvan Diagnostics MMC Snap-in", texts.text(TextId::snapInFullName));
}

TEST(UserTexts, LetTheLibraryGo)
{
    FakeHostModule module;
    FakeLanguages languages;
    languages.userDefault = 1036;
    languages.with(frenchLibrary, {});
    std::optional<UserTexts> texts;
    texts.emplace(languages, module);
    EXPECT_TRUE(languages.freed().empty());

    texts.reset();
    EXPECT_EQ(1u, languages.freed().size());

    languages.userDefault = 1041;
    texts.emplace(languages, module);
    EXPECT_EQ("Kelma Systems, Inc.", texts->text(TextId::companyName)) << "no library";
    texts.reset();
    EXPECT_EQ(1u, languages.freed().size()) << "there was none to let go";
}
