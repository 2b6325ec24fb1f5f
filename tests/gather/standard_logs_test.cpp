#include "gather/logs.h"

#include "core/registry_store.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

using mdlLogs::defineStandardLogs;

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
