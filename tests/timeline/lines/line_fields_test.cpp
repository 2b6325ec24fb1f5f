#include "timeline/lines/line_fields.h"

#include "logreader/parse_data.h"
#include "logreader/parse_diagnostic.h"
#include "support/test_tool.h"
#include "tracelines/trace_line_format.h"

#include <gtest/gtest.h>

#include <random>

namespace timeline {
namespace {

/// The fields of a line, as the tool's own view shows them; nothing for a line without a form.
std::optional<DiagnosticLine> cut(const std::string& line, LineForm form)
{
    LineFields fields;
    if (!cutLine(line, form, fields)) return std::nullopt;
    DiagnosticLine record;
    record.timeStamp = fields.timeStamp;
    record.source = fields.source;
    record.traceNumber = fields.traceNumber;
    record.component = fields.component;
    record.traceLevel = fields.level;
    record.thread = fields.thread;
    record.port = fields.port;
    record.callId = fields.callId;
    if (form == LineForm::data)
        record.trace = fields.trace;
    else
        appendToolTrace(record.trace, line, fields);
    return record;
}

/// The same by the server's formatter and the tool's own parser, put together as
/// `mdlDiagnostics::formatLineSafe` does.
class ToolsParser {
public:
    explicit ToolsParser(LineForm form)
        : fields_(form == LineForm::extended ? LogFields::extended : LogFields::basic)
    {
        tool_.context.g_bExtendedLogFields = form == LineForm::extended;
    }

    std::optional<DiagnosticLine> parse(const std::string& line)
    {
        std::string formatted;
        if (line.size() < 20 ||
            !appendFormattedTraceLine(line.substr(0, longestTraceLine), fields_, formatted))
            return std::nullopt;
        formatted += ' ';
        if (line.size() > longestTraceLine) formatted += line.substr(longestTraceLine);
        return mdlDiagnostics::parseDiagnostic(tool_.context, formatted, line, false);
    }

private:
    LogFields fields_;
    TestTool tool_;
};

TEST(CutLine, CutsTheThreeFormsOfALog)
{
    const auto basic = cut("15:23:07:123,Conv,1234,CallFlow,7,a, b", LineForm::basic);
    ASSERT_TRUE(basic);
    EXPECT_EQ("15:23:07:123", basic->timeStamp);
    EXPECT_EQ("Conv", basic->source);
    EXPECT_EQ(1234, basic->traceNumber);
    EXPECT_EQ("CallFlow", basic->component);
    EXPECT_EQ(7, basic->traceLevel);
    EXPECT_EQ("a, b ", basic->trace);

    const auto extended =
        cut("2025-02-20 15:23:07,Conv,1234,3072,12,CF08-1,CallFlow,7,a", LineForm::extended);
    ASSERT_TRUE(extended);
    EXPECT_EQ("3072", extended->thread);
    EXPECT_EQ("12", extended->port);
    EXPECT_EQ("CF08-1", extended->callId);
    EXPECT_EQ("CallFlow", extended->component);

    for (const LineForm form : {LineForm::formatted, LineForm::basic, LineForm::extended}) {
        const auto formatted = cut("15:23:07:123 (Conv,1234,CallFlow,7) a", form);
        ASSERT_TRUE(formatted);
        EXPECT_EQ("CallFlow", formatted->component);
        EXPECT_EQ("", formatted->callId);
        EXPECT_EQ("a ", formatted->trace);
    }
}

TEST(CutLine, CutsALineOfADataFile)
{
    const auto data = cut("2025-02-20 15:23:07,Conv,12,a,b", LineForm::data);
    ASSERT_TRUE(data);
    EXPECT_EQ(mdlDiagnostics::dataFileTraceLevel, data->traceLevel);
    EXPECT_EQ(mdlDiagnostics::dataFileComponent, data->component);
    EXPECT_EQ("a,b", data->trace);
    EXPECT_FALSE(cut("2025-02-20 15:23:07,Conv,twelve,a", LineForm::data));
    EXPECT_FALSE(cut("2025-02-20 15:23:07,Conv,12", LineForm::data));
}

TEST(CutLine, RefusesWhatTheFormatterRefuses)
{
    for (const char* line : {"", "15:23:07:123,C,1,F,", "no line of a log at all",
                             "15:23:07:123,Conv,x,CallFlow,7,a", "15:23:07:123,Conv,1,CallFlow,x,a",
                             "15:23:07:123,Conv,1,CallFlow", "15:23:07:123 Conv,1,CallFlow,7,a"})
        EXPECT_FALSE(cut(line, LineForm::basic)) << line;
}

TEST(CutLine, TakesANumberThatIsTooLargeForNone)
{
    const auto line = cut("15:23:07:123,Conv,2147483648,CallFlow,32768,a", LineForm::basic);
    ASSERT_TRUE(line);
    EXPECT_EQ(0, line->traceNumber);
    EXPECT_EQ(0, line->traceLevel);
}

/// Pieces that lines are made of, so that most of them nearly have a form.
std::string randomLine(std::mt19937& random)
{
    static const std::vector<std::string> pieces = {"15:23:07:123",
                                                    "2025-02-20 15:23:07",
                                                    "00:00:00:000",
                                                    "99:99:99:999",
                                                    ",",
                                                    ",",
                                                    ",",
                                                    ",",
                                                    " (",
                                                    ")",
                                                    ") ",
                                                    " ",
                                                    "Conv",
                                                    "CallFlow",
                                                    "7",
                                                    "1234",
                                                    "-1",
                                                    "+5",
                                                    " 12 ",
                                                    "99999",
                                                    "4294967296",
                                                    "a trace",
                                                    "\xE9\xA0",
                                                    "CF080047-5FC584C6-0",
                                                    "",
                                                    "(",
                                                    "--1",
                                                    "+-2",
                                                    "- 3"};
    const auto any = [&](std::size_t count) { return std::size_t{random()} % count; };
    std::string line;
    if (any(3) != 0) {
        line = pieces[any(3)];
        if (any(2) == 0)
            line += "," + pieces[12 + any(2)] + "," + pieces[14 + any(7)] + "," +
                    pieces[12 + any(2)] + "," + pieces[14 + any(7)] + ",";
        else
            line += " (" + pieces[12] + "," + pieces[14 + any(7)] + "," + pieces[13] + "," +
                    pieces[14 + any(7)] + ")" + (any(4) == 0 ? "" : " ");
    }
    for (std::size_t more = any(9); more > 0; --more) line += pieces[any(pieces.size())];
    if (any(4) == 0) line += std::string(480 + any(60), 'x');
    if (any(6) == 0) line += std::string(any(40), 'y') + ",z";
    return line;
}

TEST(CutLine, CutsAnyLineAsTheToolsOwnParserDoes)
{
    std::mt19937 random(20250220);
    int withForm = 0;
    for (const LineForm form : {LineForm::basic, LineForm::extended}) {
        ToolsParser parser(form);
        for (int round = 0; round < 30'000; ++round) {
            const std::string line = randomLine(random);
            auto expected = parser.parse(line);
            const auto found = cut(line, form);
            ASSERT_EQ(expected.has_value(), found.has_value()) << line;
            if (!expected) continue;
            const bool formatted = line[expected->timeStamp.size()] == ' ';
            if (formatted && form == LineForm::extended) continue; // its commas are no fields
            ASSERT_EQ(*expected, *found) << line;
            ++withForm;
        }
    }
    EXPECT_LT(10'000, withForm);
}

} // namespace
} // namespace timeline
