#include "backends/jet/schema/schema.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

using jet::ColumnType;

namespace {

TEST(ParseSchema, ReadsTablesColumnsAndRules)
{
    const auto schema = jet::parseSchema("# a remark\n"
                                         "created 2005-10-08 12:00:00\n"
                                         "table tblOne\r\n"
                                         "column Name  text 50   # of a person\n"
                                         "column Note  memo no-zero-length\n"
                                         "\n"
                                         "table tblTwo\n"
                                         "column Level integer required default -99\n"
                                         "column Count long");
    EXPECT_EQ(38633.5, schema.created.days);
    ASSERT_EQ(2u, schema.tables.size());
    const auto& one = schema.tables[0];
    EXPECT_EQ("tblOne", one.name);
    ASSERT_EQ(2u, one.columns.size());
    EXPECT_EQ("Name", one.columns[0].name);
    EXPECT_EQ(ColumnType::text, one.columns[0].type);
    EXPECT_EQ(100, one.columns[0].length);
    EXPECT_TRUE(one.columns[0].allowZeroLength);
    EXPECT_TRUE(one.columns[0].compressed);
    EXPECT_EQ(ColumnType::memo, one.columns[1].type);
    EXPECT_FALSE(one.columns[1].allowZeroLength);
    const auto& two = schema.tables[1];
    EXPECT_EQ(ColumnType::integer, two.columns[0].type);
    EXPECT_TRUE(two.columns[0].required);
    EXPECT_FALSE(two.columns[1].required);
    EXPECT_EQ("-99", two.columns[0].defaultValue);
    EXPECT_EQ(ColumnType::longInteger, two.columns[1].type);
    EXPECT_TRUE(two.columns[1].fixed);
}

TEST(ParseSchema, RefusesALineThatSaysSomethingElse)
{
    struct Case {
        const char* because;
        const char* text;
    };
    const Case cases[] = {
        {"an item that does not exist", "index Name"},
        {"a table without a name", "table"},
        {"a name that an index can't sort", "table tbl-One"},
        {"a name that is too long",
         "table xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"},
        {"a column before the first table", "column Name text 50"},
        {"a column without a type", "table t\ncolumn Name"},
        {"a type that does not exist", "table t\ncolumn Name blob"},
        {"a text without a length", "table t\ncolumn Name text"},
        {"a text of no characters", "table t\ncolumn Name text 0"},
        {"a text longer than the format's longest", "table t\ncolumn Name text 256"},
        {"a length that is no number", "table t\ncolumn Name text 5x"},
        {"a rule that does not exist", "table t\ncolumn Name text 5 unique"},
        {"a rule for texts on a number", "table t\ncolumn Name long no-zero-length"},
        {"a default without a value", "table t\ncolumn Name long default"},
        {"no moment", "created yesterday noon"},
        {"a moment cut short", "created 2024-01-02"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(5, errorOf([&] { jet::parseSchema(c.text); }));
    }
}

TEST(ParseSchema, NamesTheLine)
{
    const std::string text = errorTextOf([] { jet::parseSchema("table t\n\ncolumn Name blob\n"); });
    EXPECT_NE(std::string::npos, text.find("line 3")) << text;
}

} // namespace
