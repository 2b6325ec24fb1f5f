#include "gather/import_tool.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::string file = "data_RoCsMgr_20051008_093000.txt";
const std::string path = "C:\\Logs\\" + file;
const std::string closedPath = "c:\\logs\\data_rocsmgr_20051008_093000.txt";
const std::string proc = "[mdlLogs]processOrvanDataFileToDB";
const Date morning = dateOf(2005, 10, 8, 9, 30, 0);
using Texts = std::vector<std::string>;

/// A tool seven hours behind universal time.
struct DataTool : ImportTool {
    DataTool()
    {
        timeZone.fixed(7 * 60);
        timeZone.read(context.g_timeZone);
    }
};

/// Lines of 30 bytes that lie in the frame.
std::string inside(int count)
{
    std::string text;
    for (int number = 0; number < count; ++number) text += "2005-10-08 22:00:00,S,1,a line\r\n";
    return text;
}

} // namespace

TEST(ProcessOrvanDataFileToDB, AddsARowWithFewerFields)
{
    DataTool tool;
    tool.withLog(file, morning, {"2005-10-08 22:23:07,Conv,1234,a record, with commas"});
    tool.importData(file);
    ASSERT_EQ(1U, tool.rows().size());
    EXPECT_EQ((FakeTraceRow{{"Date", "10/8/2005 15:23:07:000"},
                            {"Process", "RoCsMgr"},
                            {"Source", "Conv"},
                            {"TraceNumber", "1234"},
                            {"Component", "Data File"},
                            {"TraceLevel", "-99"},
                            {"Trace", "a record, with commas"},
                            {"Highlight", "0"},
                            {"qrvIndex", "Data File_RoCsMgr_-99_Conv"}}),
              tool.rows()[0])
        << "port and call id stay Null, and highlight has the template's default";
    EXPECT_EQ(0, tool.eventReporter.linesFormatted());
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Entering " + proc));
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanDataFileToDB, TakesTheProcessForUtf8)
{
    std::string process;
    for (int letter = 0; letter < 200; ++letter) process += "\xC3\xB6";
    const std::string name = "data_" + process + "_20051008_093000.txt";
    DataTool tool;
    tool.withLog(name, morning, {"2005-10-08 22:23:07,Conv,1234,a record"});
    tool.importData(name);
    ASSERT_EQ(1U, tool.rows().size());
    EXPECT_EQ(process, tool.rows()[0].at("Process"))
        << "its 200 letters fit the column, though their 400 bytes would not";
    EXPECT_EQ("Data File_" + process + "_-99_Conv", tool.rows()[0].at("qrvIndex"));
}

TEST(ProcessOrvanDataFileToDB, SetsNeitherPortNorCallIdNorHighlight)
{
    DataTool tool;
    tool.withLog(file, morning, {"2005-10-08 22:23:07,Conv,1,x"});
    tool.importData(file);
    for (const char* name : {"Port", "CallId", "Highlight"}) {
        const auto& calls = tool.traceDatabases.calls();
        EXPECT_EQ(0, std::count(calls.begin(), calls.end(), std::string("set tblTraces.") + name));
    }
}

TEST(ProcessOrvanDataFileToDB, TheDateComesFromTheFileAndMidnightFromLocalTimes)
{
    DataTool tool;
    tool.end = dateOf(2005, 10, 12);
    tool.withLog(
        file, morning,
        {"1999-01-01 22:00:00,S,1,a", "1999-01-02 06:59:59,S,1,b", "1999-01-02 07:00:00,S,1,c"});
    tool.importData(file);
    EXPECT_EQ((Texts{"10/8/2005 15:00:00:000", "10/8/2005 23:59:59:000", "10/9/2005 00:00:00:000"}),
              tool.column("Date"))
        << "midnight of universal time rolls no date";
}

TEST(ProcessOrvanDataFileToDB, LocalTimeIsThatOfTheZoneAsTheToolWasLoaded)
{
    DataTool tool;
    tool.timeZone.fixed(0); // the machine's zone changes later
    tool.withLog(file, morning, {"2005-10-08 22:23:07,S,1,x"});
    tool.importData(file);
    EXPECT_EQ((Texts{"10/8/2005 15:23:07:000"}), tool.column("Date"));
}

TEST(ProcessOrvanDataFileToDB, EndsAtTheFirstLineBehindTheFrame)
{
    DataTool tool;
    tool.start = dateOf(2005, 10, 8, 15, 0, 0);
    tool.end = dateOf(2005, 10, 8, 16, 0, 0);
    tool.withLog(file, morning,
                 {"2005-10-08 21:59:59,S,1,before", "2005-10-08 22:00:00,S,1,first",
                  "2005-10-08 23:00:00,S,1,last", "2005-10-08 23:00:01,S,1,behind",
                  "2005-10-08 22:30:00,S,1,too late"});
    tool.importData(file);
    EXPECT_EQ((Texts{"first", "last"}), tool.column("Trace"));
    EXPECT_EQ("Processing", tool.label.caption()) << "with the common ending";
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
    EXPECT_EQ((Texts{closedPath}), tool.files.closed());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanDataFileToDB, TheLineThatEndsTheReadingHasNoProgressPoint)
{
    DataTool tool;
    tool.end = dateOf(2005, 10, 8, 16, 0, 0);
    tool.files.with(path, inside(999) + "2005-10-08 23:30:00,S,1,behind\r\n" + inside(1))
        .created(path, morning);
    tool.importData(file);
    EXPECT_EQ(999U, tool.rows().size());
    EXPECT_EQ(1, tool.desktop.pumps()) << "line 1 alone, not line 1000";
    EXPECT_EQ(9U, tool.clock.sleeps().size());
}

TEST(ProcessOrvanDataFileToDB, LinesOutsideTheFrameHaveProgressPointsToo)
{
    DataTool tool;
    tool.start = dateOf(2010, 1, 1);
    tool.end = dateOf(2010, 1, 2);
    tool.files.with(path, inside(2'000)).created(path, morning);
    tool.importData(file);
    EXPECT_EQ(3, tool.desktop.pumps());
    EXPECT_EQ(20U, tool.clock.sleeps().size());
    EXPECT_TRUE(tool.rows().empty());
}

TEST(ProcessOrvanDataFileToDB, ACancelTakesEffectAtTheNextMultipleOf1000AndHasTheCommonEnding)
{
    DataTool tool;
    tool.files.with(path, inside(2'500)).created(path, morning);
    tool.clock.onSleep([&] {
        if (tool.clock.sleeps().size() == 3) mdlLogs::cancelCurrentProcess(tool.context, true);
    });
    tool.importData(file);
    EXPECT_EQ(1'000U, tool.rows().size());
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
    EXPECT_EQ((Texts{closedPath}), tool.files.closed());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
    EXPECT_TRUE(mdlLogs::cancelCurrentProcess(tool.context)) << "the walk resets it";
}

TEST(ProcessOrvanDataFileToDB, PutsTheCaptionBackFillsTheBarAndClosesTheFileAtItsEnd)
{
    DataTool tool;
    tool.files.with(path, inside(3)).created(path, morning);
    tool.current.setVisible(false);
    std::string captionAtWork;
    tool.desktop.onPump([&] { captionAtWork = tool.label.caption(); });
    tool.importData(file);
    EXPECT_EQ("Processing 66 Bytes Left", captionAtWork);
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_TRUE(tool.current.visible());
    EXPECT_EQ(96.0F, tool.current.maximum());
    EXPECT_EQ(96.0F, tool.current.value());
    EXPECT_EQ((Texts{closedPath}), tool.files.closed());
}

TEST(ProcessOrvanDataFileToDB, AnEmptySourceOrTraceIsNotChanged)
{
    DataTool tool;
    tool.withLog(file, morning, {"2005-10-08 22:23:07,,1,"});
    tool.importData(file);
    EXPECT_EQ((Texts{"Null"}), tool.column("Source")) << "the column takes no empty text";
    EXPECT_EQ((Texts{"Null"}), tool.column("Trace"));
    EXPECT_EQ((Texts{"Data File_RoCsMgr_-99_"}), tool.column("qrvIndex"));
    EXPECT_EQ(2U, tool.failures(proc).size());
}

TEST(ProcessOrvanDataFileToDB, ADataFileGivesOneFilterForEachSource)
{
    DataTool tool;
    tool.withLog(
        file, morning,
        {"2005-10-08 22:23:07,A,1,x", "2005-10-08 22:23:07,B,2,y", "2005-10-08 22:23:07,A,3,z"});
    tool.importData(file);
    EXPECT_EQ((Texts{"Data File_RoCsMgr_-99_A", "Data File_RoCsMgr_-99_B"}),
              tool.context.g_dictUniqueFilters.keys());
}

TEST(ProcessOrvanDataFileToDB, ALineWithFewerPiecesIsReportedByItsParserAndStillARow)
{
    DataTool tool;
    tool.withLog(file, morning, {"2005-10-08 22:23:07,S"});
    tool.importData(file);
    EXPECT_EQ((Texts{"S"}), tool.column("Source"));
    EXPECT_EQ(2U, tool.failures("[mdlDiagnostics]parseData").size());
}

TEST(ProcessOrvanDataFileToDB, NoNumberOfErrorsEndsTheFile)
{
    DataTool tool;
    std::string text = "2005-10-08 22:00:00,S,1,first\r\n";
    for (int number = 0; number < 50; ++number) text += "not a moment,S,1,x\r\n";
    tool.files.with(path, text + "2005-10-08 22:30:00,S,1,last\r\n").created(path, morning);
    tool.importData(file);
    EXPECT_EQ(52U, tool.rows().size());
    EXPECT_EQ("last", tool.rows().back().at("Trace"));
    EXPECT_EQ("Err.Number = 13 Err.Description = Type mismatch", tool.failures(proc)[0])
        << "without a line number";
}

TEST(ProcessOrvanDataFileToDB, AMalformedLineIsToldAsItStandsAndStillARow)
{
    DataTool tool;
    tool.withLog(file, morning, {"2005-10-08 22:00:00,S,1,first", "nothing"});
    tool.importData(file);
    EXPECT_EQ((Texts{"10/8/2005 15:00:00:000", "10/8/2005 nothing"}), tool.column("Date"));
    EXPECT_TRUE(tool.logged("Could not format: nothing"));
}

TEST(ProcessOrvanDataFileToDB, Error5IsAWarningUnderTheFirstImportersName)
{
    DataTool tool;
    tool.timeZone.fixed(7 * 60);
    const std::string line = "0100-01-01 00:00:00,S,1,before the calendar begins, locally";
    tool.withLog(file, morning, {"2005-10-08 22:00:00,S,1,first", line});
    tool.importData(file);
    const auto all = tool.logLines();
    EXPECT_EQ(1, std::count_if(all.begin(), all.end(), [&](const LogLine& found) {
                  return found.level == "Warning" && found.procName == "processOrvanLogFile" &&
                         found.message == "Could not format: " + line;
              }));
}

TEST(ProcessOrvanDataFileToDB, TellsThePersonOfAFileThatIsNotThere)
{
    DataTool tool;
    tool.importData("data_a_1.txt");
    EXPECT_EQ(1U, tool.desktop.messages().size());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}
