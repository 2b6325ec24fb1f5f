#include "gather/gather_tool.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::string log = "diag_RoCsMgr_20051008_152307.txt";
const std::string source = "C:\\Logs\\" + log;
const std::string target = "C:\\Out\\diag_RoCsMgr_20051008_152307_fmtd.txt";
const std::string proc = "[mdlLogs]processOrvanLogFile";

std::ptrdiff_t linesOf(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}

} // namespace

TEST(ProcessOrvanLogFileErrors, AMalformedLineIsABlankInTheCopyAndDoesNotEndIt)
{
    GatherTool tool;
    tool.files.with(source, "this is not a line of any log\r\n" + logOf(1));
    tool.copyLog(log);
    EXPECT_EQ(" \r\n" + copyOf(1), tool.files.content(target));
    EXPECT_EQ(1U, tool.failures("[mdlDiagnostics]formatLineSafe").size());
    EXPECT_TRUE(tool.failures(proc).empty());
}

TEST(ProcessOrvanLogFileErrors, ManyMalformedLinesKnowNoLimit)
{
    GatherTool tool;
    std::string text;
    for (int number = 0; number < 40; ++number) text += "this is not a line of any log\r\n";
    tool.files.with(source, text + logOf(1));
    tool.copyLog(log);
    EXPECT_EQ(41, linesOf(tool.files.content(target)));
    EXPECT_EQ(40U, tool.failures().size());
}

TEST(ProcessOrvanLogFileErrors, Error5IsAWarningInWordsOfItsOwn)
{
    GatherTool tool;
    tool.files.with(source, logOf(1)).with(target, "").failing(target, 5);
    tool.copyLog(log);
    const auto lines = tool.logLines();
    const auto warnings = std::count_if(lines.begin(), lines.end(), [](const LogLine& line) {
        return line.level == "Warning" && line.procName == "processOrvanLogFile" &&
               line.message.rfind("Could not format: ", 0) == 0;
    });
    EXPECT_EQ(1, warnings) << "the target could not be made";
    EXPECT_EQ((std::vector<std::string>(2, "Err.Number = 91 Err.Description = "
                                           "Object variable or With block variable not set")),
              tool.failures(proc))
        << "a line to write and a file to close, and no target for either";
}

TEST(ProcessOrvanLogFileErrors, ALineThatCantBeReadLeavesTheOneBeforeItInItsPlace)
{
    GatherTool tool;
    tool.files.with(source, logOf(5)).failingAfterLines(source, 2, 57);
    tool.copyLog(log);
    const std::string copy = tool.files.content(target);
    EXPECT_EQ(copyOf(2), copy.substr(0, copyOf(2).size()));
    EXPECT_EQ(copyOf(2).substr(copyOf(1).size()), copy.substr(copyOf(2).size(), copyOf(1).size()));
    EXPECT_FALSE(tool.failures(proc).empty());
    EXPECT_EQ("Err.Number = 57 Err.Description = Device I/O error", tool.failures(proc)[0]);
}

TEST(ProcessOrvanLogFileErrors, ADeviceThatNeverRecoversDoesNotKeepTheImporterForEver)
{
    GatherTool tool;
    tool.files.with(source, logOf(5)).failingAfterLines(source, 2, 57);
    tool.copyLog(log);
    EXPECT_EQ(11U, tool.failures(proc).size());
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanLogFileErrors, ALogThatMayNotBeReadLeavesAnEmptyCopy)
{
    GatherTool tool;
    tool.files.with(source, logOf(5)).failingAfterLines(source, 0, 70);
    tool.copyLog(log);
    EXPECT_TRUE(tool.logged("Exiting " + proc));
    EXPECT_FALSE(tool.failures(proc).empty());
}

TEST(ProcessOrvanLogFileErrors, ATargetThatMayNotBeWrittenIsLoggedForEachLineThatIsLost)
{
    GatherTool tool;
    tool.files.with(source, logOf(5)).with(target, "kept").readOnly(target);
    tool.copyLog(log);
    EXPECT_EQ("kept", tool.files.content(target));
    const auto failures = tool.failures(proc);
    ASSERT_EQ(7U, failures.size()) << "making it, five lines, closing it";
    EXPECT_EQ("Err.Number = 70 Err.Description = Permission denied", failures[0]);
}

TEST(ProcessOrvanLogFileErrors, AFullDiskEndsTheCopyAndNotTheRoutine)
{
    GatherTool tool;
    tool.files.with(source, logOf(2'000));
    tool.desktop.onPump([&] { tool.files.roomFor(100); });
    tool.copyLog(log);
    EXPECT_LT(linesOf(tool.files.content(target)), 10);
    EXPECT_EQ(3, tool.desktop.pumps()) << "the log was read to its end";
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
}

TEST(ProcessOrvanLogFileErrors, ADestinationThatIsNotThereIsLogged)
{
    GatherTool tool;
    tool.files.with(source, logOf(1));
    mdlLogs::processOrvanLogFile(tool.context, log, "C:\\Nowhere", tool.current, tool.label);
    ASSERT_EQ(3U, tool.failures(proc).size());
    EXPECT_EQ("Err.Number = 76 Err.Description = Path not found", tool.failures(proc)[0]);
}

TEST(ProcessOrvanLogFileErrors, ANameWithoutAPointHasNoNameForItsCopy)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag", logOf(1));
    tool.copyLog("diag");
    EXPECT_EQ(1U, tool.failures("[mdlDiagnostics]appendFormattedTagToFile").size());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanLogFileErrors, ALogThatGrowsWhileItIsReadIsCopiedToItsEnd)
{
    GatherTool tool;
    tool.files.with(source, logOf(10));
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() == 1) tool.files.openForAppending(source)->write(logOf(1'500));
    });
    tool.copyLog(log);
    EXPECT_EQ(copyOf(10) + copyOf(1'500), tool.files.content(target));
    EXPECT_EQ(
        (std::vector<std::string>{"Err.Number = 380 Err.Description = Invalid property value"}),
        tool.failures(proc))
        << "the bar was made for the size at the opening";
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
}
