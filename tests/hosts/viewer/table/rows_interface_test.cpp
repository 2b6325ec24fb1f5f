#include "hosts/viewer/table/rows_interface.h"

#include "hosts/viewer/support/test_logs.h"
#include "hosts/viewer/table/row_table.h"
#include "support/windows/test_application.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <QSettings>
#include <QTest>

#include <gmock/gmock.h>

namespace viewer {
namespace {

class RowsInterfaceTest : public testing::Test {
protected:
    RowsInterfaceTest()
        : settings((testApplication(), logs.folder() + "/viewer.ini"), QSettings::IniFormat),
          model(document), table(model, settings)
    {
        table.resize(900, 400);
        table.show();
        for (const RowColumnInfo& info : RowColumns::all())
            table.showColumn(info.column, info.column == RowColumn::level ||
                                              info.column == RowColumn::component ||
                                              info.column == RowColumn::trace);
    }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
        settle();
    }

    QAccessibleInterface& all() { return *QAccessible::queryAccessibleInterface(&table); }
    QAccessibleTableInterface& rows() { return *all().tableInterface(); }

    QString textAt(int row, int column)
    {
        QAccessibleInterface* cell = rows().cellAt(row, column);
        return cell == nullptr ? QStringLiteral("none") : cell->text(QAccessible::Name);
    }

    TestLogs logs;
    QSettings settings;
    Document document;
    RowModel model;
    RowTable table;
};

TEST_F(RowsInterfaceTest, IsATableOfAllRowsAndTheColumnsOnShow)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    EXPECT_EQ(QAccessible::Table, all().role());
    EXPECT_EQ(5000, rows().rowCount());
    EXPECT_EQ(3, rows().columnCount());
    EXPECT_EQ("Component", rows().columnDescription(0));
    EXPECT_EQ("Trace", rows().columnDescription(2));
    EXPECT_EQ("row 4321", textAt(4321, 2));
    EXPECT_EQ("0, error", textAt(4320, 1)) << "with what its colour tells";
    EXPECT_EQ(nullptr, rows().cellAt(5000, 0));
    EXPECT_EQ(nullptr, rows().cellAt(0, 3));
    EXPECT_EQ(nullptr, rows().cellAt(-1, 0));
    EXPECT_EQ(rows().cellAt(7, 1), rows().cellAt(7, 1)) << "the same one";
    table.showColumn(RowColumn::component, false);
    EXPECT_EQ("row 4321", textAt(4321, 1)) << "columns as they stand there";
}

TEST_F(RowsInterfaceTest, ACellTellsWhereItStands)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    QAccessibleInterface* cell = rows().cellAt(3, 2);
    EXPECT_EQ(QAccessible::Cell, cell->role());
    EXPECT_EQ(&all(), cell->parent());
    QAccessibleTableCellInterface* place = cell->tableCellInterface();
    ASSERT_NE(nullptr, place);
    EXPECT_EQ(3, place->rowIndex());
    EXPECT_EQ(2, place->columnIndex());
    EXPECT_EQ(&all(), place->table());
    ASSERT_EQ(1, place->columnHeaderCells().size());
    EXPECT_EQ("Trace", place->columnHeaderCells().front()->text(QAccessible::Name));
    EXPECT_EQ(QAccessible::ColumnHeader, place->columnHeaderCells().front()->role());
    EXPECT_FALSE(cell->state().offscreen);
    EXPECT_TRUE(rows().cellAt(4000, 2)->state().offscreen);
    const QPoint inside = cell->rect().center();
    EXPECT_EQ(cell, all().childAt(inside.x(), inside.y()));
    EXPECT_EQ(table.viewport()->mapToGlobal(table.visualRect(model.index(3, 9)).center()), inside);
}

TEST_F(RowsInterfaceTest, HasTheHeadersAndTheRowsInSightForChildren)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    table.verticalScrollBar()->setValue(1000);
    const int inSight = static_cast<int>(table.rowsInSight());
    ASSERT_EQ(3 * (1 + inSight), all().childCount());
    EXPECT_EQ("Level", all().child(1)->text(QAccessible::Name));
    EXPECT_EQ("row 1000", all().child(5)->text(QAccessible::Name));
    for (int at = 0; at < all().childCount(); ++at) {
        ASSERT_NE(nullptr, all().child(at)) << at;
        EXPECT_EQ(at, all().indexOfChild(all().child(at)));
    }
    EXPECT_EQ(nullptr, all().child(all().childCount()));
    EXPECT_EQ(-1, all().indexOfChild(rows().cellAt(0, 0))) << "it is not in sight";
    EXPECT_EQ(-1, all().indexOfChild(&all()));
}

TEST_F(RowsInterfaceTest, ItsFocusIsACellOfTheCurrentRow)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 10)});
    table.goTo(20);
    table.activateWindow();
    table.setFocus();
    ASSERT_TRUE(waitUntil([this] { return table.hasFocus(); }));
    QAccessibleInterface* focus = all().focusChild();
    ASSERT_NE(nullptr, focus);
    EXPECT_EQ("CallFlow", focus->text(QAccessible::Name)) << "the first column on show";
    EXPECT_TRUE(focus->state().focused);
    EXPECT_TRUE(focus->text(QAccessible::Description).contains("row 20")) << "the row as a whole";
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_FALSE(focus->state().focused);
    EXPECT_EQ("", focus->text(QAccessible::Description));
    EXPECT_EQ(21, all().focusChild()->tableCellInterface()->rowIndex());
}

TEST_F(RowsInterfaceTest, TheCellThatGetsTheFocusIsAChildWhenThatIsTold)
{
    open({logs.writeRows("KoCSMgr", 1000, 0, 10)});
    table.goTo(20);
    table.activateWindow();
    table.setFocus();
    ASSERT_TRUE(waitUntil([this] { return table.hasFocus(); }));
    QList<int> told;
    QObject::connect(&table, &RowTable::currentPlaceChanged, &table, [&] {
        QAccessibleInterface* child = all().child(all().indexOfChild(all().focusChild()));
        told << (child == nullptr ? -1 : child->tableCellInterface()->rowIndex());
    });
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_End, Qt::ControlModifier);
    table.goTo(500);
    EXPECT_EQ((QList<int>{21, 999, 500}), told);
}

TEST_F(RowsInterfaceTest, SelectsRows)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    table.goTo(10);
    EXPECT_EQ((QList<int>{10}), rows().selectedRows());
    EXPECT_TRUE(rows().selectRow(20));
    EXPECT_TRUE(rows().isRowSelected(20));
    EXPECT_TRUE(rows().cellAt(20, 1)->state().selected);
    EXPECT_EQ((QList<int>{10, 20}), rows().selectedRows());
    EXPECT_EQ(6, rows().selectedCellCount());
    EXPECT_EQ(6, rows().selectedCells().size());
    EXPECT_TRUE(rows().unselectRow(10));
    EXPECT_EQ((QList<int>{20}), rows().selectedRows());
    EXPECT_FALSE(rows().selectRow(5000));
    table.selectAll();
    EXPECT_EQ(5000, rows().selectedRowCount());
    EXPECT_EQ(15'000, rows().selectedCellCount());
    EXPECT_LT(rows().selectedRows().size(), 5000) << "the first of them will do";
}

TEST_F(RowsInterfaceTest, ItsCellsGoWithWhatIsOnShow)
{
    open({logs.writeRows("KoCSMgr", 100, 0, 10)});
    const QAccessible::Id before = QAccessible::uniqueId(rows().cellAt(20, 2));
    RowFilter errors;
    errors.columns.push_back({timeline::Column::level, {"0"}, false});
    document.setFilter(errors);
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ(nullptr, QAccessible::accessibleInterface(before));
    EXPECT_EQ(5, rows().rowCount());
    EXPECT_EQ("row 40", textAt(2, 2));
}

TEST_F(RowsInterfaceTest, KeepsNoMoreCellsThanAreUsed)
{
    open({logs.writeRows("KoCSMgr", 5000, 0, 10)});
    const QAccessible::Id first = QAccessible::uniqueId(rows().cellAt(0, 2));
    const QAccessible::Id hidden = QAccessible::uniqueId(rows().cellAt(4999, 0));
    for (int row = 0; row < static_cast<int>(RowsInterface::mostParts) - 1; ++row)
        ASSERT_NE(nullptr, rows().cellAt(row, 2));
    EXPECT_NE(nullptr, QAccessible::accessibleInterface(first));
    rows().cellAt(4998, 2);
    EXPECT_EQ(nullptr, QAccessible::accessibleInterface(first)) << "the oldest one";
    ASSERT_NE(nullptr, QAccessible::accessibleInterface(hidden));
    EXPECT_TRUE(QAccessible::accessibleInterface(hidden)->isValid());
    table.showColumn(RowColumn::component, false);
    EXPECT_FALSE(QAccessible::accessibleInterface(hidden)->isValid());
    EXPECT_EQ("row 0", textAt(0, 1));
}

} // namespace
} // namespace viewer
