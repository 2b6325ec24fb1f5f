#include "wizards/reset_wizard.h"

#include "wizards/wizards_fixture.h"

using testing::IsEmpty;

namespace {

struct ResetWizard : WizardTest {
    ppgDisableAllTraces0& page = add<ppgDisableAllTraces0>();

    ResetWizard()
    {
        tool.database.withComponent("A", 7, 4);
        withFile("HTcalls.xml", "<GA NAME='Calls'><TRACE NAME='Ring'/></GA>");
    }
};

} // namespace

TEST_F(ResetWizard, ShowsItsTexts)
{
    sheet->show();
    expectCaptions({{"chkDisableAllTraces", "Reset to Default Traces"},
                    {"lblWarnings", "Some micro traces should remain on at all times.  This wizard "
                                    "will not disable these traces."},
                    {"lblPrompt", "To continue, click Finish."},
                    {"lblPurpose", "This wizard allows you to disable all of the traces at once."},
                    {"lblWelcomeTitle", "Welcome to the Reset to Default Traces Wizard."},
                    {"lblDefinitions", ""}});
}

TEST_F(ResetWizard, FinishStaysDisabledUntilTheBoxIsClicked)
{
    sheet->show();
    EXPECT_FALSE(page.chkDisableAllTraces.checked());
    EXPECT_EQ((WizardButtons{false, wizardButton::finishDisabled, ""}), sheet->buttons());
    EXPECT_FALSE(sheet->finish());
    page.chkDisableAllTraces.click();
    EXPECT_EQ((WizardButtons{true, wizardButton::finishEnabled, ""}), sheet->buttons());
}

TEST_F(ResetWizard, FinishWithATickedBoxResetsAllTraces)
{
    sheet->show();
    page.chkDisableAllTraces.click();
    ASSERT_TRUE(sheet->finish());
    EXPECT_EQ(4, flags("A"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_TRUE(sheet->closed());
    EXPECT_TRUE(tool.logged("Entering [ppgDisableAllTraces0]IWizardPage_Finish"));
    EXPECT_TRUE(tool.logged("Exiting [ppgDisableAllTraces0]IWizardPage_Finish"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ResetWizard, ABoxThatWasTickedAndClearedLeavesFinishEnabledAndChangesNothing)
{
    sheet->show();
    page.chkDisableAllTraces.click();
    page.chkDisableAllTraces.click();
    ASSERT_TRUE(sheet->finish());
    EXPECT_EQ(7, flags("A"));
    EXPECT_EQ(0, signalsSent());
}

TEST_F(ResetWizard, UnderTheDevelopmentHostFinishIsEnabledAndAnEmptyBoxChangesNothing)
{
    tool.context.g_bDebugMode = true;
    sheet->show();
    EXPECT_EQ((WizardButtons{false, wizardButton::finishEnabled, ""}), sheet->buttons());
    page.chkDisableAllTraces.click();
    EXPECT_FALSE(sheet->canGoBack()) << "a click does not touch the buttons";
    page.chkDisableAllTraces.click();
    ASSERT_TRUE(sheet->finish());
    EXPECT_EQ(0, signalsSent());
}

TEST_F(ResetWizard, BackIsEnabledByTheClickAndLeadsNowhere)
{
    sheet->show();
    page.chkDisableAllTraces.click();
    EXPECT_TRUE(sheet->back());
    EXPECT_EQ(1, sheet->currentPosition());
    EXPECT_TRUE(sheet->canFinish());
}

TEST_F(ResetWizard, BuildsTheCatalogueWhenItShows)
{
    EXPECT_EQ(nullptr, tool.context.g_domMacroTraces);
    sheet->show();
    ASSERT_NE(nullptr, tool.context.g_domMacroTraces);
    EXPECT_EQ(1u, tool.context.g_domMacroTraces->getElementsByTagName("TRACE").size());
}

TEST_F(ResetWizard, CancelNeverChangesAnything)
{
    sheet->show();
    page.chkDisableAllTraces.click();
    EXPECT_TRUE(sheet->cancel());
    EXPECT_EQ(7, flags("A"));
    EXPECT_EQ(0, signalsSent());
}
