#include "hosts/viewer/calls/calls.h"

#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/call_tabs.h"
#include "hosts/viewer/calls/lane_view.h"
#include "hosts/viewer/support/test_calls.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QAccessible>
#include <QApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace viewer {
namespace {

class CallsTest : public testing::Test {
protected:
    CallsTest()
    {
        testApplication();
        calls = std::make_unique<Calls>(document);
        tabs = std::make_unique<CallTabs>(*calls);
        tabs->resize(900, 400);
    }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
        settle();
    }

    /// A call through two processes, and another one.
    void openTwoCalls()
    {
        open(
            {logs.write("KoTelephony", callLine(1000, "A", 3, "rings") +
                                           callLine(2000, "B", 3, "rings too") +
                                           callLine(3000, "A", 3, "is put through") +
                                           callLine(9000, "A", 1, "ends late")),
             logs.write("KoCSMgr", callLine(3000, "A", 3, "answers") + "  with a further line\r\n" +
                                       callLine(4000, "A", 0, "fails") +
                                       callLine(5000, "", 3, "of no call"))});
        ASSERT_EQ(8u, document.rowCount());
    }

    void showCall(const std::string& id, timeline::Moment around)
    {
        tabs->show();
        tabs->call().show(id, around, std::nullopt);
        tabs->openCall();
        ASSERT_TRUE(waitUntil([&] { return calls->rowsWork() == Calls::Work::done; }));
    }

    QString selectedText() { return tabs->call().text().toPlainText(); }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&tabs->call().lanes(), static_cast<Qt::Key>(key), modifiers);
    }

    QStringList column(CallColumn column)
    {
        QStringList texts;
        CallListModel& model = tabs->list().model();
        for (int row = 0; row < model.rowCount(); ++row) texts << model.text(row, column);
        return texts;
    }

    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    TestLogs logs;
    Document document;
    std::unique_ptr<Calls> calls; ///< which goes before the document
    std::unique_ptr<CallTabs> tabs;
};

TEST_F(CallsTest, ListsCallsAndSortsThemByAnyColumn)
{
    openTwoCalls();
    tabs->openList();
    ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    EXPECT_EQ((QStringList{"A", "B"}), column(CallColumn::id));
    EXPECT_EQ((QStringList{"2025-02-20 00:00:01.000", "2025-02-20 00:00:02.000"}),
              column(CallColumn::start));
    EXPECT_EQ((QStringList{"8.000", "0.000"}), column(CallColumn::length));
    EXPECT_EQ((QStringList{"5", "1"}), column(CallColumn::lines));
    EXPECT_EQ((QStringList{"1", "0"}), column(CallColumn::errors));
    EXPECT_EQ((QStringList{"1", "0"}), column(CallColumn::warnings));
    EXPECT_EQ((QStringList{"KoTelephony, KoCSMgr", "KoTelephony"}), column(CallColumn::processes));
    EXPECT_EQ("Calls of the rows on show: 2", tabs->list().said());
    QTreeView& list = tabs->list().list();
    list.setCurrentIndex(tabs->list().model().index(0, 0));
    list.sortByColumn(static_cast<int>(CallColumn::lines), Qt::AscendingOrder);
    EXPECT_EQ((QStringList{"B", "A"}), column(CallColumn::id));
    EXPECT_EQ(1, list.currentIndex().row()) << "the current call is kept";
}

TEST_F(CallsTest, ListsTheCallsOfTheRowsOnShowAlone)
{
    openTwoCalls();
    tabs->openList();
    RowFilter filter;
    filter.texts.push_back({"rings", false, false, false});
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return column(CallColumn::lines) == QStringList({"1", "1"}); }));
    filter.texts.front().text = "of no call";
    document.setFilter(filter);
    ASSERT_TRUE(waitUntil([&] { return tabs->list().model().rowCount() == 0; }));
    EXPECT_EQ("No row on show has a call id.", tabs->list().said());
}

TEST_F(CallsTest, SaysThatAFormOfLinesHasNoCallIds)
{
    open({logs.writeRows("KoCSMgr", 20, 0, 1000)});
    tabs->openList();
    ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    EXPECT_EQ("No call is known: the lines of the open logs are of a form without call ids.",
              tabs->list().said());
}

TEST_F(CallsTest, ShowsACallOfTheListByKey)
{
    openTwoCalls();
    tabs->openList();
    ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    QTreeView& list = tabs->list().list();
    list.setCurrentIndex(tabs->list().model().index(1, 0));
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return selectedText() == "rings too"; }));
    EXPECT_TRUE(tabs->showsCall());
    EXPECT_EQ("Call B. Lines: 1, processes: 1, errors: 0, warnings: 0, length: 0.000",
              tabs->call().said());
}

TEST_F(CallsTest, GoesOverTheLinesOfACallByKey)
{
    openTwoCalls();
    showCall("A", day + 1000);
    EXPECT_EQ((std::vector<std::string>{"KoTelephony", "KoCSMgr"}), calls->rows()->lanes);
    EXPECT_EQ("rings", selectedText());
    press(Qt::Key_Right);
    EXPECT_EQ("is put through", selectedText());
    press(Qt::Key_Right);
    EXPECT_EQ("answers\n  with a further line", selectedText());
    press(Qt::Key_Right);
    EXPECT_EQ("fails", selectedText());
    press(Qt::Key_Up);
    EXPECT_EQ("is put through", selectedText());
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ("ends late", selectedText());
    press(Qt::Key_Down);
    EXPECT_EQ("fails", selectedText());
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ("answers\n  with a further line", selectedText());
    press(Qt::Key_End);
    EXPECT_EQ("ends late", selectedText());
    press(Qt::Key_Home);
    EXPECT_EQ("rings", selectedText());
    press(Qt::Key_Left);
    EXPECT_EQ("rings", selectedText()) << "there is none before";
}

TEST_F(CallsTest, AsksForTheSelectedRowByKeyAndLeavesByKey)
{
    openTwoCalls();
    showCall("A", day + 1000);
    press(Qt::Key_End);
    std::optional<timeline::IndexRow> asked;
    QObject::connect(tabs.get(), &CallTabs::rowAsked,
                     [&](const timeline::IndexRow& row) { asked = row; });
    press(Qt::Key_Return);
    ASSERT_TRUE(asked);
    EXPECT_EQ(day + 9000, asked->moment);
    QSignalSpy left(tabs.get(), &CallTabs::left);
    press(Qt::Key_Escape);
    EXPECT_EQ(1, left.count());
}

TEST_F(CallsTest, TellsAScreenReaderTheSelectedLineAndItsLane)
{
    openTwoCalls();
    showCall("A", day + 1000);
    LaneView& lanes = tabs->call().lanes();
    EXPECT_EQ("Lines of call A over time", lanes.accessibleName());
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    const QString said = "Line 4 of 5, KoCSMgr, error, 2025-02-20 00:00:04.000, CallFlow, fails";
    EXPECT_EQ(said, lanes.accessibleDescription());
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&lanes);
    ASSERT_NE(nullptr, access);
    EXPECT_EQ(said, access->text(QAccessible::Value));
}

TEST_F(CallsTest, AClickSelectsADotAndItsTipTellsIt)
{
    openTwoCalls();
    showCall("A", day + 1000);
    LaneView& lanes = tabs->call().lanes();
    const QPoint error = lanes.placeOf(3);
    EXPECT_EQ("2025-02-20 00:00:04.000, KoCSMgr, CallFlow, level 0, error\nfails",
              lanes.describe(error));
    QTest::mouseClick(lanes.viewport(), Qt::LeftButton, {}, error + QPoint(3, 0));
    EXPECT_EQ("fails", selectedText());
    EXPECT_EQ("", lanes.describe(error + QPoint(40, 0)));
}

TEST_F(CallsTest, ZoomsAndMovesTheTimesAndShowsAllByKey)
{
    openTwoCalls();
    showCall("A", day + 1000);
    LaneView& lanes = tabs->call().lanes();
    EXPECT_TRUE(lanes.scale().showsAll());
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    EXPECT_NEAR(8000 / 2.25, lanes.scale().to() - lanes.scale().from(), 1);
    const double from = lanes.scale().from();
    const QPoint ground(lanes.viewport()->width() - 50, lanes.viewport()->height() - 5);
    QTest::mousePress(lanes.viewport(), Qt::LeftButton, {}, ground);
    QTest::mouseMove(lanes.viewport(), ground - QPoint(100, 0));
    QTest::mouseRelease(lanes.viewport(), Qt::LeftButton, {}, ground - QPoint(100, 0));
    EXPECT_GT(lanes.scale().from(), from) << "a drag to the left shows later times";
    press(Qt::Key_End);
    EXPECT_LE(lanes.scale().from(), static_cast<double>(day + 9000));
    EXPECT_GE(lanes.scale().to(), static_cast<double>(day + 9000))
        << "what is selected is in sight";
    press(Qt::Key_0);
    EXPECT_TRUE(lanes.scale().showsAll());
    press(Qt::Key_Minus);
    EXPECT_TRUE(lanes.scale().showsAll()) << "there is nothing beyond";
}

TEST_F(CallsTest, TheWheelZoomsAroundThePointerAndADoubleClickShowsAll)
{
    openTwoCalls();
    showCall("A", day + 1000);
    LaneView& lanes = tabs->call().lanes();
    const QPoint at = lanes.placeOf(3);
    const QPoint onScreen = lanes.viewport()->mapToGlobal(at);
    QWheelEvent wheel(at, onScreen, {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(lanes.viewport(), &wheel);
    EXPECT_NEAR(8000 / 1.5, lanes.scale().to() - lanes.scale().from(), 1);
    EXPECT_EQ(at.x(), lanes.placeOf(3).x());
    QTest::mouseDClick(lanes.viewport(), Qt::LeftButton, {}, at + QPoint(30, 0));
    EXPECT_TRUE(lanes.scale().showsAll());
}

TEST_F(CallsTest, StopsWhatIsBeingMadeAndKeepsWhatIsThere)
{
    std::string lines;
    for (int row = 0; row < 60'000; ++row)
        lines += callLine(row * 20, "c" + std::to_string(row / 10), 3, "row");
    open({logs.write("KoCSMgr", lines)});
    tabs->openList();
    ASSERT_EQ(Calls::Work::running, calls->listWork());
    calls->stop();
    EXPECT_EQ(Calls::Work::stopped, calls->listWork());
    EXPECT_FALSE(calls->busy());
    const auto kept = calls->list();
    QTest::qWait(300);
    EXPECT_EQ(kept, calls->list()) << "nothing comes of it any more";
    EXPECT_TRUE(tabs->list().said().contains("stopped")) << tabs->list().said().toStdString();
}

TEST_F(CallsTest, ShowsRowsThatComeLaterAndKeepsTheSelectedOne)
{
    openTwoCalls();
    showCall("A", day + 1000);
    press(Qt::Key_End);
    open({logs.write("KoNotify", callLine(500, "A", 3, "is announced"))});
    ASSERT_TRUE(waitUntil([&] { return calls->rows()->rows.size() == 6; }));
    EXPECT_EQ("KoNotify", calls->rows()->lanes.front());
    EXPECT_EQ("ends late", selectedText());
}

TEST_F(CallsTest, ListsCallsOfRowsThatComeLaterAndKeepsTheCurrentOne)
{
    openTwoCalls();
    tabs->openList();
    ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    QTreeView& list = tabs->list().list();
    list.setCurrentIndex(tabs->list().model().index(1, 0));
    open({logs.write("KoNotify", callLine(500, "C", 3, "is announced"))});
    ASSERT_TRUE(waitUntil([&] { return column(CallColumn::id) == QStringList({"C", "A", "B"}); }));
    EXPECT_EQ(2, list.currentIndex().row());
}

TEST_F(CallsTest, AListOfTheSameRowsIsNotMadeAgain)
{
    openTwoCalls();
    tabs->openList();
    ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    const auto list = calls->list();
    tabs->hide();
    tabs->openList();
    EXPECT_EQ(Calls::Work::done, calls->listWork());
    EXPECT_EQ(list, calls->list());
}

TEST_F(CallsTest, RowsThatComeWhileACallIsLookedForAreFoundToo)
{
    openTwoCalls();
    tabs->openList();
    showCall("A", day + 1000);
    for (const char* process : {"KoNotify", "KoDirectory", "KoStoreMonitor"})
        document.open({logs.write(process, callLine(6000, "A", 3, process))});
    ASSERT_TRUE(waitUntil([&] { return calls->rows()->rows.size() == 8; }));
    ASSERT_TRUE(waitUntil([&] { return !calls->busy(); }));
    EXPECT_EQ(5u, calls->rows()->lanes.size());
}

} // namespace
} // namespace viewer
