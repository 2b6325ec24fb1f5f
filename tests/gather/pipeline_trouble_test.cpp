#include "gather/gather_tool.h"

#include <gtest/gtest.h>

namespace {
const std::string proc = "[mdlLogs]processLogs";
const std::string invalidValue = "Err.Number = 380 Err.Description = Invalid property value";
} // namespace

TEST(ProcessLogsTrouble, ATreeOfItsRootsAloneHasAMaximumOf0WhichIsAnErrorThatIsLogged)
{
    GatherTool tool;
    tool.gather();
    EXPECT_EQ(0.0F, tool.overall.maximum());
    ASSERT_FALSE(tool.failures(proc).empty());
    EXPECT_EQ(invalidValue, tool.failures(proc)[0]);
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessLogsTrouble, ALogThatVanishedIsToldAndTheWalkGoesOn)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_b_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withServerLog("diag_b_1.txt");
    tool.gather();
    EXPECT_EQ(1U, tool.desktop.messages().size());
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_b_1_fmtd.txt"));
    EXPECT_EQ(2.0F, tool.overall.value());
}

TEST(ProcessLogsTrouble, OneBadFileDoesNotStopTheOthers)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(3))
        .failingAfterLines("C:\\Logs\\diag_a_1.txt", 1, 57)
        .with("C:\\Logs\\diag_b_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withServerLog("diag_b_1.txt").withEventLog("Nothing");
    tool.withEventLog("System").gather();
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_b_1_fmtd.txt"));
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\System.csv"));
    EXPECT_EQ(4.0F, tool.overall.value());
}

TEST(ProcessLogsTrouble, AFolderThatCantBeMadeDoesNotStopTheWalk)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").gather("C:\\no\\such");
    EXPECT_EQ(1.0F, tool.overall.value());
    EXPECT_FALSE(tool.failures("[mdlLogs]processOrvanLogFile").empty());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessLogsTrouble, ATreeThatIsFilledAnewWhileARunWalksItLeavesTheRunWhole)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1)).with("C:\\Logs\\diag_b_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withServerLog("diag_b_1.txt").withEventLog("System");
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() != 1) return;
        tool.steps.clear();
        tool.steps.add("Orvan Logs");
        tool.steps.add("Windows Event Logs");
        tool.withServerLog("diag_b_1.txt").withEventLog("Application");
    });
    tool.gather();
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_a_1_fmtd.txt"));
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\Application.csv"))
        << "the walk goes on by number in the new tree";
    EXPECT_EQ((std::vector<std::string>{
                  "Err.Number = 35605 Err.Description = This item's control has been deleted"}),
              tool.failures(proc));
}

TEST(ProcessLogsTrouble, ARunWithinARunEndsBoth)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withEventLog("System");
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() == 1) tool.gather("C:\\Out\\inner");
    });
    tool.gather();
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\inner\\diag_a_1_fmtd.txt"));
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_a_1_fmtd.txt"));
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\System.csv"));
}

TEST(ProcessLogsTrouble, NoPlatformThatFailsEverywhereGetsAnErrorOut)
{
    GatherTool tool;
    tool.withServerLog("diag_a_1.txt").withEventLog("System");
    tool.files.failingAll(70);
    tool.eventLogExporter.failing(429);
    EXPECT_EQ("C:\\Out", tool.gather());
    EXPECT_EQ(2.0F, tool.overall.value());
}
