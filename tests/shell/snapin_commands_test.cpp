#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* olderLog = "diag_RoCsMgr_20051001_080000.txt";
constexpr const char* currentLog = "diag_RoCsMgr_20051008_152307.txt";
constexpr const char* savedPath = "C:\\Temp\\customer.txt";

struct SnapInCommands : ShellTest {
    SnapInCommands()
    {
        withProcess("RoCsMgr");
        withLog(olderLog);
        withCurrentLog("RoCsMgr", currentLog);
        tool.files.with(savedPath, "15:23:07:123,Conv,1234,CallFlow,7,Call answered\r\n");
    }

    /// Loads and clicks through the tree: Processes, then the process.
    void openProcess()
    {
        load();
        view().select(processes());
        view().select(node("RoCsMgr"));
    }

    bool signalled()
    {
        return tool.registry.has(std::string(logManagerKey) + "\\BroadCast",
                                 "Cycle Diag File Time Set");
    }
};

Texts captions(const ContextMenu& menu)
{
    Texts texts;
    for (const auto& entry : menu.entries()) texts.push_back(entry.caption);
    return texts;
}

} // namespace

TEST_F(SnapInCommands, OfferTheTaskMenuInWordsEverywhere)
{
    load();
    EXPECT_EQ("Enable Macro Trace*",
              console.menu("mnuTask").item("mnuConfigureMacroTrace").caption);

    for (ScopeItem* item : {&node("Static Node"), &processes()}) {
        SCOPED_TRACE(item->key());
        view().select(*item);
        EXPECT_THAT(captions(console.taskMenu()),
                    ElementsAre("Configure Macro Traces", "Configure Micro Traces",
                                "Reset to Default Traces", "Start New Log Files",
                                "Gather Log Files", "Configure Log Settings"));
    }
    Texts statusTexts;
    const ContextMenu menu = console.taskMenu();
    for (const auto& entry : menu.entries()) statusTexts.push_back(entry.statusBarText);
    EXPECT_THAT(
        statusTexts,
        ElementsAre(
            "Use this action to configure macro traces to help diagnose Orvan problems.",
            "Use this action to configure individual component traces and levels.",
            "Use this action to have Orvan disable all traces that are not normally enabled.",
            "Use this action to have Orvan close current log files and start new ones.",
            "Use this action to easily gather all necessary log files for diagnosing problems.",
            "Use this action to configure various system wide diagnostic logging settings."));
}

TEST_F(SnapInCommands, GiveTheMainMenuToTheTopMenu)
{
    load();

    EXPECT_THAT(captions(console.topMenu()),
                ElementsAre("Open Log File", "Change Orvan Event Log Language"));
}

TEST_F(SnapInCommands, LeaveTheViewMenuAsItIs)
{
    load();

    ContextMenu menu;
    snapIn.Views_AddViewMenuItems(view(), console.currentScopeItem(), menu);

    EXPECT_THAT(menu.entries(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [snapinOrvanDiagnostics]Views_AddViewMenuItems_0"));
    EXPECT_TRUE(tool.logged("Exiting [snapinOrvanDiagnostics]Views_AddViewMenuItems_0"));
}

TEST_F(SnapInCommands, OfferRefreshAloneOfTheConsolesVerbs)
{
    load();
    ConsoleVerbs verbs;

    snapIn.Views_Select(view(), node("Static Node"), false, verbs);

    EXPECT_TRUE(verbs.enabled(0x8006)) << "on every call, selected or not";
    EXPECT_FALSE(verbs.enabled(0x8003));
    EXPECT_TRUE(view().verbs().enabled(0x8006));
}

TEST_F(SnapInCommands, SayThatEverySelectionHasPages)
{
    load();
    bool answer = false;

    snapIn.Views_QueryPagesFor(view(), console.currentScopeItem(), answer);

    EXPECT_TRUE(answer);
}

TEST_F(SnapInCommands, RefreshShowsTheViewAnewAndRenewsTheTree)
{
    openProcess();
    withLog("diag_RoCsMgr_20051009_000000.txt");

    console.refresh();

    EXPECT_EQ(3, list().itemCount());
    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre("Current- " + std::string(currentLog),
                                                    "diag_RoCsMgr_20051009_000000.txt", olderLog));
    EXPECT_EQ("RoCsMgr", selected());
}

TEST_F(SnapInCommands, RefreshOfALogsLinesEndsOnItsProcess)
{
    openProcess();
    view().select(node(olderLog));

    console.refresh();

    EXPECT_EQ("RoCsMgr", selected()) << "the node of the log was renewed under the view";
    EXPECT_EQ(2, list().itemCount());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(SnapInCommands, TheTaskStartsNewLogFilesWithoutMovingTheSelection)
{
    openProcess();
    view().select(node("Static Node"));
    withLog("diag_RoCsMgr_20051009_000000.txt");

    console.clickTask("4");

    EXPECT_TRUE(signalled());
    EXPECT_EQ("New log files started.", view().statusBarText());
    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ(3u, node("RoCsMgr").children().size());
}

TEST_F(SnapInCommands, TheTaskRenewsEveryProcessThatWasOpenedAndNoOther)
{
    withProcess("KoNotify");
    withProcess("KoIdle");
    withLog("diag_KoNotify_20051007_000000.txt");
    openProcess();
    console.expand(node("KoNotify"));
    view().select(node("Static Node"));
    for (const char* process : {"RoCsMgr", "KoNotify", "KoIdle"})
        withLog("diag_" + std::string(process) + "_20051009_000000.txt");

    console.clickTask("4");

    EXPECT_TRUE(signalled());
    EXPECT_EQ("New log files started.", view().statusBarText());
    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ(3u, node("RoCsMgr").children().size());
    EXPECT_THAT(below(node("KoNotify")), ElementsAre("diag_KoNotify_20051009_000000.txt",
                                                     "diag_KoNotify_20051007_000000.txt"));
    EXPECT_THAT(below(node("KoIdle")), IsEmpty());
    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500, 500, 500, 500)) << "two opened, two renewed";
}

TEST_F(SnapInCommands, TheMenuItemRebuildsAListOfLogs)
{
    openProcess();
    withLog("diag_RoCsMgr_20051009_000000.txt");

    console.clickMenuItem("mnuStartNewLogFiles");

    EXPECT_TRUE(signalled());
    EXPECT_EQ("RoCsMgr", selected());
    EXPECT_EQ(3, list().itemCount());
    EXPECT_EQ(3u, node("RoCsMgr").children().size());
    EXPECT_EQ("New log files started.", view().statusBarText());
    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500, 500, 500))
        << "opened, renewed by the command, renewed with all processes";
}

TEST_F(SnapInCommands, TheMenuItemLeavesTheLinesOfALogForTheSecondNode)
{
    openProcess();
    view().select(node(currentLog));

    console.clickMenuItem("mnuStartNewLogFiles");

    EXPECT_EQ("Processes", selected());
    EXPECT_TRUE(signalled());
    EXPECT_EQ("New log files started.", view().statusBarText());
    EXPECT_THAT(below(processes()), ElementsAre("RoCsMgr"));
    EXPECT_EQ(2u, node("RoCsMgr").children().size());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(SnapInCommands, TheMenuItemOnlySignalsAndRenewsFromAnyOtherView)
{
    openProcess();
    view().select(processes());

    console.clickMenuItem("mnuStartNewLogFiles");

    EXPECT_EQ("Processes", selected());
    EXPECT_TRUE(signalled());
    EXPECT_EQ("New log files started.", view().statusBarText());
    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500, 500));
}

TEST_F(SnapInCommands, SayThatLogFilesWereStartedEvenIfTheSignalWasNotWritten)
{
    tool.registry.readOnly(std::string(logManagerKey) + "\\BroadCast");
    load();

    console.clickTask("4");

    EXPECT_FALSE(signalled());
    EXPECT_EQ("New log files started.", view().statusBarText());
}

TEST_F(SnapInCommands, ShowAnOpenedFileUnderSavedLogs)
{
    load();
    tool.desktop.picks(savedPath);

    console.clickMenuItem("mnuOpenLogFile");

    EXPECT_EQ(savedPath, selected());
    ScopeItem& saved = node("SavedLog");
    EXPECT_EQ("SavedLog", saved.name());
    EXPECT_EQ("Saved Logs", saved.displayName());
    EXPECT_EQ("LogProcess", saved.kind());
    EXPECT_EQ("nodeProcesses", saved.typeName());
    EXPECT_EQ(&node("Static Node"), saved.parent());
    EXPECT_THAT(below(saved), ElementsAre(savedPath));
    EXPECT_EQ(savedPath, node(savedPath).name());
    EXPECT_EQ("LogFile", node(savedPath).kind());
    ASSERT_EQ(1, list().itemCount());
    EXPECT_EQ("Call answered ", list().item(1).subItem(7));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(SnapInCommands, LeaveOneNodeForAFileThatIsOpenedTwice)
{
    load();
    tool.desktop.picks(savedPath).picks(savedPath);

    console.clickMenuItem("mnuOpenLogFile");
    console.clickMenuItem("mnuOpenLogFile");

    EXPECT_THAT(below(node("SavedLog")), ElementsAre(savedPath));
    EXPECT_EQ(savedPath, selected());
    EXPECT_EQ(1, list().itemCount());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(SnapInCommands, KeepOpenedFilesTogether)
{
    tool.files.with("C:\\Temp\\second.txt");
    load();
    tool.desktop.picks(savedPath).picks("C:\\Temp\\second.txt");

    console.clickMenuItem("mnuOpenLogFile");
    console.clickMenuItem("mnuOpenLogFile");

    EXPECT_THAT(below(node("SavedLog")), ElementsAre(savedPath, "C:\\Temp\\second.txt"));
    EXPECT_THAT(below(node("Static Node")), ElementsAre("Processes*", "Saved Logs"));
}

TEST_F(SnapInCommands, KeepOpenedFilesWhenProcessesAreRenewed)
{
    openProcess();
    tool.desktop.picks(savedPath);
    console.clickMenuItem("mnuOpenLogFile");

    snapIn.refreshScopeItems();

    EXPECT_THAT(below(node("SavedLog")), ElementsAre(savedPath));
    EXPECT_THAT(tool.context.g_dictProcessItems.keys(), ElementsAre("RoCsMgr", "SavedLog"));
}

TEST_F(SnapInCommands, ChangeNothingWhenThePickerIsCancelled)
{
    load();
    const int count = console.scopeItems().count();

    console.clickMenuItem("mnuOpenLogFile");

    EXPECT_EQ(count, console.scopeItems().count());
    EXPECT_EQ("Static Node", selected());
    EXPECT_TRUE(tool.logged("Exiting [snapinOrvanDiagnostics]mnuOpenLogFile_click_0"));
}

TEST_F(SnapInCommands, RaiseForAProcessThatHasTheKeyOfSavedLogs)
{
    withProcess("SavedLog");
    load();
    console.expand(processes());
    tool.desktop.picks(savedPath);

    EXPECT_EQ(35601, errorOf([&] { console.clickMenuItem("mnuOpenLogFile"); }))
        << "the handler removes the opened log's key, which stands in nobody's way";
    EXPECT_THAT(below(node("Static Node")), ElementsAre("Processes"));
    EXPECT_EQ("Static Node", selected()) << "a removal that fails leaves the tree as it was";
    outOfPairs = {"Entering [snapinOrvanDiagnostics]mnuOpenLogFile_click_0"};
}
