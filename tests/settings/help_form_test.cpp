#include "settings/help_form.h"

#include "settings/settings_fixture.h"

namespace {
using HelpForm = SettingsTest;
}

TEST_F(HelpForm, ShowsHelpOnceForEachTimeThatItsTimerIsSwitchedOn)
{
    frmHelp form(tool.context);
    const FakeDesktop::Help shown{"C:\\OrvanDiagnostics\\OrvanDiagnosticTool.chm", 0};
    EXPECT_FALSE(form.Timer1.running());
    form.Timer1.tick();
    EXPECT_TRUE(tool.desktop.helpShown().empty());

    form.Timer1.setEnabled(true);
    EXPECT_TRUE(form.Timer1.running());
    form.Timer1.tick();
    form.Timer1.tick();
    EXPECT_EQ((std::vector<FakeDesktop::Help>{shown}), tool.desktop.helpShown());
    EXPECT_FALSE(form.Timer1.enabled());

    form.Timer1.setEnabled(true);
    form.Timer1.tick();
    EXPECT_EQ((std::vector<FakeDesktop::Help>{shown, shown}), tool.desktop.helpShown());
}
