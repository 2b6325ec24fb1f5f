#include "gather/logs.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlLogs::getAllLogsForProcess;

namespace {

struct LogFilesTool : TestTool {
    LogFilesTool()
    {
        context.g_strLogFolder = "C:\\Logs";
        files.withFolder("C:\\Logs");
    }
};

} // namespace

TEST(GetAllLogsForProcess, ListsTheLogsOfOneProcessFromIndex1)
{
    LogFilesTool tool;
    tool.files.with("C:\\Logs\\diag_RoCsMgr_20051008_152307.txt")
        .with("C:\\Logs\\diag_RoCsMgr_20051009_152307.txt")
        .with("C:\\Logs\\diag_RoOther_20051008_152307.txt")
        .with("C:\\Logs\\data_RoCsMgr_20051008_152307.txt")
        .with("C:\\Logs\\diag_RoCsMgr_20051008_152307.old");
    const StringArray logs = getAllLogsForProcess(tool.context, "RoCsMgr");
    ASSERT_EQ(2, logs.upperBound());
    EXPECT_EQ("", logs.at(0));
    EXPECT_EQ("diag_RoCsMgr_20051008_152307.txt", logs.at(1));
    EXPECT_EQ("diag_RoCsMgr_20051009_152307.txt", logs.at(2));
}

TEST(GetAllLogsForProcess, KeepsFormattedCopiesInTheList)
{
    LogFilesTool tool;
    tool.files.with("C:\\Logs\\diag_RoCsMgr_20051008_152307_fmtd.txt");
    EXPECT_EQ("diag_RoCsMgr_20051008_152307_fmtd.txt",
              getAllLogsForProcess(tool.context, "RoCsMgr").at(1));
}

TEST(GetAllLogsForProcess, HasAnUpperBoundOf0WhenThereAreNone)
{
    LogFilesTool tool;
    const StringArray logs = getAllLogsForProcess(tool.context, "RoCsMgr");
    EXPECT_EQ(0, logs.upperBound());
    EXPECT_EQ("", logs.at(0));
}

TEST(GetAllLogsForProcess, IsCutToAsManyNamesAsThereAre)
{
    for (const int count : {9, 10, 11, 20, 21, 150}) {
        SCOPED_TRACE(count);
        LogFilesTool tool;
        for (int number = 0; number < count; ++number)
            tool.files.with("C:\\Logs\\diag_P_" + std::to_string(1000 + number) + ".txt");
        const StringArray logs = getAllLogsForProcess(tool.context, "P");
        EXPECT_EQ(count, logs.upperBound());
        EXPECT_EQ("diag_P_" + std::to_string(999 + count) + ".txt", logs.at(count));
    }
}

TEST(GetAllLogsForProcess, LogsAListingThatFails)
{
    LogFilesTool tool;
    tool.context.g_log->log("so that the log's own file is there", 0, "test");
    tool.files.failing("C:\\Logs\\diag_RoCsMgr_*.txt", 70).failing("C:\\Logs", 70);
    EXPECT_EQ(0, getAllLogsForProcess(tool.context, "RoCsMgr").upperBound());
    EXPECT_EQ((std::vector<std::string>{"Err.Number = 70 Err.Description = Permission denied"}),
              tool.failures("[mdlLogs]getAllLogsForProcess"));
}
