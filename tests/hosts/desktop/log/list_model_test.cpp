#include "hosts/desktop/log/list_model.h"

#include "console/list_view.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QHeaderView>

#include <gtest/gtest.h>

#include <chrono>

namespace desktop {

namespace {

ListViewDefinition definition(ListText text = ListText::serverCodePage)
{
    ListViewDefinition made;
    made.name = "listviewTest";
    made.text = text;
    made.columns = {{"", "#", 50}, {"", "Name", 100}, {"", "Size", 50}};
    return made;
}

struct Rows {
    using Cells = std::vector<std::pair<std::string, std::string>>;

    explicit Rows(const Cells& cells, ListText text = ListText::serverCodePage)
        : declared(definition(text)), list(declared)
    {
        testApplication();
        int index = 0;
        for (const auto& [name, size] : cells) {
            ListItem row = list.addItem(++index, name + " " + size);
            row.addSubItem(1, std::to_string(index));
            row.addSubItem(2, name);
            row.addSubItem(3, size);
        }
        model.show(list);
    }

    QStringList column(int number) const
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) texts << model.text(row, number);
        return texts;
    }

    ListViewDefinition declared;
    ListView list;
    ListModel model{windows1252()};
};

TEST(ListModel, ARowThatIsHiddenHasANearestOneInTheOrderOnTheScreen)
{
    Rows rows({{"b", "1"}, {"keep a", "2"}, {"c", "3"}, {"keep d", "4"}, {"B", "5"}});
    LogFilter filter;
    filter.text = {windows1252(), u"keep"};
    rows.model.filter(filter);
    const auto nearest = [&](std::uint32_t position) {
        return rows.model.text(rows.model.nearestRow(position), 2).toStdString();
    };
    EXPECT_EQ("keep a", nearest(1)) << "the next one";
    EXPECT_EQ("keep a", nearest(2)) << "itself";
    EXPECT_EQ("keep d", nearest(3));
    EXPECT_EQ("keep d", nearest(5)) << "none is behind it";
    EXPECT_EQ("keep a", nearest(0)) << "there was none";

    rows.model.sort(2, Qt::DescendingOrder);
    EXPECT_EQ("keep d", nearest(5));
    EXPECT_EQ("keep a", nearest(3));
    EXPECT_EQ("keep a", nearest(1)) << "none is behind it";

    filter.text = {windows1252(), u"no such text"};
    rows.model.filter(filter);
    EXPECT_EQ(-1, rows.model.nearestRow(3));
}

TEST(ListModel, ANearestRowStandsBehindThoseThatCountTheSame)
{
    Rows rows({{"keep", "1"}, {"x", "1"}, {"keep", "1"}, {"keep", "2"}});
    LogFilter filter;
    filter.text = {windows1252(), u"keep"};
    for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        rows.model.sort(2, order);
        rows.model.filter(filter);
        EXPECT_EQ("3", rows.model.text(rows.model.nearestRow(2), 1).toStdString());
        rows.model.filter({});
    }
}

TEST(ListModel, ShowsTheConsolesRowsInTheConsolesOrder)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    ListModel& model = shown.log().model();
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ListView& list = shown.shownList();
    ASSERT_GT(list.itemCount(), 100);
    ASSERT_EQ(list.itemCount(), model.rowCount());
    ASSERT_EQ(list.columnCount(), model.columnCount());
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 1; column <= list.columnCount(); ++column)
            ASSERT_EQ(list.shown(row + 1).subItem(column), model.bytes(row, column));
    EXPECT_EQ(QStringLiteral("Timestamp"),
              model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString());
}

TEST(ListModel, ShowsTheNewestLogOfAProcessFirst)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.window->showNode("KoCSMgr");
    const QAbstractItemModel& model = *shown.pane().table()->model();
    ASSERT_GE(model.rowCount(), 3);
    EXPECT_EQ(QStringLiteral("x"), model.index(0, 1).data().toString());
    EXPECT_EQ(QString::fromStdString(shown.server.currentLog("KoCSMgr")),
              model.index(0, 2).data().toString());
    const QHeaderView& header = *shown.pane().table()->horizontalHeader();
    EXPECT_EQ(2, header.sortIndicatorSection());
    EXPECT_EQ(Qt::DescendingOrder, header.sortIndicatorOrder());
}

TEST(ListModel, DecodesALogByItsCodePageAndOtherListsAsUtf8)
{
    EXPECT_EQ(QStringLiteral("Müller €"),
              Rows(Rows::Cells{{"M\xfcller \x80", "1"}}).model.text(0, 2));
    EXPECT_EQ(QStringLiteral("Müller €"),
              Rows(Rows::Cells{{"Müller €", "1"}}, ListText::utf8).model.text(0, 2));
}

TEST(ListModel, SortsByAColumnAndComesBackToItsOwnOrder)
{
    Rows rows({{"b", "10"}, {"A", "9"}, {"c", "100"}});
    rows.model.sort(2, Qt::AscendingOrder);
    EXPECT_EQ((QStringList{"9", "10", "100"}), rows.column(3)) << "numbers by their value";
    rows.model.sort(1, Qt::DescendingOrder);
    EXPECT_EQ((QStringList{"c", "b", "A"}), rows.column(2)) << "texts without regard to case";
    rows.model.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ((QStringList{"b", "A", "c"}), rows.column(2));
}

TEST(ListModel, KeepsTheOrderOfEqualRows)
{
    Rows rows({{"b", "1"}, {"a", "1"}, {"c", "1"}});
    rows.model.sort(2, Qt::AscendingOrder);
    EXPECT_EQ((QStringList{"b", "a", "c"}), rows.column(2));
}

TEST(ListTable, CopiesTheSelectedRowsOneLineEachOrAsCsv)
{
    Rows rows({{"plain", "1"}, {"with, comma", "2"}, {"with \"quotes\"", "3"}});
    TemporaryFolder folder;
    QSettings settings(QString::fromStdString(folder / "s.ini"), QSettings::IniFormat);
    ListTable table(rows.model, settings);
    table.listShown();
    EXPECT_EQ(0, table.copyAsText()) << "nothing is selected";

    table.selectAll();
    EXPECT_EQ(3, table.copyAsText());
    EXPECT_EQ(QStringLiteral("plain 1\nwith, comma 2\nwith \"quotes\" 3\n"),
              QGuiApplication::clipboard()->text());
    EXPECT_EQ(3, table.copyAsCsv());
    EXPECT_EQ(QStringLiteral("#,Name,Size\r\n1,plain,1\r\n2,\"with, comma\",2\r\n"
                             "3,\"with \"\"quotes\"\"\",3\r\n"),
              QGuiApplication::clipboard()->text());
}

TEST(ListTable, CopiesNoFormulaAsCsv)
{
    Rows rows({{"=HYPERLINK(\"http://x\")", "-3"}, {"@SUM(A1)", "+1+2"}});
    TemporaryFolder folder;
    QSettings settings(QString::fromStdString(folder / "s.ini"), QSettings::IniFormat);
    ListTable table(rows.model, settings);
    table.listShown();
    table.selectAll();
    EXPECT_EQ(2, table.copyAsCsv());
    EXPECT_EQ(QStringLiteral("#,Name,Size\r\n1,\"'=HYPERLINK(\"\"http://x\"\")\",-3\r\n"
                             "2,'@SUM(A1),'+1+2\r\n"),
              QGuiApplication::clipboard()->text());
}

TEST(ListTable, RemembersTheWidthsOfEachView)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    shown.log().table().setColumnWidth(4, 177);
    shown.reopen();
    shown.showLog("KoNotify");
    EXPECT_EQ(177, shown.log().table().columnWidth(4));
    shown.window->showNode("KoNotify");
    EXPECT_NE(177, shown.pane().table()->columnWidth(3));
}

TEST(ListModel, FiltersAndSortsThirtyThousandRowsWithoutAStutter)
{
    std::vector<std::pair<std::string, std::string>> cells;
    for (int row = 0; row < 30000; ++row)
        cells.emplace_back("component " + std::to_string(row % 37), std::to_string(row));
    Rows rows(cells);
    const auto start = std::chrono::steady_clock::now();
    LogFilter filter;
    filter.text = TextMatcher(windows1252(), u"COMPONENT 3");
    rows.model.filter(filter);
    EXPECT_EQ(6481, rows.model.rowCount());
    rows.model.sort(1, Qt::DescendingOrder);
    rows.model.filter({});
    EXPECT_EQ(30000, rows.model.rowCount());
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    // A build with sanitizers on a busy machine takes a few times what a person's does.
    EXPECT_LT(taken.count(), 2.0);
}

} // namespace

} // namespace desktop
