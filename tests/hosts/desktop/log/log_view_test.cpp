#include "hosts/desktop/log/log_view.h"

#include "console/list_view.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/support/test_window.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <fstream>

namespace desktop {

namespace {

QLineEdit& field(QWidget& bar, const char* accessibleName)
{
    for (auto* edit : bar.findChildren<QLineEdit*>())
        if (edit->accessibleName() == QLatin1String(accessibleName)) return *edit;
    throw std::runtime_error(accessibleName);
}

QString hits(LogView& log)
{
    for (auto* label : log.findBar().findChildren<QLabel*>())
        if (label->accessibleName() == QLatin1String("Hits")) return label->text();
    return {};
}

int currentRow(LogView& log)
{
    return log.table().currentIndex().row();
}

/// Rows whose text in some column holds `text`, counted without the code under test.
int rowsWith(ListModel& model, const QString& text)
{
    int count = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 2; column <= model.columnCount(); ++column)
            if (model.text(row, column).contains(text, Qt::CaseInsensitive)) {
                ++count;
                break;
            }
    return count;
}

struct OpenLog : TestWindow {
    OpenLog() { showLog("KoCSMgr"); }
};

TEST(LogView, FindsAsThePersonTypesAndCountsTheHits)
{
    OpenLog shown;
    LogView& log = shown.log();
    shown.window->action(Command::find).trigger();
    QLineEdit& text = field(log.findBar(), "Text to find");
    EXPECT_TRUE(log.findBar().isVisible());

    QTest::keyClicks(&text, "ruleEngine");
    const int count = rowsWith(log.model(), "RuleEngine");
    ASSERT_GT(count, 3);
    EXPECT_EQ(QStringLiteral("1 of %1").arg(QLocale().toString(count)), hits(log));
    const int first = currentRow(log);
    EXPECT_EQ(QStringLiteral("RuleEngine"), log.model().text(first, 5));

    shown.window->action(Command::findNext).trigger();
    EXPECT_GT(currentRow(log), first);
    EXPECT_EQ(QStringLiteral("2 of %1").arg(QLocale().toString(count)), hits(log));
    shown.window->action(Command::findPrevious).trigger();
    EXPECT_EQ(first, currentRow(log));
    shown.window->action(Command::findPrevious).trigger();
    EXPECT_EQ(QStringLiteral("%1 of %1").arg(QLocale().toString(count)), hits(log))
        << "from the top it goes on from the end";

    text.setText("no such text");
    EXPECT_EQ(QStringLiteral("No hits"), hits(log));
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_FALSE(log.findBar().isVisible());
}

TEST(LogView, FindsByAnExpressionAndSaysWhatIsWrongWithOne)
{
    OpenLog shown;
    LogView& log = shown.log();
    shown.window->action(Command::find).trigger();
    field(log.findBar(), "Text to find").setText("^Rule(Engine|s)$");
    EXPECT_EQ(QStringLiteral("No hits"), hits(log));
    auto* expression = log.findBar().findChild<QCheckBox*>("expression");
    ASSERT_NE(nullptr, expression);
    expression->setChecked(true);
    EXPECT_EQ(QStringLiteral("RuleEngine"), log.model().text(currentRow(log), 5));
    field(log.findBar(), "Text to find").setText("(");
    EXPECT_TRUE(hits(log).contains("(")) << hits(log).toStdString();
    EXPECT_TRUE(log.overview().rows(OverviewMark::hit).empty());
}

TEST(LogView, GoesFromErrorToErrorAndFromWarningToWarning)
{
    OpenLog shown;
    LogView& log = shown.log();
    const std::vector<int> warnings = log.overview().rows(OverviewMark::warning);
    ASSERT_GT(warnings.size(), 1U);
    log.table().goTo(warnings[0]);
    log.nextWarning();
    EXPECT_EQ(warnings[1], currentRow(log));
    log.previousWarning();
    log.previousWarning();
    EXPECT_EQ(warnings.back(), currentRow(log)) << "on from the end";

    log.filterBar().tick(6, "7", false);
    QString said;
    QObject::connect(&log, &LogView::said, [&](const QString& sentence) { said = sentence; });
    log.nextError();
    EXPECT_EQ(QStringLiteral("No line on show tells of an error."), said);
}

TEST(LogView, KeepsTextsMarkedInColoursUntilTheyAreLetGo)
{
    OpenLog shown;
    LogView& log = shown.log();
    const auto kept = [&] {
        int buttons = 0;
        for (auto* button : log.findBar().findChildren<QToolButton*>())
            if (button->accessibleName().endsWith("no more") && button->isVisible()) ++buttons;
        return buttons;
    };
    shown.window->action(Command::highlight).trigger();
    EXPECT_EQ(QStringLiteral("Type the text to keep marked"), hits(log));
    QLineEdit& text = field(log.findBar(), "Text to find");
    for (const char* word : {"call", "rule", "rule"}) {
        text.setText(word);
        shown.window->action(Command::highlight).trigger();
        settle();
    }
    EXPECT_EQ(2, kept()) << "a text is kept once";
    for (auto* button : log.findBar().findChildren<QToolButton*>())
        if (button->accessibleName() == QLatin1String("Mark call no more")) button->click();
    settle();
    EXPECT_EQ(1, kept());
}

TEST(LogView, InANarrowWindowTheTraceHasItsShareAndAPersonsColumnsStay)
{
    TestWindow shown(4000, LogFields::extended);
    shown.window->resize(800, 600);
    shown.showLog("KoCSMgr");
    ListTable& table = shown.log().table();
    const int trace = table.model()->columnCount() - 1;
    EXPECT_GE(table.viewport()->width() - table.columnViewportPosition(trace),
              table.viewport()->width() / 3);
    EXPECT_TRUE(table.isColumnHidden(6)) << "the thread is spared first";
    EXPECT_FALSE(table.isColumnHidden(1));

    shown.window->resize(1900, 900);
    settle();
    EXPECT_FALSE(table.isColumnHidden(6));

    QMenu menu;
    table.offerColumns(menu);
    menu.actions().at(4)->trigger();
    shown.window->resize(800, 600);
    settle();
    EXPECT_TRUE(table.isColumnHidden(4));
    EXPECT_FALSE(table.isColumnHidden(6)) << "the person has said what to see";
}

TEST(LogView, FiltersByTextAndComesBackToTheCurrentRow)
{
    OpenLog shown;
    LogView& log = shown.log();
    const int all = log.model().rowCount();
    log.table().goTo(all / 2);
    const QString line = log.model().text(all / 2, 1);

    shown.window->action(Command::filter).trigger();
    QLineEdit& text = field(log.filterBar(), "Filter by text");
    QTest::keyClicks(&text, "callflow");
    QTest::keyClick(&text, Qt::Key_Return);
    const int shownRows = log.model().rowCount();
    EXPECT_LT(shownRows, all);
    EXPECT_EQ(shownRows, rowsWith(log.model(), "CallFlow"));

    shown.window->action(Command::showAll).trigger();
    EXPECT_EQ(all, log.model().rowCount());
    log.table().goTo(log.model().rowOfPosition(static_cast<std::uint32_t>(line.toUInt())));
    EXPECT_EQ(line, log.model().text(currentRow(log), 1));
}

/// The rows of a log of which some are hidden when only one component is shown.
struct FilteredLog : OpenLog {
    static constexpr int number = 1;
    static constexpr int component = 5;

    FilteredLog()
    {
        const ListModel& model = log().model();
        for (int row = 0; row < model.rowCount(); ++row)
            (isOfEngine(row) ? kept : hidden).push_back(lineAt(row));
    }

    bool isOfEngine(int row)
    {
        return log().model().text(row, component) == QLatin1String("RuleEngine");
    }

    int lineAt(int row) { return log().model().text(row, number).toInt(); }
    int currentLine() { return currentRow(log()) < 0 ? -1 : lineAt(currentRow(log())); }
    bool currentIsSeen()
    {
        ListTable& table = log().table();
        return table.viewport()->rect().contains(table.visualRect(table.currentIndex()).center());
    }
    void goToLine(int line)
    {
        log().table().goTo(log().model().rowOfPosition(static_cast<std::uint32_t>(line)));
    }
    void showEngine() { log().filterBar().tick(component, "RuleEngine", false); }
    void showAll() { window->action(Command::showAll).trigger(); }

    std::vector<int> kept;   ///< lines that the filter shows
    std::vector<int> hidden; ///< lines that it hides
};

TEST(LogView, AFilterThatHidesTheCurrentRowGoesToTheNextOneThatItShows)
{
    FilteredLog shown;
    ASSERT_GT(shown.kept.size(), 60U) << "more than a screen";
    const int before = shown.kept[50];
    const int next = shown.kept[51];
    ASSERT_GT(next, before + 1) << "lines between them are hidden";
    shown.goToLine(before + 1);
    shown.showEngine();
    EXPECT_EQ(next, shown.currentLine());
    EXPECT_TRUE(shown.currentIsSeen());
    shown.showAll();
    EXPECT_EQ(next, shown.currentLine());
    EXPECT_TRUE(shown.currentIsSeen());
}

TEST(LogView, AFilterThatHidesEveryRowLosesNoPlace)
{
    FilteredLog shown;
    const int line = shown.hidden[shown.hidden.size() / 2];
    shown.goToLine(line);
    QLineEdit& text = field(shown.log().filterBar(), "Filter by text");
    text.setText("no such text");
    QTest::keyClick(&text, Qt::Key_Return);
    ASSERT_EQ(0, shown.log().model().rowCount());
    shown.showAll();
    EXPECT_EQ(line, shown.currentLine());
    EXPECT_TRUE(shown.currentIsSeen());
}

TEST(LogView, ShowsOrHidesAComponentOfItsRows)
{
    OpenLog shown;
    LogView& log = shown.log();
    const int all = log.model().rowCount();
    log.filterBar().tick(5, "RuleEngine", false);
    const int engine = log.model().rowCount();
    ASSERT_GT(engine, 0);
    for (int row = 0; row < engine; ++row)
        ASSERT_EQ(QStringLiteral("RuleEngine"), log.model().text(row, 5));

    log.filterBar().tick(5, "RuleEngine", true);
    EXPECT_EQ(all - engine, log.model().rowCount());
    emit log.filterBar().closed();
    EXPECT_EQ(all, log.model().rowCount());
}

TEST(LogView, GoesToATimeAndSaysWhenThereIsNone)
{
    OpenLog shown;
    LogView& log = shown.log();
    const int wanted = log.model().rowCount() / 3;
    const QString time = log.model().text(wanted, 2);
    shown.window->action(Command::goToTime).trigger();
    QLineEdit& text = field(log.findBar(), "Time to go to");
    QTest::keyClicks(&text, time);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(time, log.model().text(currentRow(log), 2));

    text.setText("tomorrow");
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Type a time such as 15:23"), hits(log));
}

TEST(LogView, MarksLinesAndKeepsTheMarksForTheNextTime)
{
    OpenLog shown;
    LogView* log = &shown.log();
    log->table().goTo(5);
    shown.window->action(Command::toggleBookmark).trigger();
    log->table().goTo(20);
    shown.window->action(Command::toggleBookmark).trigger();
    EXPECT_FALSE(log->model().index(5, 0).data(Qt::DecorationRole).isNull());
    EXPECT_TRUE(log->model().index(6, 0).data(Qt::DecorationRole).isNull());

    shown.reopen();
    shown.showLog("KoCSMgr");
    log = &shown.log();
    log->table().goTo(0);
    shown.window->action(Command::nextBookmark).trigger();
    EXPECT_EQ(5, currentRow(*log));
    shown.window->action(Command::nextBookmark).trigger();
    EXPECT_EQ(20, currentRow(*log));
    shown.window->action(Command::nextBookmark).trigger();
    EXPECT_EQ(5, currentRow(*log));
    shown.window->action(Command::previousBookmark).trigger();
    EXPECT_EQ(20, currentRow(*log));
    shown.window->action(Command::clearBookmarks).trigger();
    EXPECT_TRUE(log->model().index(5, 0).data(Qt::DecorationRole).isNull());
}

TEST(LogView, TintsErrorsAndWarningsAndSaysSoByASignToo)
{
    OpenLog shown;
    ListModel& model = shown.log().model();
    int errors = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString level = model.text(row, 6);
        const bool told = (level == "0" || level == "1") && !model.bytes(row, 5).empty();
        if (told) ++errors;
        ASSERT_EQ(told, !model.index(row, 6).data(Qt::BackgroundRole).isNull()) << row;
        ASSERT_EQ(told, !model.index(row, 5).data(Qt::DecorationRole).isNull()) << row;
    }
    EXPECT_GT(errors, 0);
}

TEST(LogView, ShowsAllOfTheCurrentLineBelow)
{
    TestWindow shown(4000, LogFields::extended);
    shown.showLog("KoCSMgr");
    LogView& log = shown.log();
    ASSERT_EQ(10, log.model().columnCount());
    int row = 0;
    while (row < log.model().rowCount() && log.model().bytes(row, 9).empty()) ++row;
    ASSERT_LT(row, log.model().rowCount()) << "the sample has lines with a call id";
    log.table().goTo(row);
    const auto* trace = log.findChild<QPlainTextEdit*>();
    EXPECT_EQ(log.model().text(row, 10), trace->toPlainText());
    QString fields;
    for (auto* label : log.findChildren<QLabel*>())
        if (label->accessibleName() == QLatin1String("Fields of the line")) fields = label->text();
    EXPECT_TRUE(fields.contains(log.model().text(row, 9))) << "the call id";
    EXPECT_TRUE(fields.contains(log.model().text(row, 8))) << "the port";

    shown.window->action(Command::details).trigger();
    EXPECT_FALSE(log.detailsShown());
}

TEST(LogView, ShowsALineOfNoKnownFormAsItIsBelowAndCopiesIt)
{
    const QString line = QStringLiteral("2005-10-08 22:23:07,Data,12,disk full");
    TestWindow shown;
    std::ofstream(shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr"))
        << line.toStdString() << "\r\n15:23:07:123,Conv,1234,CallFlow,7,Call answered\r\n";
    shown.showLog("KoCSMgr");
    LogView& log = shown.log();
    ASSERT_EQ(2, log.model().rowCount());
    const auto* below = log.findChild<QPlainTextEdit*>();

    log.table().goTo(0);
    EXPECT_EQ(line, below->toPlainText());
    EXPECT_EQ(QString(), log.model().text(0, 7)) << "the row itself stays blank";
    shown.window->action(Command::copy).trigger();
    EXPECT_EQ(line + '\n', QGuiApplication::clipboard()->text());

    log.table().goTo(1);
    EXPECT_EQ(QStringLiteral("Call answered "), below->toPlainText());
}

TEST(LogView, ALogThatShrankIsReadAnewByRefresh)
{
    OpenLog shown;
    const int all = shown.log().model().rowCount();
    std::filesystem::resize_file(shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr"),
                                 2000);
    shown.window->action(Command::refresh).trigger();
    EXPECT_TRUE(shown.pane().logShown()) << "though a refresh renews the logs' nodes";
    EXPECT_LT(shown.log().model().rowCount(), all);
    EXPECT_EQ(shown.shownList().itemCount(), shown.log().model().rowCount());
    EXPECT_TRUE(shown.window->problem().isEmpty());
}

TEST(LogView, HidesColumnsByTheViewMenuAndRemembersThem)
{
    TestWindow shown;
    shown.window->resize(1180, 760);
    shown.showLog("KoCSMgr");
    ListTable* table = &shown.log().table();
    const int width = table->columnWidth(1);
    const int trace = table->model()->columnCount() - 1;
    auto* columns = shown.window->findChild<QMenu*>("columns");
    ASSERT_NE(nullptr, columns);
    const auto click = [&](int column) {
        emit columns->aboutToShow();
        columns->actions().at(column)->trigger();
    };
    click(0);
    click(1);
    EXPECT_TRUE(table->isColumnHidden(0));
    EXPECT_TRUE(table->isColumnHidden(1));
    EXPECT_EQ(trace, columns->actions().size()) << "the trace itself stays";
    table->setColumnWidth(2, 133);
    table->goTo(200);
    EXPECT_TRUE(table->viewport()->rect().intersects(table->visualRect(table->currentIndex())))
        << "the current line can still be gone to";

    shown.reopen();
    shown.window->resize(1180, 760);
    shown.showLog("KoCSMgr");
    table = &shown.log().table();
    EXPECT_TRUE(table->isColumnHidden(1));
    EXPECT_EQ(133, table->columnWidth(2));
    columns = shown.window->findChild<QMenu*>("columns");
    click(1);
    EXPECT_FALSE(table->isColumnHidden(1));
    EXPECT_EQ(width, table->columnWidth(1));
    EXPECT_TRUE(table->isColumnHidden(0));
}

TEST(LogView, ShowsTheTraceBesideTwoHiddenColumnsInAWindowOf800By600)
{
    TestWindow shown;
    shown.window->resize(800, 600);
    shown.showLog("KoCSMgr");
    settle();
    ListTable& table = shown.log().table();
    QMenu columns;
    table.offerColumns(columns);
    for (const int column : {2, 3}) columns.actions().at(column)->setChecked(false);
    const int trace = table.model()->columnCount() - 1;
    EXPECT_GE(table.viewport()->width() - table.columnViewportPosition(trace), 150);
}

} // namespace

} // namespace desktop
