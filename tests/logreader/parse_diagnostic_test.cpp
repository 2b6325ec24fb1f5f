#include "logreader/parse_diagnostic.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlDiagnostics::parseDiagnostic;

namespace {

/// The record of a line alone, as it stands, on a server without extended fields.
DiagnosticLine parsed(const std::string& line)
{
    TestTool tool;
    DiagnosticLine record = parseDiagnostic(tool.context, line, "", true);
    EXPECT_FALSE(tool.context.g_log.exists()) << "nothing is logged on the normal path";
    return record;
}

DiagnosticLine recordOf(const std::string& timeStamp, const std::string& source, int traceNumber,
                        const std::string& component, int traceLevel, const std::string& trace)
{
    DiagnosticLine record;
    record.timeStamp = timeStamp;
    record.source = source;
    record.traceNumber = traceNumber;
    record.component = component;
    record.traceLevel = static_cast<std::int16_t>(traceLevel);
    record.trace = trace;
    return record;
}

} // namespace

void PrintTo(const DiagnosticLine& line, std::ostream* out)
{
    *out << "{" << line.timeStamp << "|" << line.source << "|" << line.traceNumber << "|"
         << line.component << "|" << line.traceLevel << "|" << line.thread << "|" << line.port
         << "|" << line.callId << "|" << line.trace << "}";
}

TEST(ParseDiagnostic, SplitsAWellMadeLine)
{
    struct Case {
        const char* because;
        const char* line;
        DiagnosticLine expected;
    };
    const Case cases[] = {
        {"a time of day alone", "15:23:07:123 (Conv,1234,CallFlow,7) Call answered",
         recordOf("15:23:07:123", "Conv", 1234, "CallFlow", 7, "Call answered")},
        {"a date's own blank is passed over", "2005-10-08 15:23:07 (Conv,1,X,0) A",
         recordOf("2005-10-08 15:23:07", "Conv", 1, "X", 0, "A")},
        {"a blank at position 12 ends the time", "15:23:07:12 (Conv,1,X,0) A",
         recordOf("15:23:07:12", "Conv", 1, "X", 0, "A")},
        {"one at position 11 does not", "15:23:07:1 (Conv,1,X,0) A B",
         recordOf("15:23:07:1 (Conv,1,X,0)", "", 15, "1", 0, "A B")},
        {"the trace keeps its delimiters", "15:23:07:123 (C,1,X,0) a, (b), c ",
         recordOf("15:23:07:123", "C", 1, "X", 0, "a, (b), c ")},
        {"an empty trace", "15:23:07:123 (C,1,X,0) ", recordOf("15:23:07:123", "C", 1, "X", 0, "")},
        {"a line that ends at the parenthesis", "15:23:07:123 (C,1,X,0)",
         recordOf("15:23:07:123", "C", 1, "X", 0, "")},
        {"empty fields", "15:23:07:123 (,,,) t", recordOf("15:23:07:123", "", 0, "", 0, "t")},
        {"the opening parenthesis is not checked", "15:23:07:123 #C,1,X,0) t",
         recordOf("15:23:07:123", "C", 1, "X", 0, "t")},
        {"negative numbers", "15:23:07:123 (C,-5,X,-99) t",
         recordOf("15:23:07:123", "C", -5, "X", -99, "t")},
        {"the numbers' scan stops at what is none", "15:23:07:123 (C,12ab,X,7th) t",
         recordOf("15:23:07:123", "C", 12, "X", 7, "t")},
        {"text without a leading number is 0", "15:23:07:123 (C,abc,X,) t",
         recordOf("15:23:07:123", "C", 0, "X", 0, "t")},
        {"halves go to the even number", "15:23:07:123 (C,2.5,X,3.5) t",
         recordOf("15:23:07:123", "C", 2, "X", 4, "t")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, parsed(c.line));
    }
}

TEST(ParseDiagnostic, AMalformedLineGivesWhatTheSearchesHappenToFind)
{
    struct Case {
        const char* because;
        const char* line;
        DiagnosticLine expected;
    };
    const Case cases[] = {
        {"the empty line", "", DiagnosticLine{}},
        {"a single character", "x", DiagnosticLine{}},
        {"no blank behind 11, no comma, no parenthesis", "plain text",
         recordOf("", "", 0, "", 0, "lain text")},
        {"a good time but no parenthesis", "15:23:07:123 (Conv,1234,CallFlow,7 Call",
         recordOf("15:23:07:123", "Conv", 1234, "CallFlow", 0,
                  "5:23:07:123 (Conv,1234,CallFlow,7 Call")},
        {"a good time and nothing else: the searches restart at the line's head",
         "15:23:07:123 Started", recordOf("15:23:07:123", "", 0, "", 0, "5:23:07:123 Started")},
        {"one comma: the component's search restarts at the head and ends there",
         "15:23:07:123 (Conv) t, u",
         recordOf("15:23:07:123", "Conv) t", 0, "15:23:07:123 (Conv) t", 0,
                  "5:23:07:123 (Conv) t, u")},
        {"no blank, but commas: the source begins at the second character", "a,12,c,5)tt",
         recordOf("", "", 12, "c", 5, "t")},
        {"a parenthesis before the fields end", "15:23:07:123 (C)1,22,X,0 t",
         recordOf("15:23:07:123", "C)1", 22, "X", 0, "5:23:07:123 (C)1,22,X,0 t")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, parsed(c.line));
    }
}

TEST(ParseDiagnostic, LeavesTheExtendedFieldsEmptyOnAServerWithoutThem)
{
    TestTool tool;
    const DiagnosticLine record = parseDiagnostic(tool.context, "15:23:07:123 (C,1,X,0) t",
                                                  "15:23:07:123,C,1,T8,P2,ID,X,0,t", false);
    EXPECT_EQ("", record.thread + record.port + record.callId);
}

TEST(ParseDiagnostic, ReadsTheExtendedFieldsFromTheRawLine)
{
    TestTool tool;
    tool.context.g_bExtendedLogFields = true;
    const DiagnosticLine record = parseDiagnostic(tool.context, "15:23:07:123 (C,1,X,0) t",
                                                  "15:23:07:123,C,1,T8,P2,ID", false);
    EXPECT_EQ("T8", record.thread);
    EXPECT_EQ("P2", record.port);
    EXPECT_EQ("ID", record.callId);
    EXPECT_EQ("t", record.trace);
}

TEST(ParseDiagnostic, CutsALongCallIdFromTheShownTraceAlone)
{
    const std::string id31(31, 'i');
    const std::string id32(32, 'i');
    struct Case {
        const char* because;
        std::string callId;
        std::string trace;
        bool keepTracePrefix;
        std::string expected;
    };
    const Case cases[] = {
        {"31 characters stay", id31, id31 + ": Call", false, id31 + ": Call"},
        {"32 are cut with the two behind them", id32, id32 + ": Call", false, "Call"},
        {"an import keeps them", id32, id32 + ": Call", true, id32 + ": Call"},
        {"what stands before the id goes as well", id32, "ab" + id32 + ": Call", false, "Call"},
        {"an id that is not there costs as many characters", id32, std::string(33, 'x') + "Call",
         false, "Call"},
        {"a trace that is shorter than that is gone", id32, "Call", false, ""},
        {"an id at the very end", id32, id32, false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        tool.context.g_bExtendedLogFields = true;
        const DiagnosticLine record =
            parseDiagnostic(tool.context, "15:23:07:123 (C,1,X,0) " + c.trace,
                            "15:23:07:123,C,1,T,P," + c.callId + ",X,0,t", c.keepTracePrefix);
        EXPECT_EQ(c.expected, record.trace);
        EXPECT_EQ(c.callId, record.callId);
        EXPECT_TRUE(tool.failures().empty());
    }
}

TEST(ParseDiagnostic, ClearsTheRecordThatItFills)
{
    TestTool tool;
    tool.context.g_bExtendedLogFields = true;
    DiagnosticLine record;
    parseDiagnostic(tool.context, "15:23:07:123 (C,1,X,9) t", "a,b,c,T,P,I", true, record);
    tool.context.g_bExtendedLogFields = false;
    parseDiagnostic(tool.context, "", "", true, record);
    EXPECT_EQ(DiagnosticLine{}, record);
}

TEST(ParseDiagnostic, KeepsTheBytesOfALine)
{
    const std::string line("15:23:07:123 (C\xE9,1,X\xFF,0) \0\x80z", 29);
    const DiagnosticLine record = parsed(line);
    EXPECT_EQ("C\xE9", record.source);
    EXPECT_EQ("X\xFF", record.component);
    EXPECT_EQ(line.substr(25), record.trace);
}
