#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct ScopeNodes : ShellTest {
    /// Loads, opens the Processes node and one process.
    void open(const std::string& process)
    {
        if (!view().scopePaneItemCount()) load();
        console.expand(processes());
        console.expand(node(process));
    }
};

std::string logName(const std::string& process, int number)
{
    return "diag_" + process + "_20051008_" + std::to_string(100000 + number) + ".txt";
}

} // namespace

TEST_F(ScopeNodes, ListsTheProcessesInTheRegistrysOrder)
{
    withProcess("RoLogMgr");
    withProcess("RoCsMgr");
    load();
    EXPECT_EQ("Processes*", processes().displayName());

    console.expand(processes());

    EXPECT_EQ("Processes", processes().displayName());
    EXPECT_THAT(below(processes()), ElementsAre("RoLogMgr", "RoCsMgr"));
    const ScopeItem& process = node("RoCsMgr");
    EXPECT_EQ("nodeProcesses", process.typeName());
    EXPECT_EQ("RoCsMgr", process.name());
    EXPECT_EQ("LogProcess", process.kind());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ScopeNodes, LeavesTheProcessesNodeEmptyWithoutALogManager)
{
    load();

    console.expand(processes());

    EXPECT_THAT(below(processes()), IsEmpty());
    EXPECT_EQ("Processes", processes().displayName());
    EXPECT_THAT(tool.failures("[mdlSnapIn]populateScopeProcesses"),
                ElementsAre("Err.Number = 9 Err.Description = Subscript out of range"));
}

TEST_F(ScopeNodes, ShowsOneBlankNodeWhenNoProcessHasAKey)
{
    tool.registry.withKey(std::string(logManagerKey) + "\\Process");
    load();

    console.expand(processes());

    EXPECT_THAT(below(processes()), ElementsAre(std::string(260, ' ')));
}

TEST_F(ScopeNodes, ReplacesOnlyThePlaceholderOfTheProcessesNode)
{
    load();
    processes().displayName("Server processes");

    console.expand(processes());

    EXPECT_EQ("Server processes", processes().displayName());
}

TEST_F(ScopeNodes, LogsAProcessWhoseKeyIsTakenAndAddsTheOthers)
{
    withProcess("Static Node");
    withProcess("RoCsMgr");
    load();

    console.expand(processes());

    EXPECT_THAT(below(processes()), ElementsAre("RoCsMgr"));
    EXPECT_THAT(tool.failures("[mdlSnapIn]populateScopeProcesses").front(),
                testing::StartsWith("Err.Number = 9511"));
    EXPECT_EQ("Kelma Orvan Diagnostics", node("Static Node").displayName());
}

TEST_F(ScopeNodes, GivesTheProcessBeforeOneWhoseKeyIsTakenThatName)
{
    withProcess("RoCsMgr");
    withProcess("Static Node");
    load();

    console.expand(processes());

    EXPECT_THAT(below(processes()), ElementsAre("Static Node"));
    EXPECT_EQ("Static Node", node("RoCsMgr").name());
    EXPECT_THAT(tool.failures("[mdlSnapIn]populateScopeProcesses"),
                ElementsAre(testing::StartsWith("Err.Number = 9511")));
}

TEST_F(ScopeNodes, ShowsTheCurrentLogFirstAndNoFormattedCopies)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    withLog("diag_RoCsMgr_20051001_080000_fmtd.txt");
    withLog("diag_RoCsMgr_20051002_080000_FMTD.TXT");
    withCurrentLog("RoCsMgr", "diag_RoCsMgr_20051008_152307.txt");

    open("RoCsMgr");

    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre("Current- diag_RoCsMgr_20051008_152307.txt",
                                                    "diag_RoCsMgr_20051001_080000.txt"));
    const ScopeItem& current = node("diag_RoCsMgr_20051008_152307.txt");
    EXPECT_EQ("nodeLogs", current.typeName());
    EXPECT_EQ("diag_RoCsMgr_20051008_152307.txt", current.name());
    EXPECT_EQ("LogFile", current.kind());
    EXPECT_EQ("LogFile", node("diag_RoCsMgr_20051001_080000.txt").kind());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ScopeNodes, GivesTheLogInUseAPictureOfItsOwn)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    withCurrentLog("RoCsMgr", "diag_RoCsMgr_20051002_080000.txt");
    load();
    console.expand(processes());
    console.expand(node("RoCsMgr"));

    EXPECT_EQ("console", console.root().image());
    EXPECT_EQ("processes", processes().image());
    EXPECT_EQ("process", node("RoCsMgr").image());
    EXPECT_EQ("log-current", node("diag_RoCsMgr_20051002_080000.txt").image());
    EXPECT_EQ("log", node("diag_RoCsMgr_20051001_080000.txt").image());
    EXPECT_FALSE(node("diag_RoCsMgr_20051001_080000.txt").hasChildren());
}

TEST_F(ScopeNodes, ShowsOlderLogsAgainstTheOrderOfTheFolder)
{
    withProcess("RoCsMgr");
    withLog(logName("RoCsMgr", 1));
    withLog(logName("RoCsMgr", 2));
    withLog(logName("RoCsMgr", 3));

    open("RoCsMgr");

    EXPECT_THAT(below(node("RoCsMgr")),
                ElementsAre(logName("RoCsMgr", 3), logName("RoCsMgr", 2), logName("RoCsMgr", 1)));
}

TEST_F(ScopeNodes, TakesEveryLogForAnOlderOneWhenTheCurrentOneIsGone)
{
    withCurrentLog("RoCsMgr", logName("RoCsMgr", 2));
    tool.files.deleteFile("C:\\Logs\\" + logName("RoCsMgr", 2));
    withLog(logName("RoCsMgr", 1));

    open("RoCsMgr");

    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre(logName("RoCsMgr", 1)));
}

TEST_F(ScopeNodes, ListsEveryLogHoweverManyThereAre)
{
    for (const int count : {0, 1, 48, 49, 50, 51, 74, 75, 76, 200}) {
        SCOPED_TRACE(count);
        const std::string process = "P" + std::to_string(count);
        withProcess(process);
        for (int number = 1; number <= count; ++number) withLog(logName(process, number));
        if (!view().scopePaneItemCount()) load();
        snapIn.ScopeItems_Expand(
            console.scopeItems().addChild("nodeProcesses", process, processes()));
        ScopeItem& added = node(process);
        added.displayName(process);
        added.kind("LogProcess");

        snapIn.ScopeItems_Expand(added);

        Texts expected;
        for (int number = count; number >= 1; --number)
            expected.push_back(logName(process, number));
        EXPECT_EQ(expected, below(added));
        EXPECT_THAT(tool.failures("[mdlSnapIn]populateScopeAllLogs"), IsEmpty());
    }
}

TEST_F(ScopeNodes, WaitsHalfASecondOnEachExpansionAndRefresh)
{
    withProcess("RoCsMgr");
    open("RoCsMgr");
    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500));

    snapIn.refreshScopeItems();

    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500, 500));
}

TEST_F(ScopeNodes, RemovesOldNodesWhateverTheCaseOfTheProcess)
{
    withProcess("rocsmgr");
    withLog("diag_ROCSMGR_20051008_100001.txt");
    open("rocsmgr");
    ASSERT_THAT(below(node("rocsmgr")), ElementsAre("diag_ROCSMGR_20051008_100001.txt"));
    tool.files.deleteFile("C:\\Logs\\diag_ROCSMGR_20051008_100001.txt");

    snapIn.refreshScopeItems();

    EXPECT_THAT(below(node("rocsmgr")), IsEmpty());
}

TEST_F(ScopeNodes, TakesTheLogsOfALongerNameOutUntilThatProcessIsRenewed)
{
    withProcess("Ro");
    withProcess("RoCsMgr");
    withLog(logName("Ro", 1));
    withLog(logName("RoCsMgr", 1));
    open("RoCsMgr");
    ASSERT_THAT(below(node("RoCsMgr")), ElementsAre(logName("RoCsMgr", 1)));

    console.expand(node("Ro"));
    EXPECT_THAT(below(node("Ro")), ElementsAre(logName("Ro", 1)));
    EXPECT_THAT(below(node("RoCsMgr")), IsEmpty());

    snapIn.ScopeItems_Expand(node("RoCsMgr"));
    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre(logName("RoCsMgr", 1)));
}

TEST_F(ScopeNodes, GivesTheSameTreeOnASecondRefreshOfAnUnchangedFolder)
{
    withProcess("RoCsMgr");
    withProcess("RoLogMgr");
    withLog(logName("RoCsMgr", 1));
    withCurrentLog("RoCsMgr", logName("RoCsMgr", 2));
    withLog(logName("RoLogMgr", 1));
    open("RoCsMgr");
    open("RoLogMgr");
    snapIn.refreshScopeItems();
    const Texts first = below(node("RoCsMgr"));
    const Texts second = below(node("RoLogMgr"));

    snapIn.refreshScopeItems();

    EXPECT_EQ(first, below(node("RoCsMgr")));
    EXPECT_EQ(second, below(node("RoLogMgr")));
    EXPECT_THAT(first, ElementsAre("Current- " + logName("RoCsMgr", 2), logName("RoCsMgr", 1)));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ScopeNodes, KeepsTheNodeOfACurrentLogThatARefreshDoesNotRemove)
{
    withProcess("RoCsMgr");
    withCurrentLog("RoCsMgr", "other_RoCsMgr.txt");
    open("RoCsMgr");

    snapIn.refreshScopeItems();

    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre("Current- other_RoCsMgr.txt"));
    EXPECT_THAT(tool.failures("[mdlSnapIn]populateScopeAllLogs"), testing::Not(IsEmpty()))
        << "its key is there already";
}

TEST_F(ScopeNodes, RefreshesOpenedProcessesAloneAndLooksForNoNewOnes)
{
    withProcess("RoCsMgr");
    withProcess("RoLogMgr");
    open("RoCsMgr");
    withProcess("RoNew");
    withLog(logName("RoCsMgr", 1));
    withLog(logName("RoLogMgr", 1));

    snapIn.refreshScopeItems();

    EXPECT_THAT(below(processes()), ElementsAre("RoCsMgr", "RoLogMgr"));
    EXPECT_THAT(below(node("RoCsMgr")), ElementsAre(logName("RoCsMgr", 1)));
    EXPECT_THAT(below(node("RoLogMgr")), IsEmpty());
}

TEST_F(ScopeNodes, KeepsOneLiveEntryForEachKeyInTheDictionaries)
{
    withProcess("RoCsMgr");
    withLog(logName("RoCsMgr", 1));
    withLog(logName("RoCsMgr", 2));
    open("RoCsMgr");
    tool.files.deleteFile("C:\\Logs\\" + logName("RoCsMgr", 2));

    snapIn.refreshScopeItems();

    EXPECT_THAT(tool.context.g_dictProcessItems.keys(), ElementsAre("RoCsMgr"));
    EXPECT_EQ(2u, tool.context.g_dictLogItems.count());
    EXPECT_EQ(&node(logName("RoCsMgr", 1)),
              tool.context.g_dictLogItems.item(logName("RoCsMgr", 1)).lock().get());
    EXPECT_EQ(nullptr, tool.context.g_dictLogItems.item(logName("RoCsMgr", 2)).lock())
        << "the entry of a log that is gone stays behind";
}

TEST_F(ScopeNodes, DoesNothingForANodeOfAnotherKind)
{
    withCurrentLog("RoCsMgr", logName("RoCsMgr", 1));
    open("RoCsMgr");
    const int count = console.scopeItems().count();

    console.expand(node(logName("RoCsMgr", 1)));

    EXPECT_EQ(count, console.scopeItems().count());
    EXPECT_THAT(tool.clock.sleeps(), ElementsAre(500));
}

TEST_F(ScopeNodes, LogsARefreshOfAProcessThatIsGoneAndRenewsTheOthers)
{
    withProcess("RoA");
    withProcess("RoB");
    open("RoA");
    open("RoB");
    console.scopeItems().remove("RoA");
    withLog(logName("RoB", 1));

    snapIn.refreshScopeItems();

    EXPECT_THAT(tool.failures("[snapinOrvanDiagnostics]refreshScopeItems"),
                ElementsAre(testing::StartsWith("Err.Number = 91")));
    EXPECT_THAT(below(node("RoB")), ElementsAre(logName("RoB", 1)));
}
