#include "hosts/common/filters/row_filter.h"

#include "runtime/run_time_error.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace {

using timeline::Column;

TEST(RowFilter, HidesAndShowsValuesOfAColumn)
{
    RowFilter filter;
    EXPECT_TRUE(filter.passesAll());
    filter.show(Column::component, "A", false);
    filter.show(Column::component, "B", false);
    EXPECT_FALSE(filter.shows(Column::component, "A"));
    EXPECT_TRUE(filter.shows(Column::component, "C"));
    EXPECT_TRUE(filter.shows(Column::process, "A"));
    filter.show(Column::component, "A", true);
    EXPECT_TRUE(filter.shows(Column::component, "A"));
    filter.show(Column::component, "B", true);
    EXPECT_TRUE(filter.passesAll());
}

TEST(RowFilter, ShowsOneValueAloneAndOthersBesideIt)
{
    RowFilter filter;
    filter.show(Column::component, "A", false);
    filter.showOnly(Column::component, "B");
    EXPECT_FALSE(filter.shows(Column::component, "C"));
    filter.show(Column::component, "C", true);
    EXPECT_TRUE(filter.shows(Column::component, "C"));
    filter.show(Column::component, "B", false);
    filter.show(Column::component, "C", false);
    EXPECT_FALSE(filter.shows(Column::component, "B"));
    EXPECT_FALSE(filter.passesAll()) << "no value is chosen, which shows nothing";
    filter.clear(Column::component);
    EXPECT_TRUE(filter.passesAll());
}

TEST(RowFilter, OfNoValueTakesNoRow)
{
    RowFilter filter;
    filter.showOnly(Column::component, "B");
    filter.show(Column::component, "B", false);
    timeline::Record record;
    record.hasForm = true;
    record.component = "B";
    EXPECT_FALSE(timeline::Filter(filter.choice()).takesFields(record));
}

TEST(RowFilter, ComesBackFromAFileAsItWas)
{
    RowFilter filter;
    filter.show(Column::component, "Sch\u00f6n", false);
    filter.showOnly(Column::level, "0-1");
    filter.texts = {{"a.*b", true, true, false}, {"ping", false, false, true}};
    filter.since = 1740000000123;
    filter.until = timeline::noMoment + 1;
    filter.macroTrace = "Call Flow - Transfers";
    filter.macroLevels = {{"CallFlow", {1, -99}}};
    const QByteArray file = QJsonDocument(filter.toJson()).toJson();
    const RowFilter read = RowFilter::ofJson(QJsonDocument::fromJson(file).object());
    EXPECT_EQ(filter.toJson(), read.toJson());
    EXPECT_FALSE(read.shows(Column::component, "Sch\u00f6n"));
    EXPECT_EQ(filter.texts, read.texts);
    EXPECT_EQ(filter.since, read.since);
    EXPECT_EQ(filter.until, read.until);
    EXPECT_EQ(-99, read.macroLevels.at(0).levels.at(1));
    EXPECT_TRUE(RowFilter::ofJson({}).passesAll());
}

TEST(RowFilter, RefusesWhatIsNone)
{
    const char* const files[] = {
        R"({"columns": 5})",
        R"({"columns": [{"column": "weather"}]})",
        R"({"columns": [{"column": "level", "values": ["three"]}]})",
        R"({"texts": [{"text": "(", "expression": true}]})",
        R"({"texts": [{"text": 5}]})",
        R"({"since": "noon"})",
    };
    for (const char* file : files) {
        SCOPED_TRACE(file);
        EXPECT_THROW(RowFilter::ofJson(QJsonDocument::fromJson(file).object()), RunTimeError);
    }
}

} // namespace
