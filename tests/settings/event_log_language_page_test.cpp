#include "settings/event_log_language_page.h"

#include "settings/settings_fixture.h"

namespace {

const std::string messages = "C:\\Orvan\\Localize\\Messaging\\";

struct EventLogLanguagePage : SettingsTest {
    EventLogLanguagePage()
    {
        tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan\\");
        for (const char* language : {"JPN", "ENU", "FRA"})
            tool.files.withFolder(messages + language);
        tool.files.with(messages + "readme.txt");
        withSource("Server", messages + "ENU\\x.dll", messages + "ENU\\y.dll");
        withSource("Windows", "C:\\Windows\\z.dll", "C:\\Windows\\z.dll");
    }

    static void choose(ppgEventLogLanguage& page, const std::string& language)
    {
        const auto& languages = page.lstAvailableLangs.items();
        for (int index = 0; index < page.lstAvailableLangs.count(); ++index)
            if (languages[static_cast<std::size_t>(index)] == language)
                page.lstAvailableLangs.chooseByPerson(index);
    }
};

} // namespace

TEST_F(EventLogLanguagePage, ShowsItsTexts)
{
    auto& page = open<ppgEventLogLanguage>();
    EXPECT_EQ("ppgEventLogLanguage", page.name());
    EXPECT_EQ("Original Orvan Event Log Language", page.lblOriginalLanguage.caption());
    EXPECT_EQ("Current Orvan Event Log Language", page.lblCurrentLanguage.caption());
    EXPECT_EQ("Available Orvan Event Log Languages", page.lblAvailableLangs.caption());
    EXPECT_EQ("Kelma Orvan event log messages can be viewed in any Orvan GUI installed language "
              "through the embedded Event Viewer.  Select the new language from the list below.  "
              "Note: The original language will be restored once you exit the Orvan Diagnostic "
              "Tool.",
              page.lblDescription.caption());
    EXPECT_EQ(&page.lblAvailableLangs, page.control("lblAvailableLangs"));
    EXPECT_TRUE(page.txtOriginalLanguage.readOnly());
    EXPECT_TRUE(page.txtCurrentLanguage.readOnly());
}

TEST_F(EventLogLanguagePage, GivesItsControlsTheLanguagesFont)
{
    tool.context.language.g_lngCurrentLanguage = 1041;
    const auto& page = open<ppgEventLogLanguage>();
    for (const auto& declared : page.controls())
        EXPECT_EQ(128, declared.control->font().charset) << declared.name;
}

TEST_F(EventLogLanguagePage, ListsTheInstalledLanguagesInTheOrderOfTheFolder)
{
    const auto& page = open<ppgEventLogLanguage>();
    EXPECT_EQ((Texts{"ENU", "FRA", "JPN"}), page.lstAvailableLangs.items());
    EXPECT_EQ(-1, page.lstAvailableLangs.selectedIndex());
    EXPECT_FALSE(page.Changed());
}

TEST_F(EventLogLanguagePage, TakesTheInstallPathToEndWithABackslash)
{
    tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
    EXPECT_EQ(0, open<ppgEventLogLanguage>().lstAvailableLangs.count());
    tool.files.withFolder("C:\\OrvanLocalize\\Messaging\\DEU");
    EXPECT_EQ(Texts{"DEU"}, open<ppgEventLogLanguage>().lstAvailableLangs.items());
}

TEST_F(EventLogLanguagePage, TheFirstOpeningRemembersTheLanguageToReturnTo)
{
    const auto& page = open<ppgEventLogLanguage>();
    EXPECT_EQ("ENU", page.txtCurrentLanguage.text());
    EXPECT_EQ("ENU", page.txtOriginalLanguage.text());
    EXPECT_EQ("ENU", remembered());
}

TEST_F(EventLogLanguagePage, ASecondOpeningTakesTheOriginalLanguageFromTheRegistry)
{
    choose(open<ppgEventLogLanguage>(), "JPN");
    sheet->ok();

    const auto& page = open<ppgEventLogLanguage>();
    EXPECT_EQ("JPN", page.txtCurrentLanguage.text());
    EXPECT_EQ("ENU", page.txtOriginalLanguage.text());
    EXPECT_EQ("ENU", remembered());
}

TEST_F(EventLogLanguagePage, AppliesTheChosenLanguageToTheServersSourcesAlone)
{
    auto& page = open<ppgEventLogLanguage>();
    EXPECT_FALSE(sheet->canApply());
    choose(page, "FRA");
    EXPECT_TRUE(sheet->canApply());
    sheet->apply();
    EXPECT_EQ(messages + "FRA\\x.dll", eventFile("Server"));
    EXPECT_EQ(messages + "FRA\\y.dll", categoryFile("Server"));
    EXPECT_EQ("C:\\Windows\\z.dll", eventFile("Windows"));
    EXPECT_EQ("C:\\Windows\\z.dll", categoryFile("Windows"));
    EXPECT_EQ("FRA", page.txtCurrentLanguage.text());
    EXPECT_EQ("ENU", page.txtOriginalLanguage.text());
    EXPECT_FALSE(page.Changed());
}

TEST_F(EventLogLanguagePage, EverySecondDeliveryDoesNothing)
{
    auto& page = open<ppgEventLogLanguage>();
    choose(page, "FRA");
    page.PropertyPage_ApplyChanges();
    EXPECT_FALSE(page.Changed());

    choose(page, "JPN");
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(messages + "FRA\\x.dll", eventFile("Server"));
    EXPECT_EQ("FRA", page.txtCurrentLanguage.text());
    EXPECT_TRUE(page.Changed());

    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(messages + "JPN\\x.dll", eventFile("Server"));
}

TEST_F(EventLogLanguagePage, ApplyingWithoutASelectionChangesNoValueAndEmptiesTheCurrentLanguage)
{
    auto& page = open<ppgEventLogLanguage>();
    const auto before = tool.registry.written();
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(before, tool.registry.written());
    EXPECT_EQ("", page.txtCurrentLanguage.text());
}

TEST_F(EventLogLanguagePage, ShowsTheNewLanguageEvenWhenASourceMayNotBeWritten)
{
    auto& page = open<ppgEventLogLanguage>();
    tool.registry.readOnly(eventSourcesKey);
    choose(page, "FRA");
    sheet->apply();
    EXPECT_EQ("FRA", page.txtCurrentLanguage.text());
    EXPECT_EQ(messages + "ENU\\x.dll", eventFile("Server"));
}

TEST_F(EventLogLanguagePage, WithoutASourceAnErrorIsLoggedAndTheCurrentLanguageStaysEmpty)
{
    TestTool bare;
    ppgEventLogLanguage page(bare.context);
    bare.registry.withKey(eventSourcesKey);
    bare.files.withFolder("C:\\Localize\\Messaging\\ENU");
    page.IMMCPropertyPage_Initialize(nullptr, *sheet);
    EXPECT_EQ((Texts{"Err.Number = 9 Err.Description = Subscript out of range"}),
              bare.failures("[ppgEventLogLanguage]IMMCPropertyPage_Initialize"));
    EXPECT_EQ("", page.txtCurrentLanguage.text());
    EXPECT_EQ("", page.txtOriginalLanguage.text());
    EXPECT_EQ(Texts{"ENU"}, page.lstAvailableLangs.items()) << "from the current folder";
    EXPECT_TRUE(bare.registry.has(toolKey, "OriginalEventLogLanguage"));
}

TEST_F(EventLogLanguagePage, AMissingFolderOfMessagesLeavesTheListEmpty)
{
    tool.registry.withText(baseKey, "InstalledFolderPath", "D:\\Gone\\");
    const auto& page = open<ppgEventLogLanguage>();
    EXPECT_EQ(0, page.lstAvailableLangs.count());
    EXPECT_EQ("ENU", page.txtCurrentLanguage.text()) << "later steps ran";
}
