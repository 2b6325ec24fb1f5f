#include "backends/odbc/recordset.h"

#include <gtest/gtest.h>

namespace {

TEST(QueryWithoutOrder, LosesTheOrderOfItsRowsAlone)
{
    EXPECT_EQ("SELECT Name FROM v", withoutOrder("SELECT Name FROM v ORDER BY Name"));
    EXPECT_EQ("SELECT Name FROM v", withoutOrder("SELECT Name FROM v order\n  by Name DESC"));
    EXPECT_EQ("SELECT Name FROM v", withoutOrder("SELECT Name FROM v"));
}

TEST(QueryWithoutOrder, KeepsWhatOnlyLooksLikeOne)
{
    for (const char* query :
         {"SELECT Name FROM v WHERE Name = 'ORDER BY'", "SELECT \"ORDER BY\" FROM v",
          "SELECT * FROM (SELECT TOP 1 Name FROM v ORDER BY Name) a", "SELECT reorder by FROM v",
          "SELECT order FROM v", "SELECT border BY FROM v",
          "SELECT Name FROM v WHERE x = 'it''s "
          "ORDER BY'",
          "ORDER BYTE", "ORDER", "'ORDER BY"})
        EXPECT_EQ(query, withoutOrder(query));
}

} // namespace
