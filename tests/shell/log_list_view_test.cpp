#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct LogListView : ShellTest {
    void show(const std::string& process)
    {
        load();
        console.expand(processes());
        view().select(node(process));
    }
};

} // namespace

TEST_F(LogListView, ShowsTheLogsOfAProcessNewestFirst)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt", "12345");
    withCurrentLog("RoCsMgr", "diag_RoCsMgr_20051008_152307.txt", std::string(1000, 'x'));

    show("RoCsMgr");

    ASSERT_EQ(2, list().itemCount());
    EXPECT_THAT(row(1), ElementsAre("", "x", "diag_RoCsMgr_20051008_152307.txt",
                                    "10/8/2005 3:23:07 PM", " 1000"));
    EXPECT_THAT(row(2), ElementsAre("", "", "diag_RoCsMgr_20051001_080000.txt",
                                    "10/1/2005 8:00:00 AM", " 5"));
    EXPECT_EQ("diag_RoCsMgr_20051001_080000.txt", list().item(1).text())
        << "rows are added in the order of the search";
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(LogListView, SetsTheHeadersButForTheFirst)
{
    withProcess("RoCsMgr");

    show("RoCsMgr");

    EXPECT_THAT(headers(), ElementsAre(" ", "Current", "File Name", "Time Stamp", "Size (Bytes)"));
    EXPECT_EQ("", list().column(2).key) << "the second column is addressed by position alone";
}

TEST_F(LogListView, NeverListsFormattedCopies)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000_fmtd.txt");
    withLog("diag_RoCsMgr_20051001_080000_Fmtd.txt.txt");
    withLog("diag_RoCsMgr_20051001_080000.txt");

    show("RoCsMgr");

    EXPECT_THAT(column(3), ElementsAre("diag_RoCsMgr_20051001_080000.txt"));
}

TEST_F(LogListView, LeavesTheSizeOfAVanishedFileEmpty)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt", "12345");
    withLog("diag_RoCsMgr_20051002_080000.txt", "12345");
    tool.files.failing("C:\\Logs\\diag_RoCsMgr_20051001_080000.txt", 53);

    show("RoCsMgr");

    ASSERT_EQ(2, list().itemCount());
    EXPECT_THAT(column(5), ElementsAre(" 5", ""));
    EXPECT_THAT(tool.failures("[mdlSnapIn]populateListViewAllLogs"),
                ElementsAre(testing::StartsWith("Err.Number = 53"),
                            testing::StartsWith("Err.Number = 91")));
}

TEST_F(LogListView, ShowsTheZeroDateForANameThatHoldsNone)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_today.txt");

    show("RoCsMgr");

    EXPECT_EQ("12:00:00 AM", list().item(1).subItem(4));
}

TEST_F(LogListView, AddsNoRowsToTheListOfProcesses)
{
    withProcess("RoCsMgr");
    load();

    view().select(processes());

    EXPECT_EQ("listviewAllProcesses", view().selectedScopePaneItem().resultView().displayString());
    EXPECT_EQ(0, list().itemCount());
    EXPECT_THAT(headers(), ElementsAre("Process*"));
}

TEST_F(LogListView, FillsTheListAnewOnEachShowing)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    show("RoCsMgr");
    withLog("diag_RoCsMgr_20051002_080000.txt");

    console.refresh();

    EXPECT_EQ(2, list().itemCount());
}

TEST_F(LogListView, SelectsTheLogThatIsDoubleClicked)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    withLog("diag_RoCsMgr_20051002_080000.txt");
    show("RoCsMgr");

    console.doubleClickRow(1);

    EXPECT_EQ("diag_RoCsMgr_20051002_080000.txt", selected());
    EXPECT_EQ("listviewDiagLog", view().selectedScopePaneItem().resultView().displayString());
}

TEST_F(LogListView, LogsADoubleClickOnALogThatTheTreeLacksAndKeepsAnEmptyEntry)
{
    withProcess("RoCsMgr");
    show("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    view().display("listviewAllLogs", ResultViewType::list);
    ASSERT_EQ(0u, tool.context.g_dictLogItems.count());

    console.doubleClickRow(1);

    EXPECT_EQ("RoCsMgr", selected());
    EXPECT_THAT(tool.failures(), ElementsAre(testing::StartsWith("Err.Number = 91")));
    EXPECT_TRUE(tool.context.g_dictLogItems.exists("diag_RoCsMgr_20051001_080000.txt"));
}

TEST_F(LogListView, TakesADoubleClickInAnotherViewForNothing)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt",
            "15:23:07:123,Conv,1234,CallFlow,7,Call answered\r\n");
    show("RoCsMgr");
    view().select(node("diag_RoCsMgr_20051001_080000.txt"));

    console.doubleClickRow(1);

    EXPECT_EQ("diag_RoCsMgr_20051001_080000.txt", selected());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(LogListView, LooksInTheRootFolderWhenTheServerNamesNone)
{
    tool.registry.withText(logManagerKey, "Output Path", "");
    withProcess("RoCsMgr");
    tool.files.with("C:\\diag_RoCsMgr_20051001_080000.txt");

    show("RoCsMgr");

    EXPECT_THAT(column(3), ElementsAre("diag_RoCsMgr_20051001_080000.txt"));
}
