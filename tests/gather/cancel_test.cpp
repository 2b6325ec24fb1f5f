#include "gather/cancel.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlLogs::cancelCurrentProcess;

TEST(CancelCurrentProcess, RemembersTheRequestUntilItIsTakenBack)
{
    TestTool tool;
    EXPECT_FALSE(cancelCurrentProcess(tool.context));
    cancelCurrentProcess(tool.context, true);
    EXPECT_TRUE(cancelCurrentProcess(tool.context));
    cancelCurrentProcess(tool.context, false);
    EXPECT_FALSE(cancelCurrentProcess(tool.context));
}

TEST(CancelCurrentProcess, LogsEachStoreAndNoQuestion)
{
    TestTool tool;
    cancelCurrentProcess(tool.context);
    EXPECT_FALSE(tool.context.g_log.exists());

    cancelCurrentProcess(tool.context, true);
    cancelCurrentProcess(tool.context, false);
    int stores = 0;
    for (const LogLine& line : tool.logLines()) {
        if (line.procName != "[mdlLogs]cancelCurrentProcess") continue;
        ++stores;
        EXPECT_EQ("Info", line.level);
        EXPECT_EQ("Cancelling current process", line.message);
    }
    EXPECT_EQ(2, stores);
}
