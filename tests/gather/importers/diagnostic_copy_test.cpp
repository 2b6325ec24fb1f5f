#include "gather/gather_tool.h"

#include <gtest/gtest.h>

namespace {
const std::string log = "diag_RoCsMgr_20051008_152307.txt";
const std::string source = "C:\\Logs\\" + log;
const std::string target = "C:\\Out\\diag_RoCsMgr_20051008_152307_fmtd.txt";
} // namespace

TEST(ProcessOrvanLogFile, WritesAFormattedCopy)
{
    GatherTool tool;
    tool.files.with(source, logOf(3));
    tool.copyLog(log);
    EXPECT_EQ(copyOf(3), tool.files.content(target));
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Entering [mdlLogs]processOrvanLogFile"));
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processOrvanLogFile"));
    EXPECT_EQ((std::vector<std::string>{"c:\\logs\\diag_rocsmgr_20051008_152307.txt",
                                        "c:\\out\\diag_rocsmgr_20051008_152307_fmtd.txt"}),
              tool.files.closed())
        << "the log first, and then its copy";
}

TEST(ProcessOrvanLogFile, WritesOverAnEarlierCopy)
{
    GatherTool tool;
    tool.files.with(source, logOf(1)).with(target, std::string(10'000, 'x'));
    tool.copyLog(log);
    EXPECT_EQ(copyOf(1), tool.files.content(target));
}

TEST(ProcessOrvanLogFile, CopiesLinesAsTheyStandInTheDevelopmentHost)
{
    GatherTool tool;
    tool.context.g_bDebugMode = true;
    tool.files.with(source, logOf(2) + "short\r\n");
    tool.copyLog(log);
    EXPECT_EQ(logOf(2) + "short\r\n", tool.files.content(target));
    EXPECT_EQ(0, tool.eventReporter.linesFormatted());
}

TEST(ProcessOrvanLogFile, AShortLineBecomesAnEmptyOne)
{
    GatherTool tool;
    tool.files.with(source, "15:23:07:123,C,1,F,\r\n\r\n" + logOf(1));
    tool.copyLog(log);
    EXPECT_EQ("\r\n\r\n" + copyOf(1), tool.files.content(target));
}

TEST(ProcessOrvanLogFile, ALastLineNeedsNoLineEnd)
{
    GatherTool tool;
    std::string text = logOf(2);
    text.resize(text.size() - 2);
    tool.files.with(source, text);
    tool.copyLog(log);
    EXPECT_EQ(copyOf(2), tool.files.content(target));
}

TEST(ProcessOrvanLogFile, TellsThePersonOfALogThatIsNotThereAndChangesNothing)
{
    GatherTool tool;
    tool.current.setValue(7);
    tool.current.setVisible(false);
    tool.copyLog(log);
    ASSERT_EQ(1U, tool.desktop.messages().size());
    EXPECT_EQ(
        (FakeDesktop::Message{"Log file: " + source + " can not be found.  Log not processed.",
                              "Log not found", MessageIcon::critical}),
        tool.desktop.messages()[0]);
    EXPECT_EQ(7.0F, tool.current.value());
    EXPECT_FALSE(tool.current.visible());
    EXPECT_FALSE(tool.files.fileExists(target));
    EXPECT_EQ(0, tool.desktop.pumps());
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processOrvanLogFile"));
}

TEST(ProcessOrvanLogFile, AnEmptyFileGivesAnEmptyCopyAndEndsAtAMaximumOf0)
{
    GatherTool tool;
    tool.files.with(source, "");
    tool.copyLog(log);
    EXPECT_TRUE(tool.files.fileExists(target));
    EXPECT_EQ("", tool.files.content(target));
    EXPECT_EQ(0.0F, tool.current.maximum());
    EXPECT_EQ(0.0F, tool.current.value());
    EXPECT_EQ(
        (std::vector<std::string>{"Err.Number = 380 Err.Description = Invalid property value"}),
        tool.failures("[mdlLogs]processOrvanLogFile"));
}

TEST(ProcessOrvanLogFile, FillsTheBarOfTheFilesSizeAndPutsTheCaptionBack)
{
    GatherTool tool;
    tool.current.setVisible(false);
    tool.files.with(source, logOf(3));
    tool.copyLog(log);
    EXPECT_TRUE(tool.current.visible());
    EXPECT_EQ(3 * 42.0F, tool.current.maximum());
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
    EXPECT_EQ("Processing", tool.label.caption());
}

TEST(ProcessOrvanLogFile, ShowsProgressAtLine1AndEvery1000thLine)
{
    GatherTool tool;
    tool.files.with(source, logOf(2'500));
    std::vector<float> values;
    tool.desktop.onPump([&] { values.push_back(tool.current.value()); });
    CaptionRecorder captions(tool.label);
    tool.copyLog(log);

    EXPECT_EQ(3, tool.desktop.pumps());
    EXPECT_EQ((std::vector<float>{40, 40'000, 80'000}), values) << "characters without line ends";
    EXPECT_EQ(
        (std::vector<std::string>{"Processing 104960 Bytes Left", "Processing 65000 Bytes Left",
                                  "Processing 25000 Bytes Left", "Processing"}),
        captions.captions)
        << "bytes left leave out line ends too, and don't reach 0";
    EXPECT_EQ(3, captions.refreshes);
}

TEST(ProcessOrvanLogFile, SleepsAMillisecondEvery100Lines)
{
    GatherTool tool;
    tool.files.with(source, logOf(399));
    tool.copyLog(log);
    EXPECT_EQ((std::vector<int>{1, 1, 1}), tool.clock.sleeps());
}

TEST(ProcessOrvanLogFile, ACancelTakesEffectAtTheNextProgressPoint)
{
    struct Case {
        const char* because;
        int atPump;
        int linesCopied;
    };
    const Case cases[] = {
        {"asked for at line 1", 1, 1},
        {"asked for at line 1000", 2, 1'000},
        {"asked for at line 2000", 3, 2'000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        GatherTool tool;
        tool.files.with(source, logOf(2'500));
        tool.desktop.onPump([&] {
            if (tool.desktop.pumps() == c.atPump) mdlLogs::cancelCurrentProcess(tool.context, true);
        });
        tool.copyLog(log);
        EXPECT_EQ(copyOf(c.linesCopied), tool.files.content(target));
        EXPECT_TRUE(mdlLogs::cancelCurrentProcess(tool.context)) << "the driver takes it back";
        EXPECT_EQ("Processing", tool.label.caption());
        EXPECT_EQ(tool.current.maximum(), tool.current.value());
    }
}

TEST(ProcessOrvanLogFile, ACancelBetweenTwoProgressPointsWaitsForTheSecond)
{
    GatherTool tool;
    tool.files.with(source, logOf(2'500));
    tool.clock.onSleep([&] {
        if (tool.clock.sleeps().size() == 5) mdlLogs::cancelCurrentProcess(tool.context, true);
    });
    tool.copyLog(log);
    EXPECT_EQ(copyOf(1'000), tool.files.content(target));
}

TEST(ProcessOrvanLogFile, CopiesAFormattedLogOnceMore)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\a_fmtd.txt", copyOf(1));
    tool.copyLog("a_fmtd.txt");
    EXPECT_EQ("15:23:07:123 (Conv,1234,CallFlow,7) 000001  \r\n",
              tool.files.content("C:\\Out\\a_fmtd_fmtd.txt"));
}
