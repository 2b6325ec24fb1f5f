#include "wizards/gather_wizard_fixture.h"

using testing::ElementsAre;

namespace {

struct GatherLogSelection : GatherWizardTest {
    TreeView& tree = selection->treeviewLogsToGather;

    GatherLogSelection()
    {
        withProcess("KoCSMgr");
        withProcess("KoNotify");
        withLog("diag_KoCSMgr_1.txt");
        withLog("diag_KoCSMgr_2.txt");
        withLog("diag_KoNotify_1.txt");
        withEventLog("Application");
        withEventLog("Security");
    }

    void open() { start(gatherOption::byHand); }
};

} // namespace

TEST_F(GatherLogSelection, ShowsItsTextsAndWaitsForAChoice)
{
    open();
    expectCaptions(
        {{"lblStepTitle", "Select Logs to Gather"},
         {"lblStepDescription", "Select the logs you wish to have gathered from the list below."}});
    EXPECT_EQ((WizardButtons{true, wizardButton::nextDisabled, ""}), sheet->buttons());
    EXPECT_TRUE(tree.checkBoxes());
}

TEST_F(GatherLogSelection, ListsProcessesWithTheirLogsAndAllEventLogs)
{
    open();
    EXPECT_THAT(rowsOf(tree),
                ElementsAre("Orvan Logs", "  KoCSMgr", "  diag_KoCSMgr_1.txt",
                            "  diag_KoCSMgr_2.txt", "  KoNotify", "  diag_KoNotify_1.txt",
                            "Windows Event Logs", "  Application", "  Security"));
    EXPECT_TRUE(tree.item(1).expanded()) << "the processes are in sight";
    EXPECT_FALSE(tree.item(2).expanded()) << "their files are not";
    EXPECT_TRUE(tree.item(7).expanded());
    EXPECT_EQ(&tree.item(1), tree.nodeInSight());
}

TEST_F(GatherLogSelection, TheFirstBranchIsNotTranslatedAndTheSecondIs)
{
    tool.languages.with("C:\\fr.dll", {{1127, "Journaux Windows"}});
    tool.context.language.g_hResourceLibrary = tool.languages.loadLibrary("C:\\fr.dll");
    open();
    EXPECT_EQ("Orvan Logs", tree.roots()[0]->text());
    EXPECT_EQ("Journaux Windows", tree.roots()[1]->text());
}

TEST_F(GatherLogSelection, AProcessWithoutALogHasItsNodeAllTheSame)
{
    withProcess("KoIdle");
    open();
    const TreeNode* idle = tree.roots()[0]->child()->next()->next();
    EXPECT_EQ("KoIdle", idle->text());
    EXPECT_EQ(0, idle->children());
}

TEST_F(GatherLogSelection, OffersFormattedCopiesToo)
{
    withLog("diag_KoNotify_1_fmtd.txt", rawLog(1));
    open();
    tick(tree, "diag_KoNotify_1_fmtd.txt");
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre("diag_KoNotify_1_fmtd.txt"));
    runStarts();
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\diag_KoNotify_1_fmtd_fmtd.txt"));
}

TEST_F(GatherLogSelection, IsFilledWhenTheSheetOpensAndNeverAgain)
{
    sheet->show();
    withLog("diag_KoNotify_2.txt");
    welcome->optGatherLogs.click(gatherOption::byHand);
    sheet->next();
    EXPECT_EQ(9, tree.count());
    tick(tree, "diag_KoNotify_1.txt");
    sheet->back();
    sheet->next();
    EXPECT_EQ(9, tree.count());
    EXPECT_TRUE(tree.item(6).checked()) << "ticks stay as well";
}

TEST_F(GatherLogSelection, AKeyThatCannotBeListedGivesNoNodesUnderItsHeading)
{
    tool.registry.closed(std::string(logManagerKey) + "\\Process");
    open();
    EXPECT_THAT(rowsOf(tree),
                ElementsAre("Orvan Logs", "Windows Event Logs", "  Application", "  Security"));
    EXPECT_EQ(1u, tool.failures("[ppgGatherLogs01Step]populateLogsToGather").size());
}

TEST_F(GatherLogSelection, ATickOnAParentSpreadsToAllBelowAndOpensTheBranch)
{
    open();
    tick(tree, "Orvan Logs");
    EXPECT_THAT(rowsOf(tree), ElementsAre("[x] Orvan Logs", "  [x] KoCSMgr",
                                          "  [x] diag_KoCSMgr_1.txt", "  [x] diag_KoCSMgr_2.txt",
                                          "  [x] KoNotify", "  [x] diag_KoNotify_1.txt",
                                          "Windows Event Logs", "  Application", "  Security"));
    EXPECT_TRUE(tree.item(2).expanded());
    EXPECT_TRUE(tree.item(5).expanded());
    tick(tree, "KoCSMgr", false);
    EXPECT_FALSE(tree.item(3).checked());
    EXPECT_FALSE(tree.item(4).checked());
    EXPECT_TRUE(tree.item(6).checked()) << "the spread goes down, not sideways";
}

TEST_F(GatherLogSelection, ATickedProcessGivesItsFilesAndOneThatIsClearedIsLeftOut)
{
    open();
    tick(tree, "KoCSMgr");
    tick(tree, "diag_KoCSMgr_1.txt", false);
    EXPECT_TRUE(tree.item(2).checked()) << "clearing a child leaves its parent ticked";
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre("diag_KoCSMgr_2.txt"));
}

TEST_F(GatherLogSelection, OnlyLeavesCount)
{
    withProcess("KoIdle");
    open();
    tick(tree, "KoIdle");
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre(""));
    EXPECT_THAT(eventLogs(), ElementsAre(""));
}

TEST_F(GatherLogSelection, NextTakesBothKindsInTheOrderOfTheTreeAndSkipsTheTimeFrame)
{
    open();
    tick(tree, "Security");
    tick(tree, "diag_KoNotify_1.txt");
    tick(tree, "diag_KoCSMgr_2.txt");
    sheet->next();
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
    EXPECT_THAT(serverLogs(), ElementsAre("diag_KoCSMgr_2.txt", "diag_KoNotify_1.txt"));
    EXPECT_THAT(eventLogs(), ElementsAre("Security"));
}

TEST_F(GatherLogSelection, EachNextTakesTheTicksAnew)
{
    open();
    tick(tree, "diag_KoCSMgr_2.txt");
    tick(tree, "Security");
    sheet->next();
    sheet->back();
    tick(tree, "diag_KoCSMgr_2.txt", false);
    tick(tree, "diag_KoNotify_1.txt");
    tick(tree, "Application");
    tick(tree, "Security", false);
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre("diag_KoNotify_1.txt"));
    EXPECT_THAT(eventLogs(), ElementsAre("Application"));
}

TEST_F(GatherLogSelection, NextStaysEnabledWhenEveryTickIsTakenBack)
{
    open();
    tick(tree, "Security");
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
    tick(tree, "Security", false);
    EXPECT_EQ(wizardButton::nextEnabled, forward());
}

TEST_F(GatherLogSelection, NextIsDisabledOnEveryArrivalEvenWithTicks)
{
    open();
    tick(tree, "Security");
    sheet->back();
    sheet->next();
    EXPECT_EQ(wizardButton::nextDisabled, forward());
    EXPECT_FALSE(sheet->next());
}

TEST_F(GatherLogSelection, UnderTheDevelopmentHostNothingNeedsToBeTicked)
{
    tool.context.g_bDebugMode = true;
    open();
    EXPECT_EQ(wizardButton::nextEnabled, forward());
    ASSERT_TRUE(sheet->next());
    EXPECT_THAT(rowsOf(progress->treeviewSteps),
                ElementsAre("Orvan Logs", "  ", "Windows Event Logs", "  "));
}

TEST_F(GatherLogSelection, AHandSelectionMakesNoDatabaseAndTakesAnyEventLog)
{
    open();
    tick(tree, "Security");
    sheet->next();
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_EQ("", tool.context.g_strTraceDatabase);
    ASSERT_EQ(1u, tool.eventLogExporter.exports().size());
    EXPECT_EQ("C:\\Out\\Security.csv", tool.eventLogExporter.exports()[0].target);
}
