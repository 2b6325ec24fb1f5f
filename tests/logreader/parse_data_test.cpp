#include "logreader/parse_data.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlDiagnostics::parseData;

namespace {
const std::string subscript = "Err.Number = 9 Err.Description = Subscript out of range";
const std::string mismatch = "Err.Number = 13 Err.Description = Type mismatch";
const std::string overflow = "Err.Number = 6 Err.Description = Overflow";
} // namespace

TEST(ParseData, TheTraceIsAllThatFollowsTheThirdComma)
{
    TestTool tool;
    const DiagnosticLine record = parseData(tool.context, "15:23:07:123,Src,5,a,b,c");
    EXPECT_EQ("15:23:07:123", record.timeStamp);
    EXPECT_EQ("Src", record.source);
    EXPECT_EQ(5, record.traceNumber);
    EXPECT_EQ("a,b,c", record.trace);
    EXPECT_EQ(-99, record.traceLevel);
    EXPECT_EQ("Data File", record.component);
    EXPECT_EQ("", record.thread + record.port + record.callId);
    EXPECT_FALSE(tool.context.g_log.exists()) << "nothing is logged on the normal path";
}

TEST(ParseData, MarksTheRecordWhateverWentWrong)
{
    struct Case {
        const char* because;
        const char* line;
        const char* timeStamp;
        const char* source;
        int traceNumber;
        const char* trace;
        std::vector<std::string> failures;
    };
    const Case cases[] = {
        {"the empty line has no part",
         "",
         "",
         "",
         0,
         "",
         {subscript, subscript, subscript, subscript}},
        {"one part", "time", "time", "", 0, "", {subscript, subscript, subscript}},
        {"two parts", "time,source", "time", "source", 0, "", {subscript, subscript}},
        {"three parts", "time,source,5", "time", "source", 5, "", {subscript}},
        {"a number that is none", "time,source,five,t", "time", "source", 0, "t", {mismatch}},
        {"a number with a tail", "time,source,5x,t", "time", "source", 0, "t", {mismatch}},
        {"an empty number", "time,source,,t", "time", "source", 0, "t", {mismatch}},
        {"a number that does not fit",
         "time,source,2147483648,t",
         "time",
         "source",
         0,
         "t",
         {overflow}},
        {"empty parts are parts", ",,0,", "", "", 0, "", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        const DiagnosticLine record = parseData(tool.context, c.line);
        EXPECT_EQ(c.timeStamp, record.timeStamp);
        EXPECT_EQ(c.source, record.source);
        EXPECT_EQ(c.traceNumber, record.traceNumber);
        EXPECT_EQ(c.trace, record.trace);
        EXPECT_EQ(-99, record.traceLevel);
        EXPECT_EQ("Data File", record.component);
        EXPECT_EQ(c.failures, tool.failures("[mdlDiagnostics]parseData"));
    }
}

TEST(ParseData, KeepsNoCountOfErrors)
{
    TestTool tool;
    for (int times = 0; times < 5; ++times) parseData(tool.context, "");
    EXPECT_EQ(std::vector<std::string>(20, subscript), tool.failures());
}

TEST(ParseData, ClearsTheRecordThatItFills)
{
    TestTool tool;
    DiagnosticLine record;
    parseData(tool.context, "time,source,5,trace", record);
    record.port = "P";
    parseData(tool.context, "other", record);
    EXPECT_EQ("other", record.timeStamp);
    EXPECT_EQ("", record.source + record.trace + record.port);
    EXPECT_EQ(0, record.traceNumber);
}
