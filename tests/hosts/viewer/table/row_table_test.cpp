#include "hosts/viewer/table/row_table.h"

#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace viewer {
namespace {

class RowTableTest : public testing::Test {
protected:
    RowTableTest()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          model(document), table(model, settings)
    {
        table.resize(900, 400);
        table.show();
    }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
        settle();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&table, static_cast<Qt::Key>(key), modifiers);
    }

    TestLogs logs;
    QSettings settings;
    Document document;
    RowModel model;
    RowTable table;
};

TEST_F(RowTableTest, SpeaksItsCurrentRow)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 1000)});
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&table);
    ASSERT_NE(nullptr, spoken);
    EXPECT_EQ("", spoken->text(QAccessible::Value)) << "no row is the current one";
    table.goTo(20);
    const QString text = spoken->text(QAccessible::Value);
    EXPECT_TRUE(text.contains("row 20")) << text.toStdString();
    EXPECT_TRUE(text.contains("00:00:20")) << text.toStdString();
    EXPECT_TRUE(text.contains("0, error")) << "as a cell is spoken";
    EXPECT_EQ(text, spoken->text(QAccessible::Description));
    press(Qt::Key_Down);
    EXPECT_TRUE(spoken->text(QAccessible::Description).contains("row 21"));
    table.showColumn(RowColumn::trace, false);
    EXPECT_FALSE(spoken->text(QAccessible::Value).contains("row 21")) << "it is hidden";
}

TEST_F(RowTableTest, GoesOverRowsByKey)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    press(Qt::Key_Down);
    EXPECT_EQ(0u, table.currentPlace());
    press(Qt::Key_Down);
    EXPECT_EQ(1u, table.currentPlace());
    press(Qt::Key_PageDown);
    EXPECT_EQ(table.rowsInSight(), table.currentPlace());
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(4999u, table.currentPlace());
    EXPECT_EQ(5000u - table.rowsInSight(), table.firstInSight());
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(0u, table.currentPlace());
    EXPECT_EQ(0u, table.firstInSight());
}

TEST_F(RowTableTest, SelectsRangesOfRows)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    table.goTo(10);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ((std::vector<std::size_t>{10, 11, 12}), table.selectedPlaces(100));
    table.selectAll();
    EXPECT_EQ(100u, table.selectedPlaces(100).size());
    EXPECT_EQ(5000u, table.selectedPlaces(10'000).size());
}

TEST_F(RowTableTest, KeepsASelectionOfAllRowsWhenRowsCome)
{
    open({logs.writeRows("KoCSMgr", 3000, 0, 10)});
    table.goTo(7);
    table.selectAll();
    EXPECT_EQ(3000u, table.selectedCount());
    open({logs.writeRows("KoNotify", 3000, 5, 10)});
    EXPECT_EQ(6000u, table.selectedCount());
    EXPECT_EQ(14u, table.currentPlace());
    table.goTo(7);
    EXPECT_EQ(1u, table.selectedCount());
}

TEST_F(RowTableTest, AClickSelectsTheRowUnderIt)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    table.verticalScrollBar()->setValue(100);
    const QRect room = table.visualRect(model.index(103, 2));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, room.center());
    EXPECT_EQ(103u, table.currentPlace());
    EXPECT_EQ((std::vector<std::size_t>{103}), table.selectedPlaces(10));
}

TEST_F(RowTableTest, KeepsTheCurrentRowAndItsPlaceInSightWhenRowsCome)
{
    open({logs.writeRows("KoCSMgr", 3000, 0, 10)});
    table.goTo(2000);
    table.verticalScrollBar()->setValue(1995);
    press(Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(2001u, table.currentPlace());
    open({logs.writeRows("KoNotify", 3000, 5, 10)});
    ASSERT_EQ(6000u, document.rowCount());
    EXPECT_EQ(4002u, table.currentPlace());
    EXPECT_EQ("row 2001", document.row(4002).trace);
    EXPECT_EQ(4002u - 6, table.firstInSight());
    EXPECT_EQ((std::vector<std::size_t>{4000, 4002}), table.selectedPlaces(10));
}

TEST_F(RowTableTest, RemembersWhichColumnsAreShownHowWideAndInWhichOrder)
{
    table.showColumn(RowColumn::port, false);
    table.showColumn(RowColumn::thread, true);
    table.header().moveSection(table.header().visualIndex(static_cast<int>(RowColumn::callId)), 0);
    table.header().resizeSection(static_cast<int>(RowColumn::process), 321);
    RowTable again(model, settings);
    EXPECT_FALSE(again.showsColumn(RowColumn::port));
    EXPECT_TRUE(again.showsColumn(RowColumn::thread));
    EXPECT_EQ(RowColumn::callId, again.shownColumns().front());
    EXPECT_EQ(321, again.header().sectionSize(static_cast<int>(RowColumn::process)));
    again.resetColumns();
    EXPECT_TRUE(again.showsColumn(RowColumn::port));
    EXPECT_EQ(RowColumn::time, again.shownColumns().front());
}

TEST_F(RowTableTest, TheLastColumnOnShowStays)
{
    for (const RowColumnInfo& info : RowColumns::all()) table.showColumn(info.column, false);
    EXPECT_EQ(1u, table.shownColumns().size());
}

TEST_F(RowTableTest, TellsTimesAsAClockAndAsDifferences)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "one") + rawLine(1250, "A", 3, "two") +
                                    rawLine(62'250, "A", 3, "three"))});
    EXPECT_EQ("2025-02-20 00:00:01.250", model.text(1, RowColumn::time));
    model.setTimeForm(TimeForm::sinceRowBefore);
    EXPECT_EQ("", model.text(0, RowColumn::time));
    EXPECT_EQ("+0.250", model.text(1, RowColumn::time));
    EXPECT_EQ("+1:01.000", model.text(2, RowColumn::time));
    model.setMark(document.row(1).index.moment);
    model.setTimeForm(TimeForm::sinceMark);
    EXPECT_EQ("-0.250", model.text(0, RowColumn::time));
    EXPECT_EQ("+0.000", model.text(1, RowColumn::time));
}

TEST_F(RowTableTest, SaysAnErrorToAScreenReader)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 0, "one") + rawLine(1250, "A", 2, "two"))});
    const int level = static_cast<int>(RowColumn::level);
    EXPECT_EQ("0, error", model.index(0, level).data(Qt::AccessibleTextRole).toString());
    EXPECT_FALSE(model.index(1, level).data(Qt::AccessibleTextRole).isValid());
}

TEST_F(RowTableTest, TellsItsSelectionAsRanges)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    EXPECT_TRUE(table.selectedRanges(100).empty());
    const auto select = [&](int first, int last) {
        QItemSelection rows(model.index(first, 0), model.index(last, rowColumns - 1));
        table.selectionModel()->select(rows, QItemSelectionModel::Select);
    };
    select(20, 29);
    select(3, 3);
    select(30, 31);
    EXPECT_EQ((std::vector<PlaceRange>{{3, 4}, {20, 32}}), table.selectedRanges(5000));
    EXPECT_EQ((std::vector<PlaceRange>{{3, 4}, {20, 24}}), table.selectedRanges(5));
    EXPECT_EQ((std::vector<PlaceRange>{{3, 4}}), table.selectedRanges(1));
    EXPECT_EQ(13u, table.selectedCount());
    EXPECT_EQ((std::vector<std::size_t>{3, 20, 21}), table.selectedPlaces(3));
}

} // namespace
} // namespace viewer
