#include "logreader/parse_diagnostic.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

#include <algorithm>

using mdlDiagnostics::parseDiagnostic;

namespace {

const std::string proc = "[mdlDiagnostics]parseDiagnostic";
const std::string overflowWithLine = "Err.Number = 6 Err.Description = Overflow Line: ";
const std::string subscriptWithLine =
    "Err.Number = 9 Err.Description = Subscript out of range Line: ";

/// How many messages begin with `text` and go on with a number.
std::ptrdiff_t startingWith(const std::vector<std::string>& messages, const std::string& text)
{
    return std::count_if(messages.begin(), messages.end(), [&](const std::string& message) {
        return message.compare(0, text.size(), text) == 0 && message.size() > text.size();
    });
}

/// A line of which eleven statements overflow: its one blank is at the last 16-bit position, every
/// other delimiter lies behind it, and it begins with a number that is too large.
std::string lineOfElevenErrors()
{
    std::string line = "99999999999";
    line.resize(32'766, 'x');
    return line + " x,x,x)x";
}

} // namespace

TEST(ParseDiagnosticErrors, ADelimiterBehindTheLastPositionOverflowsAndKeepsTheEnd)
{
    TestTool tool;
    const std::string line = "15:23:07:123 (" + std::string(33'000, 's') + ",1,X,0) t";
    const DiagnosticLine record = parseDiagnostic(tool.context, line, "", true);

    EXPECT_EQ("15:23:07:123", record.timeStamp);
    EXPECT_EQ("", record.source);
    EXPECT_EQ(0, record.traceNumber);
    EXPECT_EQ("", record.component);
    EXPECT_EQ(0, record.traceLevel);
    EXPECT_EQ(line.substr(14), record.trace) << "the end still stands at the blank of the time";
    EXPECT_EQ(4, startingWith(tool.failures(proc), overflowWithLine));
    EXPECT_EQ(4U, tool.failures().size());
}

TEST(ParseDiagnosticErrors, ADelimiterAtTheLastPositionIsFoundButNothingStartsBehindIt)
{
    TestTool tool;
    std::string line = "15:23:07:123 (";
    line.resize(32'766, 's');
    line += ",1,X,0) t";
    const DiagnosticLine record = parseDiagnostic(tool.context, line, "", true);
    EXPECT_EQ(std::string(32'766 - 14, 's'), record.source);
    EXPECT_EQ(record.source, record.component) << "start and end stay where they were";
    EXPECT_LT(0, startingWith(tool.failures(proc), overflowWithLine));
}

TEST(ParseDiagnosticErrors, NumbersThatDoNotFitAreLoggedAndStay0)
{
    TestTool tool;
    const DiagnosticLine record =
        parseDiagnostic(tool.context, "15:23:07:123 (C,2147483648,X,32768) t", "", true);
    EXPECT_EQ(0, record.traceNumber);
    EXPECT_EQ("X", record.component);
    EXPECT_EQ(0, record.traceLevel);
    EXPECT_EQ("t", record.trace);
    EXPECT_EQ(2, startingWith(tool.failures(proc), overflowWithLine));
}

TEST(ParseDiagnosticErrors, TheLargestNumbersFit)
{
    TestTool tool;
    const DiagnosticLine record =
        parseDiagnostic(tool.context, "15:23:07:123 (C,2147483647,X,32767) t", "", true);
    EXPECT_EQ(2'147'483'647, record.traceNumber);
    EXPECT_EQ(32'767, record.traceLevel);
    EXPECT_TRUE(tool.failures().empty());
}

TEST(ParseDiagnosticErrors, ARawLineOfTooFewElementsIsASubscriptError)
{
    struct Case {
        const char* because;
        const char* rawLine;
        const char* thread;
        const char* port;
        int errors;
    };
    const Case cases[] = {
        {"the empty line has no element", "", "", "", 3},
        {"three elements", "a,b,c", "", "", 3},
        {"four elements", "a,b,c,T", "T", "", 2},
        {"five elements", "a,b,c,T,P", "T", "P", 1},
        {"a sixth that is empty is one", "a,b,c,T,P,", "T", "P", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        tool.context.g_bExtendedLogFields = true;
        const DiagnosticLine record =
            parseDiagnostic(tool.context, "15:23:07:123 (C,1,X,0) t", c.rawLine, false);
        EXPECT_EQ(c.thread, record.thread);
        EXPECT_EQ(c.port, record.port);
        EXPECT_EQ("", record.callId);
        EXPECT_EQ("t", record.trace);
        EXPECT_EQ(c.errors, startingWith(tool.failures(proc), subscriptWithLine));
        EXPECT_EQ(static_cast<std::size_t>(c.errors), tool.failures().size());
    }
}

TEST(ParseDiagnosticErrors, TheEleventhErrorLeavesTheLineAsItIsByThen)
{
    TestTool tool;
    tool.context.g_bExtendedLogFields = true;
    const DiagnosticLine record =
        parseDiagnostic(tool.context, lineOfElevenErrors(), "a,b,c,T,P,I", true);

    EXPECT_EQ(32'766U, record.timeStamp.size());
    EXPECT_EQ(32'766U, record.component.size());
    EXPECT_EQ("", record.trace);
    EXPECT_EQ("", record.thread);
    const auto failures = tool.failures(proc);
    EXPECT_EQ(10, startingWith(failures, overflowWithLine));
    ASSERT_EQ(12U, failures.size());
    EXPECT_EQ("Err.Number = 6 Err.Description = Overflow", failures[10]);
    EXPECT_EQ("Error count exceeded, forcing exit from " + proc, failures[11]);
}

TEST(ParseDiagnosticErrors, TheCountStartsAnewWithEachLine)
{
    TestTool tool;
    const std::string line = "15:23:07:123 (C,2147483648,X,32768) t";
    for (int times = 0; times < 20; ++times)
        EXPECT_EQ("t", parseDiagnostic(tool.context, line, "", true).trace);
    EXPECT_EQ(40, startingWith(tool.failures(proc), overflowWithLine));
}

TEST(ParseDiagnosticErrors, TheDevelopmentHostTriesAStatementAgainUntilTheEleventhError)
{
    TestTool tool;
    tool.module.developmentHost = true;
    const DiagnosticLine record =
        parseDiagnostic(tool.context, "15:23:07:123 (C,2147483648,X,7) t", "", true);
    EXPECT_EQ("C", record.source);
    EXPECT_EQ("", record.component);
    EXPECT_EQ("", record.trace);
    const auto failures = tool.failures(proc);
    EXPECT_EQ(10, startingWith(failures, overflowWithLine));
    ASSERT_EQ(12U, failures.size());
    EXPECT_EQ("Error count exceeded, forcing exit from " + proc, failures[11]);
}

TEST(ParseDiagnosticErrors, AMissingDelimiterIsNoErrorInTheDevelopmentHostEither)
{
    TestTool tool;
    tool.module.developmentHost = true;
    EXPECT_EQ("lain text", parseDiagnostic(tool.context, "plain text", "", true).trace);
    EXPECT_FALSE(tool.context.g_log.exists());
}
