#include "hosts/cli/reading/table_fit.h"

#include <gtest/gtest.h>

namespace cli {
namespace {

using Texts = std::vector<std::string>;

std::vector<KnownColumn> mergedColumns()
{
    return {
        {RowColumn::moment, "Moment", 23, {}},       {RowColumn::process, "Process", 11, {}},
        {RowColumn::source, "Source", 7, {}},        {RowColumn::traceNumber, "Trace No.", 4, {}},
        {RowColumn::component, "Component", 12, {}}, {RowColumn::level, "Level", 2, {}},
        {RowColumn::trace, "Trace", 0, {}}};
}

KnownColumn& columnOf(std::vector<KnownColumn>& columns, RowColumn column)
{
    for (KnownColumn& each : columns)
        if (each.column == column) return each;
    throw std::out_of_range("no such column");
}

/// "Moment:23 Process:11 Trace", with "~" behind a width that cells are cut to.
std::string shown(const FittedTable& table)
{
    std::string text;
    for (const auto& column : table.columns) {
        if (!text.empty()) text += ' ';
        text += column.header;
        if (column.column != RowColumn::trace)
            text += ":" + std::to_string(column.width) + (column.cut ? "~" : "");
    }
    return text;
}

std::size_t traceRoom(const FittedTable& table, std::size_t width)
{
    std::size_t taken = 0;
    for (const auto& column : table.columns)
        if (column.column != RowColumn::trace) taken += column.width + gapOfColumns;
    return width > taken ? width - taken : 0;
}

TEST(FitTable, LeavesATableAloneThatHasRoom)
{
    const FittedTable table = fitTable(mergedColumns(), 120);
    EXPECT_EQ("Moment:23 Process:11 Source:7 Trace No.:9 Component:12 Level:5 Trace", shown(table));
    EXPECT_FALSE(table.daysApart);
    EXPECT_EQ(Texts{}, table.notes);
}

TEST(FitTable, LeavesATraceThirtyColumnsOfATerminalOfEighty)
{
    const FittedTable table = fitTable(mergedColumns(), 80);
    EXPECT_EQ("Moment:12 Process:11 Component:12 Lev:3 Trace", shown(table));
    EXPECT_TRUE(table.daysApart);
    EXPECT_EQ(Texts{"Left out (--wide has it): Trace No., Source"}, table.notes);
    EXPECT_EQ(34u, traceRoom(table, 80));
}

TEST(FitTable, TakesAwayNoMoreThanItHasTo)
{
    // From the widest on, one thing goes after the other.
    EXPECT_EQ("Moment:23 Process:11 Source:7 No.:4 Component:12 Level:5 Trace",
              shown(fitTable(mergedColumns(), 106)));
    EXPECT_EQ("Moment:23 Process:11 Source:7 No.:4 Component:12 Lev:3 Trace",
              shown(fitTable(mergedColumns(), 102)));
    const FittedTable table = fitTable(mergedColumns(), 92);
    EXPECT_EQ("Moment:12 Process:11 Source:7 No.:4 Component:12 Lev:3 Trace", shown(table));
    EXPECT_TRUE(table.daysApart);
    EXPECT_EQ(Texts{}, table.notes);
}

TEST(FitTable, CutsTheWidestCellsFirst)
{
    const FittedTable table = fitTable(mergedColumns(), 72);
    EXPECT_EQ("Moment:12 Process:9~ Component:10~ Lev:3 Trace", shown(table));
    EXPECT_EQ(30u, traceRoom(table, 72));
}

TEST(FitTable, LeavesOutEmptyColumnsFirstAndSilently)
{
    auto columns = mergedColumns();
    columnOf(columns, RowColumn::source).inAllRows = "";
    const FittedTable table = fitTable(std::move(columns), 102);
    EXPECT_EQ("Moment:23 Process:11 Trace No.:9 Component:12 Level:5 Trace", shown(table));
    EXPECT_EQ(Texts{}, table.notes);
}

TEST(FitTable, TellsOnceWhatIsTheSameInAllRows)
{
    auto columns = mergedColumns();
    columnOf(columns, RowColumn::process).inAllRows = "KoTelephony";
    columnOf(columns, RowColumn::component).inAllRows = "MailboxStore";
    FittedTable table = fitTable(columns, 80);
    EXPECT_EQ("Moment:12 Source:7 No.:4 Component:12 Lev:3 Trace", shown(table));
    EXPECT_EQ(Texts{"In all rows: Process KoTelephony"}, table.notes);
    table = fitTable(columns, 70);
    EXPECT_EQ("Moment:12 Source:7 No.:4 Lev:3 Trace", shown(table));
    EXPECT_EQ(Texts{"In all rows: Process KoTelephony, Component MailboxStore"}, table.notes);
    EXPECT_EQ("Moment:23 Process:11 Source:7 Trace No.:9 Component:12 Level:5 Trace",
              shown(fitTable(columns, 120)));
}

TEST(FitTable, TellsWhatAllHaveAndWhatIsLeftOutInLinesOfTheirOwn)
{
    auto columns = mergedColumns();
    columnOf(columns, RowColumn::level).inAllRows = "7";
    EXPECT_EQ((Texts{"In all rows: Level 7", "Left out (--wide has it): Trace No., Source"}),
              fitTable(std::move(columns), 70).notes);
}

TEST(FitTable, KeepsWhatARowCanNotBeReadWithout)
{
    auto columns = mergedColumns();
    columns.insert(columns.end() - 1, {{RowColumn::thread, "Thread", 6, {}},
                                       {RowColumn::port, "Port", 2, {}},
                                       {RowColumn::callId, "Call ID", 24, {}}});
    const FittedTable table = fitTable(std::move(columns), 80);
    EXPECT_LE(30u, traceRoom(table, 80));
    EXPECT_EQ("Moment:12 Process:8~ Component:9~ Lev:3 Call ID:8~ Trace", shown(table));
    EXPECT_EQ(Texts{"Left out (--wide has it): Thread, Trace No., Source, Port"}, table.notes);
    EXPECT_EQ("Moment:12 Process:8~ Component:9~ Lev:3 Trace",
              shown(fitTable(mergedColumns(), 20)));
}

TEST(FitTable, LeavesATableWithoutTracesAlone)
{
    auto columns = mergedColumns();
    columns.pop_back();
    EXPECT_EQ("Moment:23 Process:11 Source:7 Trace No.:9 Component:12 Level:5",
              shown(fitTable(std::move(columns), 40)));
}

TEST(BytesInWidth, CutsBetweenCharacters)
{
    EXPECT_EQ(3u, bytesInWidth("abcdef", 3));
    EXPECT_EQ(3u, bytesInWidth("abc", 8));
    EXPECT_EQ(5u, bytesInWidth("\u00E4\u00F6abc", 3)) << "two bytes each";
    EXPECT_EQ(3u, bytesInWidth("\u65E5\u672C", 3)) << "two columns each";
}

} // namespace
} // namespace cli
