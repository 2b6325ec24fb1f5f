#include "gather/filter_table.h"

#include "gather/gather_tool.h"

#include <gtest/gtest.h>

namespace {

const std::string proc = "[mdlLogs]saveUniqueFilters";

struct FilterTool : GatherTool {
    FilterTool()
    {
        database = traceDatabases.openDatabase("C:\\Out\\trace.mdb");
        filters = database->openRecordset("tblUniqueFilters");
    }

    FilterTool& with(const std::string& key, const std::string& value)
    {
        context.g_dictUniqueFilters.add(key, value);
        return *this;
    }

    const std::vector<FakeTraceRow>& save()
    {
        mdlLogs::saveUniqueFilters(context, *filters);
        return traceDatabases.rows("tblUniqueFilters");
    }

    std::unique_ptr<TraceDatabase> database;
    std::unique_ptr<TraceRecordset> filters;
};

} // namespace

TEST(SaveUniqueFilters, AddsARowForEachEntryInTheOrderOfTheKeys)
{
    FilterTool tool;
    tool.with("C_P_7_S", "P,S,C,7").with("A_P_-99_S", "P,S,A,-99");
    const auto& rows = tool.save();
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ((FakeTraceRow{{"qrvIndex", "C_P_7_S"},
                            {"Process", "P"},
                            {"Source", "S"},
                            {"Component", "C"},
                            {"TraceLevel", "7"}}),
              rows[0]);
    EXPECT_EQ("A_P_-99_S", rows[1].at("qrvIndex"));
    EXPECT_TRUE(tool.logged("Entering " + proc));
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(SaveUniqueFilters, TakesTheProcessForUtf8)
{
    std::string process;
    for (int letter = 0; letter < 200; ++letter) process += "\xC3\xB6";
    FilterTool tool;
    tool.with("C_P_7_S", process + ",S,C,7");
    EXPECT_EQ(process, tool.save().at(0).at("Process"));
}

TEST(SaveUniqueFilters, ACommaInAValueShiftsTheColumnsBehindIt)
{
    struct Case {
        const char* because;
        const char* value;
        FakeTraceRow row;
    };
    const Case cases[] = {
        {"in the source",
         "P,a,b,C,7",
         {{"Process", "P"}, {"Source", "a"}, {"Component", "b"}, {"TraceLevel", "C"}}},
        {"in the component",
         "P,S,c,d,7",
         {{"Process", "P"}, {"Source", "S"}, {"Component", "c"}, {"TraceLevel", "d"}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        FilterTool tool;
        FakeTraceRow expected = c.row;
        expected["qrvIndex"] = "the key stays right";
        EXPECT_EQ(expected, tool.with("the key stays right", c.value).save().front());
    }
}

TEST(SaveUniqueFilters, NoEntryMakesNoRow)
{
    FilterTool tool;
    EXPECT_TRUE(tool.save().empty());
}

TEST(SaveUniqueFilters, KeepsTheDictionary)
{
    FilterTool tool;
    tool.with("k", "P,S,C,7").save();
    EXPECT_EQ(1U, tool.context.g_dictUniqueFilters.count());
    EXPECT_EQ(2U, tool.save().size());
}

TEST(SaveUniqueFilters, AnErrorIsLoggedAndTheNextStatementRuns)
{
    FilterTool tool;
    tool.traceDatabases.failing("set tblUniqueFilters.Source", 1, 3163);
    const auto& rows = tool.with("k", "P,S,C,7").save();
    ASSERT_EQ(1U, rows.size());
    EXPECT_EQ(0U, rows[0].count("Source"));
    EXPECT_EQ("7", rows[0].at("TraceLevel"));
    EXPECT_EQ(1U, tool.failures(proc).size());
}

TEST(SaveUniqueFilters, TheEleventhErrorEndsItAndTheRowsStay)
{
    FilterTool tool;
    tool.with("first", "P,S,C,7");
    for (int number = 0; number < 20; ++number) tool.with("k" + std::to_string(number), "P,S,C");
    const auto& rows = tool.save();
    EXPECT_EQ(11U, rows.size()) << "the first and ten without a level";
    EXPECT_EQ("Error count exceeded, forcing exit from " + proc, tool.failures(proc).back());
    EXPECT_FALSE(tool.logged("Exiting " + proc));
}
