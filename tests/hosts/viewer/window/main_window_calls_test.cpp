#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/call_tabs.h"
#include "hosts/viewer/calls/lane_view.h"
#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/support/test_calls.h"
#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/window/main_window.h"
#include "support/windows/test_application.h"

#include <QPlainTextEdit>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace viewer {
namespace {

/// The window with a call through two processes, another one, and a log without call ids.
class WindowWithCalls : public testing::Test {
protected:
    WindowWithCalls()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          window(settings)
    {
        window.show();
        window.document().open(
            {logs.write("KoTelephony", callLine(1000, "A", 3, "rings") +
                                           callLine(2000, "B", 3, "rings too") +
                                           callLine(9000, "A", 1, "ends late")),
             logs.write("KoCSMgr", callLine(3000, "A", 3, "answers") + "  with a further line\r\n" +
                                       callLine(4000, "A", 0, "fails")),
             logs.write("KoPlain", rawLine(6000, "CallFlow", 3, "without a call id") +
                                       rawLine(7000, "CallFlow", 3, "without one too"))});
    }

    void SetUp() override
    {
        ASSERT_TRUE(waitForRows(window.document()));
        settle();
        ASSERT_EQ(8, window.model().rowCount());
    }

    /// What the text below the lanes says, once it is there.
    bool shows(const QString& text)
    {
        return waitUntil([&] { return window.callTabs().call().text().toPlainText() == text; },
                         5000);
    }

    void pressInLanes(Qt::Key key) { QTest::keyClick(&window.callTabs().call().lanes(), key); }

    TestLogs logs;
    QSettings settings;
    MainWindow window;
};

TEST_F(WindowWithCalls, TheirListOpensByKeyAndClosesByKey)
{
    EXPECT_FALSE(window.callTabs().isVisible());
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_TRUE(window.callTabs().showsList());
    EXPECT_TRUE(window.action(Command::calls).isChecked());
    ASSERT_TRUE(waitUntil([&] { return window.callTabs().list().model().rowCount() == 2; }));
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_FALSE(window.callTabs().isVisible());
    EXPECT_FALSE(window.action(Command::calls).isChecked());
    EXPECT_EQ(&window.table(), window.focusWidget());
}

TEST_F(WindowWithCalls, TheCurrentRowsCallIsShownWithThatRowSelected)
{
    window.table().goTo(4);
    ASSERT_EQ("fails", window.model().text(4, RowColumn::trace));
    QTest::keyClick(&window, Qt::Key_F7, Qt::ShiftModifier);
    ASSERT_TRUE(shows("fails"));
    EXPECT_TRUE(window.callTabs().showsCall());
    EXPECT_EQ("Call A. Lines: 4, processes: 2, errors: 1, warnings: 1, length: 8.000",
              window.callTabs().call().said());
    window.table().goTo(0);
    EXPECT_TRUE(shows("rings")) << "the current row is the selected one";
    window.table().goTo(1);
    EXPECT_TRUE(shows("rings")) << "a row of another call leaves the lanes as they are";
}

TEST_F(WindowWithCalls, ALineOfARowShowsTheCallOfTheRow)
{
    window.table().goTo(3);
    ASSERT_EQ("  with a further line", window.model().text(3, RowColumn::trace));
    window.run(Command::thisCall);
    EXPECT_TRUE(shows("answers\n  with a further line"));
}

TEST_F(WindowWithCalls, ARowWithoutACallIdHasNoCallToShowAndThePaneSaysSo)
{
    window.table().goTo(5);
    ASSERT_EQ("without a call id", window.model().text(5, RowColumn::trace));
    EXPECT_FALSE(window.action(Command::thisCall).isEnabled());
    EXPECT_EQ("The current row has no call id. Lines of some forms have none; where there is one, "
              "Shift+F7 shows the call.",
              window.callTabs().call().said());
    window.table().goTo(0);
    EXPECT_TRUE(window.action(Command::thisCall).isEnabled());
    EXPECT_EQ("No call is shown. Shift+F7 shows the call of the current row.",
              window.callTabs().call().said());
}

TEST_F(WindowWithCalls, EnterGoesToTheRowInTheTable)
{
    window.table().goTo(0);
    window.run(Command::thisCall);
    ASSERT_TRUE(shows("rings"));
    pressInLanes(Qt::Key_End);
    EXPECT_EQ(0u, window.table().currentPlace()) << "the table waits for Enter";
    pressInLanes(Qt::Key_Return);
    EXPECT_EQ(7u, window.table().currentPlace());
    EXPECT_EQ(&window.table(), window.focusWidget());
}

TEST_F(WindowWithCalls, ARowThatTheFilterHidesIsInTheLanesAndTheWindowSaysWhereItIs)
{
    RowFilter filter;
    filter.show(timeline::Column::process, "KoCSMgr", false);
    window.document().setFilter(filter);
    ASSERT_TRUE(waitForRows(window.document()));
    window.table().goTo(0);
    window.run(Command::thisCall);
    ASSERT_TRUE(waitUntil([&] { return window.callTabs().call().said().contains("Lines: 4"); }));
    pressInLanes(Qt::Key_Right);
    ASSERT_TRUE(shows("answers\n  with a further line"));
    pressInLanes(Qt::Key_Return);
    EXPECT_EQ(0u, window.table().currentPlace());
    EXPECT_EQ("The row is hidden by the filter; Ctrl+Shift+A shows all.",
              window.statusBar()->currentMessage());
    EXPECT_TRUE(window.callTabs().isAncestorOf(window.focusWidget()));
}

TEST_F(WindowWithCalls, TheCallIdOfTheDetailsLeadsToTheCall)
{
    window.table().goTo(4);
    QTreeWidget& fields = window.details().fields();
    const auto found = fields.findItems("A", Qt::MatchExactly, 1);
    ASSERT_EQ(1, found.size());
    fields.setCurrentItem(found.front());
    QTest::keyClick(&fields, Qt::Key_Return);
    EXPECT_TRUE(shows("fails"));
}

TEST_F(WindowWithCalls, TheirHeightIsRemembered)
{
    window.resize(1000, 800);
    window.run(Command::calls);
    settle();
    const int height = window.callTabs().height();
    EXPECT_GT(height, 100);
    EXPECT_GT(window.table().rowsInSight(), 2u);
    window.callTabs().hide();
    window.close();
    MainWindow next(settings);
    next.resize(1000, 800);
    next.show();
    next.document().open({logs.folder() + "/diag_KoCSMgr_20250220_000000.txt"});
    ASSERT_TRUE(waitForRows(next.document()));
    EXPECT_FALSE(next.callTabs().isVisible());
    next.run(Command::calls);
    settle();
    EXPECT_NEAR(height, next.callTabs().height(), 3);
}

} // namespace
} // namespace viewer
