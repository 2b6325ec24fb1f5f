#include "wizards/gather_wizard_fixture.h"

#include <algorithm>

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

struct GatherCompletion : GatherWizardTest {
    static constexpr const char* viewerKey = "Software\\Kelma Systems\\Kelma Orvan\\ToolsCrate\\"
                                             "Diagnostic Tools\\Orvan Diagnostic Viewer";
    static constexpr const char* clickProc = "[ppgGatherLogs99Final]cmdLaunchQRV_Click";

    void finishStandardGather()
    {
        start(gatherOption::standard);
        runStarts();
        ASSERT_EQ("ppgGatherLogs99Final", onShow());
    }

    void finishTimeFrameGather()
    {
        tool.files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank");
        start(gatherOption::timeFrame);
        sheet->next();
        runStarts();
        ASSERT_EQ("ppgGatherLogs99Final", onShow());
    }

    /// Command lines but for that of the cabinet.
    std::vector<std::string> started() const
    {
        std::vector<std::string> lines = tool.processes.commandLines();
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [](const std::string& line) {
                                       return line.find("cabmaker") != std::string::npos;
                                   }),
                    lines.end());
        return lines;
    }
};

} // namespace

TEST_F(GatherCompletion, ShowsItsTextsAndTheFolder)
{
    finishStandardGather();
    expectCaptions(
        {{"lblCompletionTitle", "Completing the Gather Logs Wizard"},
         {"lblCompletionStatment", "The specified logs have been gathered for you."},
         {"lblSummary",
          "The specified logs have been placed in the following directory:\r\n\r\nC:\\Out"},
         {"cmdOpenWindowsExplorer", "View Directory"},
         {"cmdLaunchQRV", "Open Logs in Viewer"}});
    EXPECT_EQ((WizardButtons{true, wizardButton::finishEnabled, ""}), sheet->buttons());
    EXPECT_TRUE(tool.logged("Entering [ppgGatherLogs99Final]IWizardPage_Activate"));
    EXPECT_TRUE(sheet->finish());
}

TEST_F(GatherCompletion, AfterAFolderGatherInAFreshToolThereIsNothingToView)
{
    finishStandardGather();
    EXPECT_FALSE(last->cmdLaunchQRV.enabled());
    last->cmdLaunchQRV.click();
    EXPECT_FALSE(tool.logged("Entering " + std::string(clickProc)));
}

TEST_F(GatherCompletion, ALaterFolderGatherStillOffersTheEarlierDatabase)
{
    tool.registry.withText(viewerKey, "Path", "C:\\Viewer\\viewer.exe");
    finishTimeFrameGather();
    EXPECT_TRUE(last->cmdLaunchQRV.enabled());
    const std::string database = tool.context.g_strTraceDatabase;
    makeSheet();
    finishStandardGather();
    EXPECT_TRUE(last->cmdLaunchQRV.enabled());
    last->cmdLaunchQRV.click();
    EXPECT_THAT(started(), ElementsAre("c:\\viewer\\viewer.exe -db \"" + database + "\""));
}

TEST_F(GatherCompletion, TheViewersCommandIsExpandedInLowerCaseAndLoggedAsAnError)
{
    tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
    tool.registry.withText(viewerKey, "Path", "%CommServer%\\Bin\\Viewer.exe");
    finishTimeFrameGather();
    last->cmdLaunchQRV.click();
    ASSERT_THAT(started(), SizeIs(1));
    const std::string command = started()[0];
    EXPECT_THAT(command, HasSubstr("\\bin\\viewer.exe -db \"C:\\Out\\"));
    EXPECT_EQ('"', command.back());
    EXPECT_NE('"', command.front()) << "the viewer's own path is not quoted";
    EXPECT_THAT(tool.failures(clickProc), ElementsAre(command));
    EXPECT_EQ(WindowStyle::normal, tool.processes.windows().back());
    EXPECT_EQ(tool.processes.waits().size(), tool.processes.commandLines().size() - 1)
        << "it waited for the cabinet maker, and does not wait for the viewer";
}

TEST_F(GatherCompletion, AViewerThatIsNotInstalledMakesTheButtonDoNothing)
{
    finishTimeFrameGather();
    last->cmdLaunchQRV.click();
    EXPECT_THAT(started(), IsEmpty());
    EXPECT_THAT(tool.failures(clickProc), IsEmpty());
    EXPECT_THAT(tool.desktop.messages(), IsEmpty());
}

TEST_F(GatherCompletion, AViewerThatDoesNotStartIsLoggedWithItsLine)
{
    tool.registry.withText(viewerKey, "Path", "C:\\Viewer\\viewer.exe");
    finishTimeFrameGather();
    tool.processes.failing(53);
    last->cmdLaunchQRV.click();
    const auto logged = tool.failures(clickProc);
    ASSERT_THAT(logged, SizeIs(2));
    EXPECT_THAT(logged[1], HasSubstr("Err.Number = 53 Err.Description = File not found Line: "));
}

TEST_F(GatherCompletion, UnderTheDevelopmentHostTheEleventhFailedStartEndsTheClick)
{
    tool.registry.withText(viewerKey, "Path", "C:\\Viewer\\viewer.exe");
    finishTimeFrameGather();
    tool.module.developmentHost = true;
    tool.processes.failing(53);
    last->cmdLaunchQRV.click();
    const auto logged = tool.failures(clickProc);
    ASSERT_THAT(logged, SizeIs(13)) << "the command, eleven errors and the exit";
    EXPECT_EQ("Error count exceeded, forcing exit from " + std::string(clickProc), logged.back());
}

TEST_F(GatherCompletion, TheFolderReachesTheExplorerUnquoted)
{
    shared->m_LogDestinationDirectory = "C:\\My Case";
    finishStandardGather();
    last->cmdOpenWindowsExplorer.click();
    EXPECT_THAT(started(), ElementsAre("C:\\WINDOWS\\explorer.exe C:\\My Case"));
    EXPECT_THAT(tool.processes.windows(), Each(WindowStyle::normal));
}

TEST_F(GatherCompletion, AnExplorerThatDoesNotStartIsTheHostsToTell)
{
    finishStandardGather();
    tool.processes.failing(53);
    EXPECT_EQ(53, errorOf([&] { last->cmdOpenWindowsExplorer.click(); }));
}

TEST_F(GatherCompletion, BackPassesOverTheProgressPage)
{
    finishStandardGather();
    sheet->back();
    EXPECT_EQ("ppgGatherLogs00Welcome", onShow());

    makeSheet();
    finishTimeFrameGather();
    sheet->back();
    EXPECT_EQ("ppgGatherLogs02Step", onShow());

    withEventLog("System");
    makeSheet();
    start(gatherOption::byHand);
    tick(selection->treeviewLogsToGather, "System");
    sheet->next();
    runStarts();
    sheet->back();
    EXPECT_EQ("ppgGatherLogs01Step", onShow());
}

TEST_F(GatherCompletion, BackGoesByTheStandardFlagFirst)
{
    finishStandardGather();
    shared->m_bTimeFrameLogs = true;
    sheet->back();
    EXPECT_EQ("ppgGatherLogs00Welcome", onShow());
}
