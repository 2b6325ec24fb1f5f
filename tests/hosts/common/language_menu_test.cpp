#include "hosts/common/language_menu.h"

#include "core/registry_store.h"
#include "hosts/common/tool_on_site.h"
#include "runtime/run_time_error.h"
#include "support/error_of.h"
#include "support/fakes/fake_desktop.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

class HostOfLanguages final : public ToolOnSite {
public:
    HostOfLanguages(const std::string& folder, Desktop& desktop)
        : ToolOnSite(folder, "", HostFacts{}, SiteUse::change, desktop)
    {
        load();
    }
    ~HostOfLanguages() { unload(); }

    std::string registryLanguage()
    {
        return getRegistryText(context(), toolKey, "CurrentLocalizationLanguage");
    }
};

struct LanguageMenuTest : testing::Test {
    LanguageMenuTest()
    {
        folder.write("site.ini", "[site]\nlanguage = 1033\n");
        addLanguage("FRA", "1071 = Choisir la langue\n");
    }

    void addLanguage(const std::string& code, const std::string& texts) const
    {
        folder.write("drive_c/OrvanDiagnostics/ZMKbrandingres_" + code + ".txt", texts);
    }

    TemporaryFolder folder;
    FakeDesktop desktop;
};

TEST_F(LanguageMenuTest, IsEmptyForOneLanguageAlone)
{
    HostOfLanguages host(folder.path(), desktop);
    const LanguageMenu menu = LanguageMenu::of(host);

    EXPECT_EQ("", menu.caption);
    EXPECT_THAT(menu.languages, testing::IsEmpty());
}

TEST_F(LanguageMenuTest, ChoosesTheLanguageThatIsShownAtAPlace)
{
    addLanguage("DEU", "1071 = Sprache w\xC3\xA4hlen\n");
    HostOfLanguages host(folder.path(), desktop);
    EXPECT_EQ("Select Language", LanguageMenu::of(host).caption);
    EXPECT_THAT(LanguageMenu::of(host).languages,
                testing::ElementsAre("German (Germany)", "French (France)"));

    chooseLanguage(host, 1);

    EXPECT_EQ("1036", host.registryLanguage());
    EXPECT_EQ("Choisir la langue", LanguageMenu::of(host).caption);
    EXPECT_EQ(runTimeErrors::subscriptOutOfRange, errorOf([&] { chooseLanguage(host, 2); }));
    EXPECT_EQ("1036", host.registryLanguage());
}

} // namespace
