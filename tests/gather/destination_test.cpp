#include "gather/destination.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlLogs::getLogFileDestinationDirectory;

TEST(GetLogFileDestinationDirectory, IsAFolderOfThePresentSecondInTheTemporaryFolder)
{
    TestTool tool;
    tool.clock.at(dateOf(2006, 12, 31, 23, 59, 59));
    EXPECT_EQ(tool.files.specialFolder(SpecialFolder::temporary) + "\\LogsFrom20061231_235959",
              getLogFileDestinationDirectory(tool.context));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(GetLogFileDestinationDirectory, TakesTheLongFormOfTheTemporaryFolder)
{
    TestTool tool;
    tool.clock.at(dateOf(2005, 1, 2, 3, 4, 5));
    tool.files.longName(tool.files.specialFolder(SpecialFolder::temporary),
                        "C:\\Documents and Settings\\support\\Temp");
    EXPECT_EQ("C:\\Documents and Settings\\support\\Temp\\LogsFrom20050102_030405",
              getLogFileDestinationDirectory(tool.context));
}

TEST(GetLogFileDestinationDirectory, LogsAFailedStatementAndGoesOn)
{
    TestTool tool;
    const std::string temporary = tool.files.specialFolder(SpecialFolder::temporary);
    tool.files.failing(temporary, 70);
    tool.clock.at(dateOf(2005, 1, 2, 3, 4, 5));
    EXPECT_EQ("\\LogsFrom20050102_030405", getLogFileDestinationDirectory(tool.context));
    EXPECT_FALSE(tool.failures("[mdlLogs]getLogFileDestinationDirectory").empty());
}
