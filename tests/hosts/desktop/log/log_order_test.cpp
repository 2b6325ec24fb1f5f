// What stays when the rows of a log come in another order, or those of another log come.
#include "console/list_view.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace desktop {

namespace {

constexpr int timeColumn = 2;
constexpr int componentColumn = 5;

struct LogOrder : testing::Test {
    LogOrder()
    {
        shown.window->resize(1180, 720);
        shown.showLog("KoCSMgr");
    }

    LogView& log() { return shown.log(); }
    ListModel& model() { return log().model(); }
    ListTable& table() { return log().table(); }
    QHeaderView& header() { return *table().horizontalHeader(); }

    void clickHeader(int column)
    {
        const QPoint at(header().sectionViewportPosition(column - 1) + 8, header().height() / 2);
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, at);
        settle();
    }

    QString line() { return model().text(table().currentIndex().row(), 1); }

    bool inSight()
    {
        const QRect row = table().visualRect(table().currentIndex());
        return row.isValid() && table().viewport()->rect().contains(row.center());
    }

    QStringList cells(int column)
    {
        QStringList cells;
        for (int row = 0; row < model().rowCount(); ++row) cells << model().text(row, column);
        return cells;
    }

    TestWindow shown;
};

TEST_F(LogOrder, ASortKeepsTheSelectedLineInSightThereAndBack)
{
    table().goTo(model().rowCount() / 3);
    const QString selected = line();
    const QStringList own = cells(1);
    for (int click = 0; click < 3; ++click) {
        SCOPED_TRACE(click);
        clickHeader(componentColumn);
        EXPECT_EQ(selected, line());
        EXPECT_TRUE(inSight());
        ASSERT_EQ(1, table().selectionModel()->selectedRows().size());
        EXPECT_EQ(selected, model().text(table().selectionModel()->selectedRows()[0].row(), 1));
        EXPECT_EQ(click == 2, cells(1) == own) << "up, down, and the log's own order again";
    }
}

TEST_F(LogOrder, ASortKeepsEverySelectedLine)
{
    std::set<QString> lines;
    for (const int row : {3, 40, 41, 200}) {
        table().selectionModel()->select(model().index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        lines.insert(model().text(row, 1));
    }
    table().selectionModel()->select(model().index(0, 0),
                                     QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    clickHeader(componentColumn);
    std::set<QString> after;
    for (const auto& row : table().selectionModel()->selectedRows())
        after.insert(model().text(row.row(), 1));
    EXPECT_EQ(lines, after);
}

TEST_F(LogOrder, ARefreshAndAnotherLogKeepFilterAndOrder)
{
    auto& text = *log().filterBar().findChild<QLineEdit*>();
    shown.window->action(Command::filter).trigger();
    log().filterBar().tick(componentColumn, "RuleEngine", true);
    QTest::keyClicks(&text, "call");
    QTest::keyClick(&text, Qt::Key_Return);
    clickHeader(componentColumn);
    clickHeader(componentColumn);
    const QStringList rows = cells(1);
    ASSERT_GT(rows.size(), 10);
    ASSERT_LT(rows.size(), shown.shownList().itemCount());
    table().goTo(static_cast<int>(rows.size()) / 2);
    const QString selected = line();

    const auto expectSame = [&](const char* because) {
        SCOPED_TRACE(because);
        EXPECT_EQ(rows, cells(1));
        EXPECT_EQ(selected, line());
        EXPECT_EQ(componentColumn - 1, header().sortIndicatorSection());
        EXPECT_EQ(Qt::DescendingOrder, header().sortIndicatorOrder());
        EXPECT_TRUE(log().filterBar().isVisible());
        EXPECT_EQ(QStringLiteral("call"), text.text());
    };
    shown.window->action(Command::refresh).trigger();
    settle();
    expectSame("renewed");

    shown.showLog("KoNotify");
    const QStringList other = cells(componentColumn);
    EXPECT_LT(other.size(), shown.shownList().itemCount());
    EXPECT_FALSE(other.contains(QStringLiteral("RuleEngine")));
    EXPECT_TRUE(std::is_sorted(other.rbegin(), other.rend(), [](const auto& a, const auto& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    }));
    shown.showLog("KoCSMgr");
    table().goTo(model().rowOfPosition(selected.toUInt()));
    expectSame("come back to");

    shown.window->action(Command::showAll).trigger();
    EXPECT_EQ(shown.shownList().itemCount(), model().rowCount());
}

TEST_F(LogOrder, AValueThatTheNextLogHasNotIsStillTickedThere)
{
    log().filterBar().tick(componentColumn, "RuleEngine", false);
    const int rows = model().rowCount();
    ASSERT_GT(rows, 0);
    shown.showLog("KoNotify");
    const auto ofComponents = [&] {
        for (auto* button : log().filterBar().findChildren<FilterButton*>())
            if (button->column() == componentColumn) return button->condition().values;
        return std::vector<std::string>();
    };
    EXPECT_EQ(std::vector<std::string>{"RuleEngine"}, ofComponents());
    for (int row = 0; row < model().rowCount(); ++row)
        ASSERT_EQ(QStringLiteral("RuleEngine"), model().text(row, componentColumn));
    shown.showLog("KoCSMgr");
    EXPECT_EQ(rows, model().rowCount());
}

TEST_F(LogOrder, AFontOfAnotherSizeKeepsTheOrder)
{
    clickHeader(componentColumn);
    const QStringList rows = cells(1);
    shown.window->action(Command::largerText).trigger();
    EXPECT_EQ(rows, cells(1));
    EXPECT_EQ(componentColumn - 1, header().sortIndicatorSection());
}

TEST_F(LogOrder, GoToTimeFindsTheFirstLineOfTheLogsOrderInASortedLog)
{
    const QStringList times = cells(timeColumn);
    const QString time = times[times.size() / 2].left(8);
    table().goTo(0);
    log().goToTime(time);
    const QString expected = line();
    const int found = expected.toInt() - 1;
    ASSERT_GT(found, 0);
    EXPECT_GE(times[found], time);
    EXPECT_LT(times[found - 1], time) << "the first one in the log";
    for (const int sorted : {componentColumn, timeColumn}) {
        clickHeader(sorted);
        clickHeader(sorted);
        table().goTo(model().rowOfPosition(1));
        log().goToTime(time);
        EXPECT_EQ(expected, line()) << "sorted by " << sorted;
        EXPECT_TRUE(inSight());
    }
}

TEST_F(LogOrder, GoToTimeTakesATimeInTheWordsOfEveryLanguage)
{
    const QString time = cells(timeColumn)[cells(timeColumn).size() / 2];
    const QString hour = time.left(2);
    const QString minute = time.mid(3, 2);
    table().goTo(0);
    log().goToTime(hour + QLatin1Char(':') + minute);
    const QString expected = line();
    for (const QString& form : {QStringLiteral("%1h%2"), QStringLiteral("%1:%2 Uhr"),
                                QStringLiteral("%1時%2分"), QStringLiteral("%1 h %2 min")}) {
        table().goTo(0);
        log().goToTime(form.arg(hour, minute));
        EXPECT_EQ(expected, line()) << form.toStdString();
    }
}

TEST_F(LogOrder, MarksOfFilteredLinesAreKept)
{
    table().goTo(5);
    shown.window->action(Command::toggleBookmark).trigger();
    const QString marked = line();
    const std::string component(model().bytes(5, componentColumn));
    log().filterBar().tick(componentColumn, component, true);
    shown.window->action(Command::refresh).trigger();
    settle();
    shown.window->action(Command::showAll).trigger();
    shown.window->action(Command::nextBookmark).trigger();
    EXPECT_EQ(marked, line());
}

} // namespace

} // namespace desktop
