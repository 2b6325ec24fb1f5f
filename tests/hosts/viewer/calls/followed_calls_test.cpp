#include "hosts/viewer/calls/calls.h"

#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/call_tabs.h"
#include "hosts/viewer/calls/lane_view.h"
#include "hosts/viewer/support/test_calls.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <gmock/gmock.h>

#include <fstream>
#include <map>

namespace viewer {
namespace {

/// The calls of logs that are followed, while a test adds lines to these.
class FollowedCalls : public testing::Test {
protected:
    FollowedCalls()
    {
        testApplication();
        calls = std::make_unique<Calls>(document);
        tabs = std::make_unique<CallTabs>(*calls);
        tabs->resize(900, 300);
        manager = logs.write("KoCSMgr",
                             callLine(1000, "A", 3, "rings") + callLine(2000, "B", 3, "rings"));
        phone = logs.write("KoTelephony", callLine(1500, "A", 3, "is answered"));
    }

    void follow()
    {
        document.open({manager, phone});
        ASSERT_TRUE(waitForRows(document));
        document.follow(true);
        settle();
    }

    void openList()
    {
        tabs->openList();
        tabs->show();
        ASSERT_TRUE(waitUntil([&] { return calls->listWork() == Calls::Work::done; }));
    }

    static void append(const QString& log, const std::string& lines)
    {
        std::ofstream(log.toStdString(), std::ios::app | std::ios::binary) << lines;
    }

    QStringList column(CallColumn column)
    {
        QStringList texts;
        CallListModel& model = tabs->list().model();
        for (int row = 0; row < model.rowCount(); ++row) texts << model.text(row, column);
        return texts;
    }

    bool waitForLines(const QStringList& lines)
    {
        return waitUntil([&] { return column(CallColumn::lines) == lines; }, 5'000);
    }

    TestLogs logs;
    QString manager;
    QString phone;
    Document document;
    std::unique_ptr<Calls> calls; ///< which goes before the document
    std::unique_ptr<CallTabs> tabs;
};

TEST_F(FollowedCalls, AreListedAsTheirRowsComeWithoutAListMadeAnew)
{
    follow();
    openList();
    ASSERT_EQ((QStringList{"2", "1"}), column(CallColumn::lines));
    QTreeView& list = tabs->list().list();
    list.setCurrentIndex(tabs->list().model().index(1, 0));
    QSignalSpy resets(&tabs->list().model(), &QAbstractItemModel::modelReset);
    bool said = false;
    QObject::connect(calls.get(), &Calls::listChanged,
                     [&] { said = said || calls->listWork() != Calls::Work::done; });
    append(manager, callLine(3000, "C", 0, "fails") + callLine(4000, "B", 3, "ends"));
    ASSERT_TRUE(waitForLines({"2", "2", "1"}));
    EXPECT_EQ((QStringList{"A", "B", "C"}), column(CallColumn::id));
    EXPECT_EQ((QStringList{"0", "0", "1"}), column(CallColumn::errors));
    EXPECT_EQ("Calls of the rows on show: 3", tabs->list().said());
    append(manager, callLine(5000, "C", 3, "is over"));
    ASSERT_TRUE(waitForLines({"2", "2", "2"}));
    EXPECT_EQ(1, list.currentIndex().row()) << "the current call is kept";
    EXPECT_EQ(0, resets.count());
    EXPECT_FALSE(said) << "nobody is told that a list is being made";
}

TEST_F(FollowedCalls, CountRowsThatComeAmongOthers)
{
    follow();
    openList();
    append(phone, callLine(1600, "B", 3, "early") + callLine(1700, "A", 1, "late"));
    ASSERT_TRUE(waitForLines({"3", "2"}));
    EXPECT_EQ((QStringList{"2025-02-20 00:00:01.000", "2025-02-20 00:00:01.600"}),
              column(CallColumn::start));
    EXPECT_EQ((QStringList{"1", "0"}), column(CallColumn::warnings));
}

TEST_F(FollowedCalls, AreThoseOfTheFilterAsRowsCome)
{
    follow();
    openList();
    RowFilter filter;
    filter.texts.push_back({"rings", false, false, false});
    document.setFilter(filter);
    ASSERT_TRUE(waitForLines({"1", "1"}));
    append(manager, callLine(3000, "C", 3, "rings") + callLine(3100, "C", 3, "is silent"));
    ASSERT_TRUE(waitForLines({"1", "1", "1"}));
    document.setFilter({});
    ASSERT_TRUE(waitForLines({"2", "1", "2"}));
}

TEST_F(FollowedCalls, CountARowThatComesOnShowByALineOfItsOwn)
{
    follow();
    openList();
    RowFilter filter;
    filter.texts.push_back({"further", false, false, false});
    document.setFilter(filter);
    ASSERT_TRUE(waitUntil([&] { return tabs->list().model().rowCount() == 0; }));
    append(manager, "  with a further line\r\n");
    ASSERT_TRUE(waitForLines({"1"}));
    EXPECT_EQ((QStringList{"B"}), column(CallColumn::id));
}

TEST_F(FollowedCalls, StayWhereTheyAreInAListThatIsScrolled)
{
    std::string lines;
    for (int call = 0; call < 300; ++call)
        lines += callLine(3000 + call * 10, "c" + std::to_string(call), 3, "rings");
    append(manager, lines);
    follow();
    openList();
    QTreeView& list = tabs->list().list();
    list.verticalScrollBar()->setValue(100);
    settle();
    const QString top = tabs->list().model().text(list.indexAt(QPoint(5, 5)).row(), CallColumn::id);
    append(manager, callLine(9000, "new", 3, "rings"));
    ASSERT_TRUE(waitUntil([&] { return tabs->list().model().rowCount() == 303; }));
    settle();
    EXPECT_EQ(top, tabs->list().model().text(list.indexAt(QPoint(5, 5)).row(), CallColumn::id));
}

TEST_F(FollowedCalls, AreListedWhenTheListComesBack)
{
    follow();
    openList();
    tabs->hide();
    append(manager, callLine(3000, "C", 3, "rings"));
    ASSERT_TRUE(waitUntil([&] { return document.rowCount() == 4; }));
    openList();
    ASSERT_TRUE(waitForLines({"2", "1", "1"}));
    append(manager, callLine(4000, "C", 3, "ends"));
    EXPECT_TRUE(waitForLines({"2", "1", "2"}));
}

TEST_F(FollowedCalls, GrowInTheirLanesAndKeepTheSelectedLine)
{
    follow();
    tabs->show();
    tabs->call().show("A", timeline::dayOf(2025, 2, 20) + 1000, std::nullopt);
    tabs->openCall();
    ASSERT_TRUE(waitUntil([&] { return calls->rowsWork() == Calls::Work::done; }));
    ASSERT_EQ(2u, calls->rows()->rows.size());
    QTest::keyClick(&tabs->call().lanes(), Qt::Key_End);
    ASSERT_EQ("is answered", tabs->call().text().toPlainText());
    bool said = false;
    QObject::connect(calls.get(), &Calls::rowsChanged,
                     [&] { said = said || calls->rowsWork() != Calls::Work::done; });
    append(manager, callLine(3000, "B", 3, "ends") + callLine(3500, "A", 3, "ends"));
    ASSERT_TRUE(waitUntil([&] { return calls->rows()->rows.size() == 3; }, 5'000));
    append(phone, callLine(1600, "A", 0, "fails"));
    ASSERT_TRUE(waitUntil([&] { return calls->rows()->rows.size() == 4; }, 5'000));
    EXPECT_EQ("is answered", tabs->call().text().toPlainText());
    EXPECT_EQ("Call A. Lines: 4, processes: 2, errors: 1, warnings: 0, length: 2.500",
              tabs->call().said());
    QTest::keyClick(&tabs->call().lanes(), Qt::Key_Right);
    EXPECT_EQ("fails", tabs->call().text().toPlainText());
    EXPECT_FALSE(said) << "nobody is told that rows are looked for";
}

TEST_F(FollowedCalls, AreThoseOfALogThatBeganAnew)
{
    follow();
    openList();
    std::ofstream(manager.toStdString(), std::ios::trunc | std::ios::binary)
        << callLine(60'000, "N", 3, "rings");
    EXPECT_TRUE(waitUntil([&] {
        return column(CallColumn::id) == QStringList({"A", "N"});
    })) << column(CallColumn::id).join(" ").toStdString();
    append(manager, callLine(61'000, "N", 3, "ends"));
    EXPECT_TRUE(waitForLines({"1", "2"}));
}

TEST_F(FollowedCalls, AreTheSameAsCountedAnewAfterManyRows)
{
    follow();
    openList();
    for (int round = 0; round < 30; ++round) {
        std::string one;
        std::string other;
        for (int row = 0; row < 40; ++row) {
            const int at = 10'000 + round * 400 + row * 10;
            one += callLine(at, "r" + std::to_string((round * 7 + row) % 23), row % 4, "row");
            other += callLine(at - 300, "r" + std::to_string(row % 29), row % 3, "row");
        }
        append(manager, one);
        append(phone, other);
        QTest::qWait(20);
    }
    ASSERT_TRUE(waitUntil([&] { return document.rowCount() == 3 + 30 * 80; }));
    const auto told = [](const CallList& list) {
        std::map<std::string, std::vector<std::uint64_t>> all;
        for (const timeline::Call& call : list.calls)
            all[call.id] = {call.rows, call.errors, call.warnings,
                            static_cast<std::uint64_t>(call.first),
                            static_cast<std::uint64_t>(call.last)};
        return all;
    };
    Calls anew(document);
    anew.keepList(true);
    ASSERT_TRUE(waitUntil([&] { return anew.listWork() == Calls::Work::done; }));
    EXPECT_TRUE(waitUntil([&] { return told(*calls->list()) == told(*anew.list()); }, 5'000));
}

} // namespace
} // namespace viewer
