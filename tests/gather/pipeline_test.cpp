#include "gather/gather_tool.h"

#include <gtest/gtest.h>

TEST(ProcessLogs, PassesOverTheEmptyLeavesOfTwoEmptyLists)
{
    GatherTool tool;
    tool.withServerLog("").withEventLog("");
    EXPECT_EQ("C:\\Out", tool.gather());
    EXPECT_EQ(2.0F, tool.overall.maximum());
    EXPECT_EQ(2.0F, tool.overall.value());
    EXPECT_TRUE(tool.eventLogExporter.exports().empty());
    EXPECT_TRUE(tool.desktop.messages().empty());
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_FALSE(tool.logged("processOrvanLogFile"));
}

TEST(ProcessLogs, CopiesServerLogsAndCapturesEventLogs)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1)).with("C:\\Logs\\data_b_2.txt", logOf(2));
    tool.withServerLog("diag_a_1.txt").withServerLog("data_b_2.txt");
    tool.withEventLog("Application").withEventLog("System");
    tool.gather();
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_a_1_fmtd.txt"));
    EXPECT_EQ(copyOf(2), tool.files.content("C:\\Out\\data_b_2_fmtd.txt"))
        << "a folder gather asks no log's name what it is";
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\Application.csv"));
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\System.csv"));
    EXPECT_EQ(4.0F, tool.overall.maximum());
    EXPECT_EQ(4.0F, tool.overall.value());
    EXPECT_TRUE(tool.logged("Entering [mdlLogs]processLogs"));
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processLogs"));
}

TEST(ProcessLogs, MakesTheLastLevelOfTheDestinationAlone)
{
    GatherTool tool;
    tool.withServerLog("").withEventLog("").gather("C:\\Out\\LogsFrom20061231_235959");
    EXPECT_TRUE(tool.files.folderExists("C:\\Out\\LogsFrom20061231_235959"));

    GatherTool deeper;
    deeper.withServerLog("").withEventLog("").gather("C:\\Out\\a\\b");
    EXPECT_FALSE(deeper.files.folderExists("C:\\Out\\a"));
    EXPECT_EQ((std::vector<std::string>{"Err.Number = 76 Err.Description = Path not found"}),
              deeper.failures("[mdlLogs]processLogs"));
}

TEST(ProcessLogs, TellsInTheLabelWhatIsBeingDone)
{
    GatherTool tool;
    tool.withServerLog("diag_a_1.txt").withEventLog("Application");
    CaptionRecorder captions(tool.label);
    tool.gather();
    EXPECT_EQ((std::vector<std::string>{"Processing diag_a_1.txt...",
                                        "Processing Windows Application Event Log..."}),
              captions.captions);
    EXPECT_EQ(2, captions.refreshes);
}

TEST(ProcessLogs, TheLinesProgressCaptionBeginsWithTheLogs)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withEventLog("");
    CaptionRecorder captions(tool.label);
    tool.gather();
    EXPECT_EQ((std::vector<std::string>{"Processing diag_a_1.txt...",
                                        "Processing diag_a_1.txt... 2 Bytes Left",
                                        "Processing diag_a_1.txt..."}),
              captions.captions);
}

TEST(ProcessLogs, TheCurrentLeafStandsInBoldAndInSight)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1)).with("C:\\Logs\\diag_b_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withServerLog("diag_b_1.txt");
    std::vector<std::string> bold;
    tool.desktop.onPump([&] {
        for (int index = 1; index <= tool.steps.count(); ++index)
            if (tool.steps.item(index).bold()) bold.push_back(tool.steps.item(index).text());
        EXPECT_EQ(bold.back(), tool.steps.nodeInSight()->text());
    });
    tool.gather();
    EXPECT_EQ((std::vector<std::string>{"diag_a_1.txt", "diag_b_1.txt"}), bold);
    for (int index = 1; index <= tool.steps.count(); ++index)
        EXPECT_FALSE(tool.steps.item(index).bold());
}

TEST(ProcessLogs, ShowsTheTreeAtEachLeafAndTheBarAtEachProgressPoint)
{
    struct RefreshCounter final : ControlObserver {
        void changed(Control&) override {}
        void refreshed(Control&) override { ++refreshes; }
        int refreshes = 0;
    } tree, bar;
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(2'000));
    tool.withServerLog("diag_a_1.txt").withEventLog("");
    tool.steps.observe(&tree);
    tool.current.observe(&bar);
    tool.gather();
    EXPECT_EQ(2, tree.refreshes);
    EXPECT_EQ(3, bar.refreshes);
}

TEST(ProcessLogs, ASecondRunBeginsItsProgressAnew)
{
    GatherTool tool;
    tool.withServerLog("").withEventLog("");
    tool.gather();
    tool.gather();
    EXPECT_EQ(2.0F, tool.overall.value());
    EXPECT_TRUE(tool.failures().empty()) << "past its maximum the bar takes no value";
}

TEST(ProcessLogs, KnowsServerLogsByTheBranchAndItsCase)
{
    struct Case {
        const char* because;
        const char* branch;
        bool serverLog;
    };
    const Case cases[] = {
        {"the literal text", "Orvan Logs", true},
        {"a text that goes on", "Orvan Logs of yesterday", true},
        {"another case", "orvan logs", false},
        {"another text", "Windows Event Logs", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        GatherTool tool;
        tool.steps.item(1).setText(c.branch);
        tool.withServerLog("Application");
        tool.gather();
        EXPECT_EQ(c.serverLog, tool.desktop.messages().size() == 1);
        EXPECT_EQ(!c.serverLog, tool.files.fileExists("C:\\Out\\Application.csv"));
    }
}

TEST(ProcessLogs, ACancelEndsTheWalkAfterTheLeafAndIsForgotten)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1'500))
        .with("C:\\Logs\\diag_b_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withServerLog("diag_b_1.txt").withEventLog("System");
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() == 2) mdlLogs::cancelCurrentProcess(tool.context, true);
    });
    EXPECT_EQ("C:\\Out", tool.gather());
    EXPECT_EQ(copyOf(1'000), tool.files.content("C:\\Out\\diag_a_1_fmtd.txt"));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\diag_b_1_fmtd.txt"));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\System.csv"));
    EXPECT_EQ(1.0F, tool.overall.value()) << "the cancelled leaf counts";
    EXPECT_FALSE(mdlLogs::cancelCurrentProcess(tool.context));
}

TEST(ProcessLogs, ACancelLeftFromBeforeStopsAfterTheFirstProgressPoint)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(10));
    tool.withServerLog("diag_a_1.txt").withEventLog("System");
    mdlLogs::cancelCurrentProcess(tool.context, true);
    tool.gather();
    EXPECT_EQ(copyOf(1), tool.files.content("C:\\Out\\diag_a_1_fmtd.txt"));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\System.csv"));
    EXPECT_FALSE(mdlLogs::cancelCurrentProcess(tool.context));
}

TEST(ProcessLogs, ACancelDuringAnEventLogTakesEffectAfterIt)
{
    GatherTool tool;
    tool.withEventLog("Application").withEventLog("System");
    struct Canceller final : ControlObserver {
        explicit Canceller(GatherTool& owner) : tool(owner) {}
        void changed(Control&) override { mdlLogs::cancelCurrentProcess(tool.context, true); }
        GatherTool& tool;
    } canceller(tool);
    tool.current.observe(&canceller); // the bar is hidden as the capture begins
    tool.gather();
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\Application.csv"));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\System.csv"));
}

TEST(ProcessLogs, TheProgressBarStaysHiddenAfterTheLastEventLog)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withEventLog("System");
    tool.gather();
    EXPECT_FALSE(tool.current.visible());
    tool.gather();
    EXPECT_FALSE(tool.current.visible());
}

TEST(ProcessLogs, MakesNoDatabaseForAHandSelection)
{
    GatherTool tool;
    tool.files.with("C:\\Logs\\diag_a_1.txt", logOf(1));
    tool.withServerLog("diag_a_1.txt").withEventLog("").gather();
    EXPECT_EQ("", tool.context.g_strTraceDatabase);
    EXPECT_TRUE(tool.files.matching("C:\\Out\\*.mdb").empty());
}
