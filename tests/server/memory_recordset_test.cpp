#include "server/memory_recordset.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

MemoryRecordset twoColumns()
{
    MemoryRecordset table;
    table.append("name", 5);
    table.append("fullName", 8);
    table.open();
    return table;
}

void add(MemoryRecordset& table, const std::string& name, const std::string& fullName)
{
    table.addNew();
    table.set("name", name);
    table.set("fullName", fullName);
    table.update();
}

TEST(MemoryRecordset, PadsATextToTheColumnsLengthAndCutsALongerOne)
{
    auto table = twoColumns();
    add(table, "abcdefg", "x");
    EXPECT_EQ("abcde", table.field("name"));
    EXPECT_EQ("x       ", table.field("FULLNAME"));
}

TEST(MemoryRecordset, SortsWithoutRegardToCaseAndKeepsTheOrderOfEqualRows)
{
    auto table = twoColumns();
    add(table, "3", "beta");
    add(table, "1", "Alpha");
    add(table, "2", "BETA");
    table.sort("fullName");
    std::string order;
    for (table.moveFirst(); !table.atEnd(); table.moveNext()) order += table.field("name")[0];
    EXPECT_EQ("132", order);
}

TEST(MemoryRecordset, IsUsableWithoutRows)
{
    auto table = twoColumns();
    table.sort("fullName");
    table.moveFirst();
    EXPECT_TRUE(table.atEnd());
    EXPECT_EQ(0, table.recordCount());
    EXPECT_EQ(3021, errorOf([&] { table.field("name"); }));
    EXPECT_EQ(3021, errorOf([&] { table.moveNext(); }));
}

TEST(MemoryRecordset, RefusesCallsOutOfOrder)
{
    MemoryRecordset table;
    table.append("name", 5);
    EXPECT_EQ(3704, errorOf([&] { table.addNew(); }));
    table.open();
    EXPECT_EQ(3705, errorOf([&] { table.open(); }));
    EXPECT_EQ(3705, errorOf([&] { table.append("late", 1); }));
    EXPECT_EQ(3021, errorOf([&] { table.update(); }));
    EXPECT_EQ(3265, errorOf([&] { table.sort("other"); }));
    table.addNew();
    EXPECT_EQ(3265, errorOf([&] { table.set("other", "x"); }));
}

} // namespace
