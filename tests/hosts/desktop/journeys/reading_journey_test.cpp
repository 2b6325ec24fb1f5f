#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace desktop {

namespace {

constexpr int sourceColumn = 3;
constexpr int componentColumn = 5;
constexpr int levelColumn = 6;

/// A large log under the eyes of a person who has keys alone.
struct ReadingJourney : testing::Test {
    ReadingJourney()
    {
        shown.showLog("KoCSMgr");
        shown.log().table().setFocus();
        for (int row = 0; row < model().rowCount(); ++row) {
            QStringList cells;
            for (int column = 1; column <= model().columnCount(); ++column)
                cells << model().text(row, column);
            lines << cells;
        }
    }

    LogView& log() { return shown.log(); }
    ListModel& model() { return log().model(); }
    int currentRow() { return log().table().currentIndex().row(); }
    const QStringList& current() { return lines[currentRow()]; }

    /// The rows of the whole log in which some column but the number holds a text.
    QList<int> rowsWith(const QString& text) const
    {
        return rowsWhere([&](const QStringList& cells) {
            for (qsizetype column = 1; column < cells.size(); ++column)
                if (cells[column].contains(text, Qt::CaseInsensitive)) return true;
            return false;
        });
    }

    QList<int> rowsWhere(const std::function<bool(const QStringList&)>& passes) const
    {
        QList<int> rows;
        for (int row = 0; row < lines.size(); ++row)
            if (passes(lines[row])) rows << row;
        return rows;
    }

    static bool has(const QStringList& cells, int column, const QString& value)
    {
        return cells[column - 1] == value;
    }

    QString hits()
    {
        for (auto* label : log().findBar().findChildren<QLabel*>())
            if (label->accessibleName() == QLatin1String("Hits")) return label->text();
        return {};
    }

    QString counts()
    {
        for (auto* label : log().filterBar().findChildren<QLabel*>())
            if (label->text().endsWith("rows")) return label->text();
        return {};
    }

    /// Expects that the rows on show are these of the whole log, in their order.
    void expectShown(const QList<int>& expected)
    {
        ASSERT_EQ(expected.size(), model().rowCount());
        for (int row = 0; row < expected.size(); ++row)
            ASSERT_EQ(lines[expected[row]][0], model().text(row, 1)) << "row " << row;
    }

    /// Opens the list of a column's values by its key, and ticks one of them.
    void tick(const char* title, const QString& value, bool hide)
    {
        FilterButton* found = nullptr;
        for (auto* button : log().filterBar().findChildren<FilterButton*>())
            if (button->text().startsWith(QLatin1String(title))) found = button;
        ASSERT_NE(nullptr, found) << title;
        // The menu of values runs until Escape.
        person::answerNextPopup([=](QWidget& popup) {
            auto* values = popup.findChild<QListWidget*>();
            for (int row = 0; row < values->count(); ++row)
                if (values->item(row)->data(Qt::UserRole).toString() == value)
                    values->setCurrentRow(row);
            person::press(Qt::Key_Space);
            if (hide) {
                popup.findChild<QCheckBox*>()->setFocus();
                person::press(Qt::Key_Space);
            }
            person::press(Qt::Key_Escape);
        });
        found->setFocus();
        person::press(Qt::Key_Space);
    }

    OpenProgram shown{60'000};
    QList<QStringList> lines; ///< cells of the whole log, by row
};

TEST_F(ReadingJourney, FindsAsOneTypesAndGoesThroughTheHits)
{
    ASSERT_GT(lines.size(), 5000);
    const QList<int> expected = rowsWith("greeting");
    ASSERT_GT(expected.size(), 20);
    const auto place = [&](qsizetype hit) {
        return QStringLiteral("%1 of %2")
            .arg(QLocale().toString(hit + 1), QLocale().toString(expected.size()));
    };
    person::press(QKeySequence("Ctrl+F"));
    person::type("greeting");
    EXPECT_EQ(expected[0], currentRow());
    EXPECT_EQ(place(0), hits());
    for (const int hit : {1, 2, 3}) {
        person::press(QKeySequence("F3"));
        EXPECT_EQ(expected[hit], currentRow());
        EXPECT_EQ(place(hit), hits());
    }
    person::press(Qt::Key_Return);
    EXPECT_EQ(expected[4], currentRow());
    person::press(QKeySequence("Shift+F3"));
    EXPECT_EQ(expected[3], currentRow());
    EXPECT_EQ(1, log().table().selectionModel()->selectedRows().size());
    person::press(QKeySequence("Shift+Return"));
    EXPECT_EQ(expected[2], currentRow());

    log().table().goTo(expected[0]);
    person::press(QKeySequence("Shift+F3"));
    EXPECT_EQ(expected.back(), currentRow()) << "past the top it goes on from the end";
    EXPECT_EQ(QStringLiteral("Went on from the end."),
              shown.window().statusBar()->currentMessage());
    person::press(QKeySequence("F3"));
    EXPECT_EQ(expected[0], currentRow());

    person::press(Qt::Key_Escape);
    EXPECT_FALSE(log().findBar().isVisible());
    EXPECT_TRUE(log().table().hasFocus());
    person::press(QKeySequence("F3"));
    EXPECT_EQ(expected[1], currentRow()) << "the text is kept for the next search";
}

TEST_F(ReadingJourney, SaysWhenThereIsNoHit)
{
    person::press(QKeySequence("Ctrl+F"));
    person::type("zzyzx");
    EXPECT_EQ(QStringLiteral("No hits"), hits());
    person::press(QKeySequence("F3"));
    EXPECT_EQ(QStringLiteral("\"zzyzx\" is not in these lines."),
              shown.window().statusBar()->currentMessage());
}

TEST_F(ReadingJourney, FindsAmongTheFilteredRowsAlone)
{
    person::press(QKeySequence("Ctrl+L"));
    tick("Component", "RuleEngine", false);
    const QList<int> rules =
        rowsWhere([&](const auto& cells) { return has(cells, componentColumn, "RuleEngine"); });
    expectShown(rules);
    person::press(QKeySequence("Ctrl+F"));
    person::type("forward");
    qsizetype expected = 0;
    for (const int row : rowsWith("forward")) expected += rules.contains(row);
    ASSERT_GT(expected, 0);
    EXPECT_TRUE(hits().endsWith("of " + QLocale().toString(expected))) << hits().toStdString();
    person::press(Qt::Key_Escape);
    person::press(QKeySequence("Ctrl+Shift+A"));
    EXPECT_EQ(lines.size(), model().rowCount());
}

TEST_F(ReadingJourney, FiltersByEachColumnToShowAndToHide)
{
    struct Case {
        const char* title;
        int column;
        QString value;
    };
    const Case cases[] = {
        {"Component", componentColumn, lines[0][componentColumn - 1]},
        {"Source", sourceColumn, lines[0][sourceColumn - 1]},
        {"Level", levelColumn, lines[0][levelColumn - 1]},
    };
    person::press(QKeySequence("Ctrl+L"));
    for (const auto& c : cases) {
        for (const bool hide : {false, true}) {
            SCOPED_TRACE(std::string(c.title) + (hide ? " hidden" : " shown"));
            tick(c.title, c.value, hide);
            const QList<int> expected =
                rowsWhere([&](const auto& cells) { return has(cells, c.column, c.value) != hide; });
            EXPECT_LT(expected.size(), lines.size());
            expectShown(expected);
            EXPECT_EQ(
                QStringLiteral("%1 of %2 rows")
                    .arg(QLocale().toString(expected.size()), QLocale().toString(lines.size())),
                counts());
            person::press(QKeySequence("Ctrl+Shift+A"));
            EXPECT_EQ(lines.size(), model().rowCount());
        }
    }
}

TEST_F(ReadingJourney, FiltersByTextToShowAndToHide)
{
    const QList<int> with = rowsWith("greeting");
    person::press(QKeySequence("Ctrl+L"));
    person::type("greeting");
    person::press(Qt::Key_Return);
    expectShown(with);
    person::clickButton(log().filterBar(), "hide matches");
    expectShown(
        rowsWhere([&](const QStringList& cells) { return !with.contains(cells[0].toInt() - 1); }));
    person::press(Qt::Key_Escape);
    EXPECT_FALSE(log().filterBar().isVisible());
    EXPECT_EQ(lines.size(), model().rowCount());
    EXPECT_TRUE(log().table().hasFocus());
}

TEST_F(ReadingJourney, ConditionsHoldTogetherAndTheCurrentLineStays)
{
    const QString level = "2";
    const QList<int> expected = rowsWhere([&](const auto& cells) {
        return has(cells, componentColumn, "CallFlow") && has(cells, levelColumn, level);
    });
    ASSERT_GT(expected.size(), 10);
    log().table().goTo(expected[7]);
    person::press(QKeySequence("Ctrl+L"));
    tick("Component", "CallFlow", false);
    tick("Level", level, false);
    expectShown(expected);
    EXPECT_EQ(7, currentRow());
    person::press(QKeySequence("Ctrl+Shift+A"));
    EXPECT_EQ(expected[7], currentRow());
}

TEST_F(ReadingJourney, CopiesTheFilteredRowsAsTextAndAsCsv)
{
    person::press(QKeySequence("Ctrl+L"));
    tick("Component", "RuleEngine", false);
    const QList<int> rules =
        rowsWhere([&](const auto& cells) { return has(cells, componentColumn, "RuleEngine"); });
    log().table().setFocus();
    person::press(QKeySequence("Ctrl+A"));
    person::press(QKeySequence("Ctrl+C"));
    const QStringList text = QGuiApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(rules.size(), text.size());
    for (qsizetype at = 0; at < rules.size(); ++at)
        ASSERT_TRUE(text[at].contains(lines[rules[at]].back().trimmed())) << at;
    EXPECT_EQ(QLocale::c().toString(static_cast<int>(rules.size())) + " rows copied.",
              shown.window().statusBar()->currentMessage().remove(','));

    person::press(QKeySequence("Ctrl+Shift+C"));
    const QStringList csv = QGuiApplication::clipboard()->text().split("\r\n", Qt::SkipEmptyParts);
    ASSERT_EQ(rules.size() + 1, csv.size());
    EXPECT_EQ(QStringLiteral("#,Timestamp,Source,Trace No.,Component,Level,Trace"), csv.front());
    for (qsizetype at = 0; at < rules.size(); ++at) {
        const QStringList& cells = lines[rules[at]];
        QString trace = cells.back();
        if (trace.contains(',') || trace.contains('"'))
            trace = '"' + trace.replace("\"", "\"\"") + '"';
        ASSERT_EQ(cells.mid(0, 6).join(',') + ',' + trace, csv[at + 1]);
    }
}

TEST_F(ReadingJourney, ARenewedLogStaysOnShowAtItsLine)
{
    log().table().goTo(500);
    const std::string file = shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr");
    std::ofstream(file, std::ios::app) << "17:59:59:001,Conv,1,X,2,one line more\r\n";
    person::press(QKeySequence("F5"));
    EXPECT_TRUE(shown.pane().logShown());
    EXPECT_EQ(lines.size() + 1, model().rowCount());
    EXPECT_EQ(500, currentRow());
}

TEST_F(ReadingJourney, GoesToATime)
{
    const QString time = lines[lines.size() / 2][1];
    person::press(QKeySequence("Ctrl+G"));
    person::type(time.left(8));
    person::press(Qt::Key_Return);
    EXPECT_TRUE(current()[1].startsWith(time.left(8))) << current()[1].toStdString();
    person::press(QKeySequence("Ctrl+A"));
    person::type("noon");
    person::press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Type a time such as 15:23"), hits());
}

} // namespace

} // namespace desktop
