#include "logreader/format_line.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlDiagnostics::formatLineSafe;

namespace {

/// A raw line of the given length.
std::string rawLineOf(std::size_t length)
{
    std::string line = "15:23:07:123,Conv,1234,CallFlow,7,";
    line.resize(length, 'x');
    return line;
}

const std::string formattedHead = "15:23:07:123 (Conv,1234,CallFlow,7) ";

} // namespace

TEST(FormatLineSafe, PutsABlankBehindTheFormattedTextOfAShortLine)
{
    TestTool tool;
    EXPECT_EQ("15:23:07:123 (Conv,1234,CallFlow,7) Call answered ",
              formatLineSafe(tool.context, "15:23:07:123,Conv,1234,CallFlow,7,Call answered"));
    EXPECT_FALSE(tool.context.g_log.exists()) << "nothing is logged on the normal path";
}

TEST(FormatLineSafe, TakesALineOf19BytesForNoLogLine)
{
    TestTool tool;
    const std::string line = "15:23:07:123,C,1,F,";
    ASSERT_EQ(19U, line.size());
    EXPECT_EQ("", formatLineSafe(tool.context, line));
    EXPECT_EQ("", formatLineSafe(tool.context, ""));
    EXPECT_EQ(0, tool.eventReporter.linesFormatted());
}

TEST(FormatLineSafe, FormatsALineOf20Bytes)
{
    TestTool tool;
    const std::string line = "15:23:07:123,C,1,F,7";
    ASSERT_EQ(20U, line.size());
    tool.eventReporter.failing(0);
    formatLineSafe(tool.context, line);
    EXPECT_EQ(1, tool.eventReporter.linesFormatted());
    EXPECT_EQ("15:23:07:123 (C,1,F,7)  ", formatLineSafe(tool.context, line + ","));
}

TEST(FormatLineSafe, FormatsALineOf510BytesWhole)
{
    TestTool tool;
    const std::string line = rawLineOf(510);
    EXPECT_EQ(formattedHead + line.substr(34) + " ", formatLineSafe(tool.context, line));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(FormatLineSafe, KeepsWhatStandsBehind510BytesAsATailAfterABlank)
{
    TestTool tool;
    const std::string line = rawLineOf(510) + "T";
    EXPECT_EQ(formattedHead + line.substr(34, 510 - 34) + " T", formatLineSafe(tool.context, line));

    const std::string longer = rawLineOf(510) + std::string(100'000, 't');
    const std::string formatted = formatLineSafe(tool.context, longer);
    EXPECT_EQ(formattedHead.size() + 510 - 34 + 1 + 100'000, formatted.size());
    EXPECT_TRUE(tool.failures().empty());
}

TEST(FormatLineSafe, TellsWhetherTheLineHasAKnownForm)
{
    TestTool tool;
    std::string formatted;
    EXPECT_TRUE(formatLineSafe(tool.context, "15:23:07:123,Conv,1234,CallFlow,7,Call", formatted));
    const std::string again = formatted;
    EXPECT_TRUE(formatLineSafe(tool.context, again, formatted)) << again;
    EXPECT_FALSE(formatLineSafe(tool.context, "this is not a line of any log", formatted));
    EXPECT_FALSE(formatLineSafe(tool.context, "too short", formatted));
}

TEST(FormatLineSafe, GivesABlankAndTheTailWhenTheFormatterFails)
{
    TestTool tool;
    EXPECT_EQ(" ", formatLineSafe(tool.context, "this is not a line of any log"));
    EXPECT_EQ(" tail", formatLineSafe(tool.context, std::string(510, '?') + "tail"));
    EXPECT_EQ((std::vector<std::string>(
                  2, "Err.Number = 5 Err.Description = Invalid procedure call or argument")),
              tool.failures("[mdlDiagnostics]formatLineSafe"));
}

TEST(FormatLineSafe, LogsAMissingReporter)
{
    TestTool tool;
    tool.eventReporter.missing();
    EXPECT_EQ(" ", formatLineSafe(tool.context, rawLineOf(100)));
    ASSERT_EQ(1U, tool.failures().size());
    EXPECT_EQ("Err.Number = 429 Err.Description = ActiveX component can't create object",
              tool.failures()[0]);
}

TEST(FormatLineSafe, KeepsBytesAsTheyAre)
{
    TestTool tool;
    const std::string line("15:23:07:123,Conv,1234,CallFlow,7,\xFC\x80\0z", 38);
    EXPECT_EQ(formattedHead + std::string("\xFC\x80\0z ", 5), formatLineSafe(tool.context, line));
}

TEST(FormatLineSafe, FillsATextThatIsUsedAgain)
{
    TestTool tool;
    std::string formatted = "what was there before";
    formatLineSafe(tool.context, rawLineOf(40), formatted);
    EXPECT_EQ(formattedHead + "xxxxxx ", formatted);
    formatLineSafe(tool.context, "short", formatted);
    EXPECT_EQ("", formatted);
}
