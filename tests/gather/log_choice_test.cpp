#include "gather/log_choice.h"

#include "core/registry_store.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlLogs::defineStandardLogs;
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

TEST(DefineStandardLogs, WritesTheDefaultWhereTheRegistryNamesNone)
{
    TestTool tool;
    EXPECT_EQ((std::vector<std::string>{"orvan_RoCsMgr", " event_Application", " event_System"}),
              defineStandardLogs(tool.context))
        << "the second and third keep their blank";
    EXPECT_EQ("orvan_RoCsMgr, event_Application, event_System",
              tool.registry.text(toolKey, "Standard Logs"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(DefineStandardLogs, LeavesAValueThatIsThereAlone)
{
    TestTool tool;
    tool.registry.withText(toolKey, "Standard Logs", "one,two");
    EXPECT_EQ((std::vector<std::string>{"one", "two"}), defineStandardLogs(tool.context));
    EXPECT_EQ("one,two", tool.registry.text(toolKey, "Standard Logs"));
    EXPECT_TRUE(tool.registry.written().empty());
}

TEST(DefineStandardLogs, LogsAKeyThatCantBeMadeAndStillGivesTheDefault)
{
    TestTool tool;
    tool.registry.closed(toolKey);
    EXPECT_EQ(3U, defineStandardLogs(tool.context).size());
    EXPECT_EQ((std::vector<std::string>{
                  "Err.Number = 1001 Err.Description = Unable to create the registry key"}),
              tool.failures("[mdlLogs]defineStandardLogs"));
}
