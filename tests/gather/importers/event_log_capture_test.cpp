#include "gather/importers/event_log_capture.h"

#include "gather/gather_tool.h"

#include <gtest/gtest.h>

namespace {

void capture(GatherTool& tool, const std::string& logName, Date start = {}, Date end = {})
{
    mdlLogs::processWindowsEventLogFile(tool.context, logName, "C:\\Out", tool.current, tool.label,
                                        start, end);
}

} // namespace

TEST(ProcessWindowsEventLogFile, WritesTheWholeLogWhateverTheTimeFrame)
{
    GatherTool tool;
    tool.eventLogExporter.with("System", "a,b\r\nc,d\r\n");
    capture(tool, "System", dateOf(2005, 10, 8), dateOf(2005, 10, 9));
    ASSERT_EQ(1U, tool.eventLogExporter.exports().size());
    EXPECT_EQ((FakeEventLogExporter::Export{"System", "C:\\Out\\System.csv", 0}),
              tool.eventLogExporter.exports()[0]);
    EXPECT_NE(std::string::npos, tool.files.content("C:\\Out\\System.csv").find("c,d"));
    EXPECT_TRUE(tool.logged("Entering [mdlLogs]processWindowsEventLogFile"));
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processWindowsEventLogFile"));
}

TEST(ProcessWindowsEventLogFile, HidesTheProgressBarAndLeavesItHidden)
{
    GatherTool tool;
    capture(tool, "Application");
    EXPECT_FALSE(tool.current.visible());
    EXPECT_EQ("Processing", tool.label.caption());
}

TEST(ProcessWindowsEventLogFile, LogsAnEventLogThatDoesNotExist)
{
    GatherTool tool;
    capture(tool, "Nothing");
    EXPECT_EQ((std::vector<std::string>{"Err.Number = 53 Err.Description = File not found"}),
              tool.failures("[mdlLogs]processWindowsEventLogFile"));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\Nothing.csv"));
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processWindowsEventLogFile"));
}

TEST(ProcessWindowsEventLogFile, PumpsNoMessages)
{
    GatherTool tool;
    capture(tool, "System");
    EXPECT_EQ(0, tool.desktop.pumps());
}
