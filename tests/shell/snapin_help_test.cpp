#include "settings/about_box.h"
#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

struct SnapInHelp : ShellTest {
    const FakeDesktop::Help manual{"C:\\OrvanDiagnostics\\OrvanDiagnosticTool_ENU.chm", 0};

    SnapInHelp()
    {
        tool.files.with(manual.file);
        load();
    }
};

} // namespace

TEST_F(SnapInHelp, HelpOnTheSnapInShowsTheManualAndIsLogged)
{
    console.helpOnSnapIn();
    EXPECT_THAT(tool.desktop.helpShown(), ElementsAre(manual));
    EXPECT_TRUE(tool.logged("Entering [snapinOrvanDiagnostics]SnapIn_Help"));
    EXPECT_TRUE(tool.logged("Exiting [snapinOrvanDiagnostics]SnapIn_Help"));
    EXPECT_FALSE(tool.logged("hwndHelp returned")) << "the console shows it";
}

TEST_F(SnapInHelp, HelpOnANodeOrAViewShowsTheManualWithoutLoggingItsHandler)
{
    console.helpOnScopeItem();
    console.helpOnResultView();
    EXPECT_THAT(tool.desktop.helpShown(), ElementsAre(manual, manual));
    EXPECT_EQ(1, tool.context.g_hwndHelp);
    EXPECT_TRUE(tool.logged("hwndHelp returned = 1"));
    EXPECT_FALSE(tool.logged("ScopeItems_Help"));
    EXPECT_FALSE(tool.logged("ResultViews_Help"));
}

TEST_F(SnapInHelp, TheAboutCommandShowsOneBoxAgainAndAgain)
{
    frmAbout& box = snapIn.showAbout();
    EXPECT_TRUE(box.visible());
    EXPECT_EQ(console.identity().version, box.lblVersion.caption());
    box.cmdOK.click();
    EXPECT_EQ(&box, &snapIn.showAbout());
    EXPECT_TRUE(box.visible());
    EXPECT_EQ(1u, tool.context.language.openForms.size());
}
