#include "gather/gather_tool.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;
const Date morning = dateOf(2005, 10, 8, 9, 0, 0);
const Date evening = dateOf(2005, 10, 8, 21, 0, 0);
const std::string path = "C:\\Out\\ORVAN01_WPN_20051008_152307.mdb";
const std::string proc = "[mdlLogs]processLogs";

/// A tool whose gather has a time frame, a template and two macro trace definitions.
struct FrameTool : GatherTool {
    FrameTool()
    {
        files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank")
            .with("C:\\OrvanDiagnostics\\cabmaker.exe", "program")
            .with("C:\\Macros\\HTa.xml", "<a/>")
            .with("C:\\Macros\\HTb.xml", "<b/>");
        context.g_strMacroTraceFolder = "C:\\Macros";
        processes.onStart(
            [this](const std::string&) { callsAtPacking = traceDatabases.calls().size(); });
    }

    FrameTool& withLog(const std::string& name, const std::string& text)
    {
        files.with("C:\\Logs\\" + name, text).created("C:\\Logs\\" + name, morning);
        withServerLog(name);
        return *this;
    }

    std::string gatherFrame(const std::string& destination = "C:\\Out")
    {
        return mdlLogs::processLogs(context, steps, label, current, overall, destination, morning,
                                    evening);
    }

    std::size_t rows(const std::string& table) const { return traceDatabases.rows(table).size(); }

    std::size_t callsAtPacking = 0;
};

Texts withPrefix(const Texts& calls, const std::string& prefix)
{
    Texts found;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                 [&](const std::string& call) { return call.rfind(prefix, 0) == 0; });
    return found;
}

} // namespace

TEST(DatabaseGather, FillsAllThreeTables)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(2)).withLog("data_B_1.txt", "2005-10-08 17:00:00,S,1,x\r\n");
    tool.withEventLog("Application");
    EXPECT_EQ("C:\\Out", tool.gatherFrame());
    EXPECT_EQ(path, tool.context.g_strTraceDatabase);
    EXPECT_EQ((Texts{path}), tool.traceDatabases.opened());
    EXPECT_EQ(3U, tool.rows("tblTraces"));
    EXPECT_EQ(2U, tool.rows("tblMacroTraces"));
    EXPECT_EQ(2U, tool.rows("tblUniqueFilters"));
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\Application.csv"));
    EXPECT_TRUE(tool.files.matching("C:\\Out\\*_fmtd.txt").empty());
    EXPECT_EQ("", tool.label.caption());
}

TEST(DatabaseGather, TellsInTheLabelThatTheCabinetIsBeingMade)
{
    FrameTool tool;
    tool.withServerLog("").withEventLog("");
    std::string whilePacking;
    tool.processes.onStart([&](const std::string&) { whilePacking = tool.label.caption(); });
    CaptionRecorder captions(tool.label);
    tool.gatherFrame();
    EXPECT_EQ("Creating .CAB file...", whilePacking);
    EXPECT_EQ((Texts{"Creating .CAB file...", ""}), captions.captions);
}

TEST(DatabaseGather, OpensAndClosesInOrderAndBeforeThePacking)
{
    FrameTool tool;
    tool.withServerLog("").withEventLog("");
    tool.gatherFrame();
    const Texts& calls = tool.traceDatabases.calls();
    EXPECT_EQ("openDatabase", calls.front());
    EXPECT_EQ((Texts{"openRecordset tblTraces", "openRecordset tblMacroTraces",
                     "openRecordset tblUniqueFilters"}),
              withPrefix(calls, "openRecordset"));
    EXPECT_EQ((Texts{"close tblUniqueFilters", "close tblMacroTraces", "close tblTraces", "close"}),
              withPrefix(calls, "close"));
    EXPECT_EQ(calls.size(), tool.callsAtPacking);
}

TEST(DatabaseGather, TheNameOfALogDecidesItsImporter)
{
    struct Case {
        const char* because;
        const char* name;
        const char* importer;
    };
    const Case cases[] = {
        {"diag at its head", "diag_A_1.txt", "[mdlLogs]processOrvanLogFileToDB"},
        {"in any case", "DIAG_A_1.TXT", "[mdlLogs]processOrvanLogFileToDB"},
        {"anywhere", "old_mydiag_1.txt", "[mdlLogs]processOrvanLogFileToDB"},
        {"not at all", "data_A_1.txt", "[mdlLogs]processOrvanDataFileToDB"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        FrameTool tool;
        tool.withLog(c.name, "").gatherFrame();
        EXPECT_TRUE(tool.logged(std::string("Entering ") + c.importer));
    }
}

TEST(DatabaseGather, AFrameWithoutLogsPacksADatabaseOfMacroTraces)
{
    FrameTool tool;
    tool.withServerLog("").withEventLog("");
    tool.gatherFrame();
    EXPECT_EQ(0U, tool.rows("tblTraces"));
    EXPECT_EQ(2U, tool.rows("tblMacroTraces"));
    EXPECT_EQ(0U, tool.rows("tblUniqueFilters"));
    EXPECT_EQ(1U, tool.processes.commandLines().size());
}

TEST(DatabaseGather, ACancelledOneStillEndsWithADatabaseAndACabinet)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(1'500)).withLog("diag_B_1.txt", logOf(1));
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() == 2) mdlLogs::cancelCurrentProcess(tool.context, true);
    });
    tool.gatherFrame();
    EXPECT_EQ(1'000U, tool.rows("tblTraces"));
    EXPECT_EQ(1U, tool.rows("tblUniqueFilters"));
    EXPECT_EQ(1U, tool.processes.commandLines().size());
    EXPECT_FALSE(mdlLogs::cancelCurrentProcess(tool.context));
}

TEST(DatabaseGather, ACancelDuringThePackingStopsTheNextGather)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(10)).withEventLog("");
    tool.processes.onStart(
        [&](const std::string&) { mdlLogs::cancelCurrentProcess(tool.context, true); });
    tool.gatherFrame();
    EXPECT_TRUE(mdlLogs::cancelCurrentProcess(tool.context));
    const std::size_t rows = tool.rows("tblTraces");
    tool.gatherFrame();
    EXPECT_EQ(rows + 1, tool.rows("tblTraces")) << "its first progress point is line 1";
}

TEST(DatabaseGather, ASecondOneWritesTheFiltersOfTheFirstToo)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(1)).gatherFrame();
    tool.clock.advance(1);
    tool.files.with("C:\\Logs\\diag_A_1.txt", "15:23:07:123,Other,1,CallFlow,7,x\r\n")
        .created("C:\\Logs\\diag_A_1.txt", morning);
    tool.gatherFrame();
    EXPECT_EQ("C:\\Out\\ORVAN01_WPN_20051008_152308.mdb", tool.context.g_strTraceDatabase);
    EXPECT_EQ(3U, tool.rows("tblUniqueFilters")) << "one, and then two";
}

TEST(DatabaseGather, ASecondOneKeepsTheFirstOnesValuesOfAKey)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", "15:23:07:123,A_7_S,1,X,7,x\r\n").gatherFrame();
    tool.files.with("C:\\Logs\\diag_A_1.txt", "15:23:07:123,S,1,X_A_7,7,x\r\n")
        .created("C:\\Logs\\diag_A_1.txt", morning);
    tool.gatherFrame();
    const FakeTraceRow filter = {{"qrvIndex", "X_A_7_A_7_S"},
                                 {"Process", "A"},
                                 {"Source", "A_7_S"},
                                 {"Component", "X"},
                                 {"TraceLevel", "7"}};
    EXPECT_EQ((std::vector<FakeTraceRow>{filter, filter}),
              tool.traceDatabases.rows("tblUniqueFilters"));
}

TEST(DatabaseGather, ACommaInAProcessNameShiftsTheColumnsOfItsFilterAlone)
{
    FrameTool tool;
    tool.withLog("diag_Ro,Cs_1.txt", "15:23:07:123,Conv,1,CallFlow,7,x\r\n").gatherFrame();
    EXPECT_EQ("Ro,Cs", tool.traceDatabases.rows("tblTraces").at(0).at("Process"));
    EXPECT_EQ((std::vector<FakeTraceRow>{{{"qrvIndex", "CallFlow_Ro,Cs_7_Conv"},
                                          {"Process", "Ro"},
                                          {"Source", "Cs"},
                                          {"Component", "Conv"},
                                          {"TraceLevel", "CallFlow"}}}),
              tool.traceDatabases.rows("tblUniqueFilters"));
}

TEST(DatabaseGather, AStandardOneAfterwardsLeavesItsPath)
{
    FrameTool tool;
    tool.withServerLog("").withEventLog("");
    tool.gatherFrame();
    tool.gather();
    EXPECT_EQ(path, tool.context.g_strTraceDatabase);
    EXPECT_EQ(1U, tool.traceDatabases.opened().size());
}

TEST(DatabaseGather, WithoutATemplateNoRowReachesAnyFileAndTheRunEnds)
{
    FrameTool tool;
    tool.files.deleteFile("C:\\OrvanDiagnostics\\blankWPNDB.mdb");
    tool.traceDatabases.failing("openDatabase", 1, traceDatabaseErrors::fileNotFound);
    tool.withLog("diag_A_1.txt", logOf(100)).withLog("data_B_1.txt", "2005-10-08 17:00:00,S,1,x");
    tool.withEventLog("System");
    EXPECT_EQ("C:\\Out", tool.gatherFrame());
    EXPECT_EQ(path, tool.context.g_strTraceDatabase);
    EXPECT_EQ(0U, tool.rows("tblTraces"));
    EXPECT_EQ(3.0F, tool.overall.value());
    EXPECT_TRUE(tool.files.fileExists("C:\\Out\\System.csv"));
    EXPECT_TRUE(tool.logged("Exiting " + proc));
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlLogs]processOrvanLogFileToDB",
              tool.failures("[mdlLogs]processOrvanLogFileToDB").back());
}

TEST(DatabaseGather, ATableThatIsNotThereFailsAtEachUse)
{
    FrameTool tool;
    tool.traceDatabases.failing("openRecordset tblTraces", 1, traceDatabaseErrors::noSuchTable);
    tool.withLog("data_B_1.txt", "2005-10-08 17:00:00,S,1,x\r\n").gatherFrame();
    const Texts failures = tool.failures("[mdlLogs]processOrvanDataFileToDB");
    EXPECT_EQ(12U, failures.size()) << "the row, eight fields, key, value and update";
    EXPECT_EQ(2U, tool.rows("tblMacroTraces"));
}

TEST(DatabaseGather, ADestinationThatVanishesDuringTheWalkDoesNotStopIt)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(1)).withEventLog("System");
    tool.desktop.onPump([&] {
        if (tool.files.folderExists("C:\\Out")) tool.files.withoutFolder("C:\\Out");
    });
    tool.gatherFrame();
    EXPECT_EQ(2.0F, tool.overall.value());
    EXPECT_FALSE(tool.failures("[mdlLogs]compressResults").empty());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(DatabaseGather, NoPlatformThatFailsEverywhereGetsAnErrorOut)
{
    FrameTool tool;
    tool.withLog("diag_A_1.txt", logOf(1)).withEventLog("System");
    tool.files.failingAll(70);
    tool.eventLogExporter.failing(429);
    tool.processes.failing(70);
    tool.traceDatabases.failing("openDatabase", 1, traceDatabaseErrors::cannotOpen);
    EXPECT_EQ("C:\\Out", tool.gatherFrame());
    EXPECT_EQ(2.0F, tool.overall.value());
}
