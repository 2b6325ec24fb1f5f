#include "hosts/desktop/log/filter_bar.h"

#include "hosts/common/filters/saved_filters.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"
#include "runtime/run_time_error.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

#include <gtest/gtest.h>

namespace desktop {

namespace {

using timeline::Column;

/// A log with the extended fields on show.
struct FilterBarTest : testing::Test {
    FilterBarTest() : shown(4000, LogFields::extended) { shown.showLog("KoCSMgr"); }

    FilterBar& bar() { return shown.log().filterBar(); }
    ListModel& model() { return shown.log().model(); }
    int rows() { return model().rowCount(); }

    /// Rows that a rule takes, counted over all of the log.
    template <typename Rule>
    int counted(Rule rule)
    {
        bar().reset();
        int count = 0;
        for (int row = 0; row < rows(); ++row)
            if (rule(row)) ++count;
        return count;
    }

    TestWindow shown;
};

constexpr int sourceColumn = 3;
constexpr int numberColumn = 4;
constexpr int componentColumn = 5;
constexpr int levelColumn = 6;
constexpr int callColumn = 9;
constexpr int traceColumn = 10;

TEST_F(FilterBarTest, TakesTheValuesOfEveryColumnButTheNumber)
{
    EXPECT_FALSE(bar().offersColumn(1));
    for (const int column : {2, numberColumn, 7, 8, callColumn, traceColumn}) {
        SCOPED_TRACE(column);
        int row = rows() / 2;
        while (model().bytes(row, column).empty()) ++row;
        const std::string value(model().bytes(row, column));
        const int expected = counted([&](int at) { return model().bytes(at, column) == value; });
        bar().tick(column, value, false);
        EXPECT_EQ(expected, rows());
    }
    EXPECT_TRUE(bar().asksForMore()) << "a trace is nothing that saved filters have";
}

TEST_F(FilterBarTest, OffersFurtherColumnsInAMenuAndLooksAmongManyValues)
{
    bar().offerColumns();
    settle();
    QMenu* menu = nullptr;
    for (auto* candidate : bar().findChildren<QMenu*>())
        if (candidate->isVisible()) menu = candidate;
    ASSERT_NE(nullptr, menu);
    QAction* calls = nullptr;
    for (auto* entry : menu->actions())
        if (entry->text() == QLatin1String("Call ID")) calls = entry;
    ASSERT_NE(nullptr, calls);
    calls->trigger();
    menu->close();
    settle();
    FilterButton* button = nullptr;
    for (auto* candidate : bar().findChildren<FilterButton*>())
        if (candidate->column() == callColumn) button = candidate;
    ASSERT_NE(nullptr, button);
    auto* list = button->menu()->findChild<QListWidget*>();
    auto* search = button->menu()->findChild<QLineEdit*>();
    ASSERT_GT(list->count(), 12);
    const QString value = list->item(5)->text().section(QStringLiteral("   ("), 0, 0);
    search->setText(value);
    ASSERT_EQ(1, list->count());
    const int expected = counted([&](int row) { return model().text(row, callColumn) == value; });
    search->setText(value);
    list->item(0)->setCheckState(Qt::Checked);
    EXPECT_EQ(expected, rows());
    search->clear();
    EXPECT_EQ(value, button->condition().values.at(0).c_str()) << "it stays ticked";
    button->menu()->close();
}

TEST_F(FilterBarTest, TakesAnExpressionAndSaysWhatIsWrongWithOne)
{
    RowFilter filter;
    filter.texts = {{"^Rule(Engine|s)$", true, false, false}};
    const int expected = counted([&](int row) {
        return model().text(row, sourceColumn) == QLatin1String("Rules") ||
               model().text(row, componentColumn) == QLatin1String("RuleEngine");
    });
    ASSERT_GT(expected, 0);
    bar().take(filter);
    EXPECT_EQ(expected, rows());

    QString said;
    QObject::connect(&shown.log(), &LogView::said, [&](const QString& text) { said = text; });
    filter.texts = {{"(", true, false, false}};
    bar().take(filter);
    EXPECT_EQ(shown.shownList().itemCount(), rows());
    EXPECT_TRUE(said.contains('(')) << said.toStdString();
}

TEST_F(FilterBarTest, TakesWhatWasSavedInTheViewer)
{
    RowFilter filter;
    filter.columns = {{Column::level, {"0-2"}, false}, {Column::component, {"ruleENGINE"}, true}};
    filter.texts = {{"e", false, false, false}, {"port", false, false, true}};
    const auto holds = [&](int row, const QString& text) {
        for (int column = 2; column <= traceColumn; ++column)
            if (model().text(row, column).contains(text, Qt::CaseInsensitive)) return true;
        return model().note(row).contains(text, Qt::CaseInsensitive);
    };
    const int expected = counted([&](int row) {
        const QString level = model().text(row, levelColumn);
        return (level == "0" || level == "1" || level == "2") &&
               model().text(row, componentColumn) != QLatin1String("RuleEngine") &&
               holds(row, "e") && !holds(row, "port");
    });
    ASSERT_GT(expected, 0);
    bar().take(filter);
    EXPECT_EQ(expected, rows());
    EXPECT_TRUE(FilterBar::holdsWhole(filter));

    const RowFilter asked = bar().asked();
    EXPECT_EQ(filter.texts, asked.texts);
    EXPECT_FALSE(asked.shows(Column::level, "3"));
    EXPECT_FALSE(asked.shows(Column::component, "RuleEngine"));

    filter.since = 0;
    EXPECT_FALSE(FilterBar::holdsWhole(filter));
    bar().take(filter);
    EXPECT_EQ(filter.since, bar().asked().since) << "saved again it is not lost";
    bar().reset();
    EXPECT_TRUE(bar().asked().passesAll());
}

TEST_F(FilterBarTest, ShowsWhatAMacroTraceTurnsOn)
{
    RowFilter filter;
    filter.macroTrace = "Call Flow - Rules";
    filter.macroLevels = {{"RuleEngine", {3, 4}}};
    const int expected = counted([&](int row) {
        const QString level = model().text(row, levelColumn);
        return model().text(row, componentColumn) == QLatin1String("RuleEngine") &&
               (level == "3" || level == "4");
    });
    ASSERT_GT(expected, 0);
    bar().take(filter);
    EXPECT_EQ(expected, rows());
}

} // namespace

} // namespace desktop
