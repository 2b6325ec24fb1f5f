#pragma once

#include "platform/event_reporter.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <string>

/// What every EventReporter promises. A `Machine` is made with whether the server's raw lines are
/// extended ones, and has `EventReporter& reporter()`.
template <typename Machine>
class EventReporterContract : public testing::Test {
protected:
    std::string format(const std::string& line, bool extended = false)
    {
        Machine other(extended);
        std::string formatted = "before:";
        other.reporter().formatTraceLine(line, formatted);
        return formatted;
    }

    Machine machine{false};
};

TYPED_TEST_SUITE_P(EventReporterContract);

TYPED_TEST_P(EventReporterContract, StartsUpRegistersAndReports)
{
    EventReporter& reporter = this->machine.reporter();
    reporter.startUp();
    reporter.completeStartUp();
    const std::int32_t handle = reporter.registerTool("OrvanDiagnostics");
    EXPECT_NE(0, handle);
    EXPECT_EQ(0, errorOf([&] {
                  reporter.report("OrvanDiagnosticTool_MC", handle, 10, 10004, {"GA", "trace"});
              }));
    EXPECT_EQ(0, errorOf([&] { reporter.report("OrvanDiagnosticTool_MC", handle, 0, 10002, {}); }));
}

TYPED_TEST_P(EventReporterContract, ABasicLineIsFormatted)
{
    EXPECT_EQ("before:15:23:07:123 (Conv,1234,CallFlow,7) Call answered",
              this->format("15:23:07:123,Conv,1234,CallFlow,7,Call answered"));
    EXPECT_EQ("before:2005-10-08 15:23:07 (Conv,1,X,0) A",
              this->format("2005-10-08 15:23:07,Conv,1,X,0,A"));
}

TYPED_TEST_P(EventReporterContract, TheTraceIsAllAfterItsComma)
{
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) a,b, (c) ,",
              this->format("15:23:07:123,S,1,C,2,a,b, (c) ,"));
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) ", this->format("15:23:07:123,S,1,C,2,"));
}

TYPED_TEST_P(EventReporterContract, AnExtendedLineLosesThreadPortAndCallId)
{
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) a,b",
              this->format("15:23:07:123,S,1,thread,port,call,C,2,a,b", true));
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) a", this->format("15:23:07:123,S,1,,,,C,2,a", true));
}

TYPED_TEST_P(EventReporterContract, ALongCallIdStandsBeforeTheTrace)
{
    const std::string shortId(31, 'i');
    const std::string longId(32, 'i');
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) a",
              this->format("15:23:07:123,S,1,t,p," + shortId + ",C,2,a", true));
    EXPECT_EQ("before:15:23:07:123 (S,1,C,2) " + longId + ": a",
              this->format("15:23:07:123,S,1,t,p," + longId + ",C,2,a", true));
}

TYPED_TEST_P(EventReporterContract, AFormattedLineComesBackAsItIs)
{
    for (const bool extended : {false, true}) {
        EXPECT_EQ("before:15:23:07:123 (Conv,1234,CallFlow,7) Call, answered",
                  this->format("15:23:07:123 (Conv,1234,CallFlow,7) Call, answered", extended));
        EXPECT_EQ("before:2005-10-08 15:23:07 (Conv,1,X,0) A",
                  this->format("2005-10-08 15:23:07 (Conv,1,X,0) A", extended));
    }
}

TYPED_TEST_P(EventReporterContract, BytesOutsideAsciiAreKept)
{
    EXPECT_EQ("before:15:23:07:123 (\xE9,1,\xFF,2) \x80\x81",
              this->format("15:23:07:123,\xE9,1,\xFF,2,\x80\x81"));
}

TYPED_TEST_P(EventReporterContract, AnyOtherLineRaises5AndAddsNothing)
{
    struct Case {
        const char* because;
        bool extended;
        std::string line;
    };
    const Case cases[] = {
        {"the empty line", false, ""},
        {"plain text", false, "this line is no log line at all"},
        {"a comma too few", false, "15:23:07:123,S,1,C,2"},
        {"a basic line where lines are extended", true, "15:23:07:123,S,1,C,2,trace"},
        {"a time that is none", false, "yesterday noon,S,1,C,2,trace"},
        {"a trace number that is none", false, "15:23:07:123,S,one,C,2,trace"},
        {"a level that is none", false, "15:23:07:123,S,1,C,two,trace"},
        {"commas alone", false, ",,,,,,,,,,,,,,,,,,,,,,,"},
        {"zero bytes", false, std::string(40, '\0')},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TypeParam other(c.extended);
        std::string formatted = "before:";
        EXPECT_EQ(5, errorOf([&] { other.reporter().formatTraceLine(c.line, formatted); }));
        EXPECT_EQ("before:", formatted);
    }
}

TYPED_TEST_P(EventReporterContract, TheLimitIsTheLastLengthThatIsFormatted)
{
    const std::string head = "15:23:07:123,S,1,C,2,";
    const std::string atLimit =
        head + std::string(EventReporter::traceLineLimit - head.size(), 'x');
    EXPECT_EQ(0, errorOf([&] { this->format(atLimit); }));
    EXPECT_EQ(5, errorOf([&] { this->format(atLimit + "x"); }));
}

TYPED_TEST_P(EventReporterContract, ATimeThatIsToldAloneIsThatOfTheFormattedLine)
{
    const std::string lines[] = {
        "15:23:07:123,S,1,C,2,trace",
        "2005-10-08 15:23:07,S,1,C,2,trace",
        "15:23:07:123,S,1,thread,port,call,C,2,trace",
        "15:23:07:123 (S,1,C,2) trace",
        "15:23:07:123,S,-1,C,-2,trace",
        "15:23:07:123,S,99999999999,C,99999,trace",
        "15:23:07:123,S,1,C,2",
        "15:23:07:123,S,one,C,2,trace",
        "1:23,S,1,C,2,trace",
        "15:23:07:123,S,1,C,2," + std::string(EventReporter::traceLineLimit, 'x'),
        "",
    };
    for (const bool extended : {false, true}) {
        TypeParam other(extended);
        for (const std::string& line : lines) {
            SCOPED_TRACE(line);
            const std::string time(other.reporter().timeOfSoundLine(line));
            if (time.empty()) continue;
            EXPECT_GE(time.size(), 12u);
            EXPECT_EQ("before:" + time + " (",
                      this->format(line, extended).substr(0, 9 + time.size()));
        }
    }
}

REGISTER_TYPED_TEST_SUITE_P(EventReporterContract, StartsUpRegistersAndReports,
                            ABasicLineIsFormatted, TheTraceIsAllAfterItsComma,
                            AnExtendedLineLosesThreadPortAndCallId, ALongCallIdStandsBeforeTheTrace,
                            AFormattedLineComesBackAsItIs, BytesOutsideAsciiAreKept,
                            AnyOtherLineRaises5AndAddsNothing,
                            TheLimitIsTheLastLengthThatIsFormatted,
                            ATimeThatIsToldAloneIsThatOfTheFormattedLine);
