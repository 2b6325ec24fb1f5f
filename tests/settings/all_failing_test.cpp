#include "settings/about_box.h"
#include "settings/event_log_language_page.h"
#include "settings/help_form.h"
#include "settings/log_settings_page.h"
#include "settings/settings_fixture.h"

namespace {

/// Everything outside fails.
struct AllFailing : SettingsTest {
    void failEverything()
    {
        tool.files.failingAll(70);
        tool.registry.closed("Software").closed("System");
        tool.desktop.pickersFailing(5);
        tool.database.unreachable().breakConnection();
        tool.workstation.machine.reset();
        tool.workstation.person.reset();
    }
};

} // namespace

TEST_F(AllFailing, TheLogSettingsOpenAndApply)
{
    failEverything();
    auto& page = open<ppgConfLogSettings>();
    page.txtLocationOfLogFiles.setByPerson("D:\\");
    EXPECT_NO_THROW(page.cmdLogFileLocationBrowse.click());
    EXPECT_NO_THROW(sheet->ok());
    EXPECT_TRUE(sheet->closed());
    EXPECT_EQ("D:\\", page.txtLocationOfLogFiles.text());
}

TEST_F(AllFailing, TheEventLogLanguageOpensAndApplies)
{
    failEverything();
    auto& page = open<ppgEventLogLanguage>();
    page.Changed(true);
    EXPECT_NO_THROW(sheet->ok());
    EXPECT_TRUE(sheet->closed());
    EXPECT_EQ(0, page.lstAvailableLangs.count());
}

TEST_F(AllFailing, TheAboutBoxAndHelpShow)
{
    failEverything();
    frmAbout form(tool.context);
    EXPECT_NO_THROW(form.show());
    EXPECT_NO_THROW(form.mnuLanguageList_Click(0));
    EXPECT_EQ("OK", form.cmdOK.caption());
    frmHelp help(tool.context);
    help.Timer1.setEnabled(true);
    EXPECT_NO_THROW(help.Timer1.tick());
    EXPECT_EQ(1u, tool.desktop.helpShown().size());
}
