#include "gather/import_tool.h"

#include "platform/event_reporter.h"

#include <gtest/gtest.h>

namespace {
const std::string log = "diag_RoCsMgr_20051008_093000.txt";
const std::string closedPath = "c:\\logs\\diag_rocsmgr_20051008_093000.txt";
const Date morning = dateOf(2005, 10, 8, 9, 30, 0);
using Texts = std::vector<std::string>;

/// Sure of every line that begins with a time.
struct SureReporter final : EventReporter {
    explicit SureReporter(EventReporter& other) : inner(other) {}
    void startUp() override { inner.startUp(); }
    void completeStartUp() override { inner.completeStartUp(); }
    std::int32_t registerTool(const std::string& name) override { return inner.registerTool(name); }
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override
    {
        inner.report(source, handle, type, id, inserts);
    }
    void formatTraceLine(std::string_view line, std::string& formatted) override
    {
        inner.formatTraceLine(line, formatted);
    }
    std::string_view timeOfSoundLine(std::string_view line) const override
    {
        return line.size() < 12 || line[2] != ':' ? std::string_view() : line.substr(0, 12);
    }
    EventReporter& inner;
};

/// A tool whose event reporter is sure of the lines that begin with a time.
struct QuickTool : ImportTool {
    QuickTool() { sureContext.g_strLogFolder = "C:\\Logs"; }

    void importSurely(const std::string& name)
    {
        mdlLogs::processOrvanLogFileToDB(sureContext, name, *traces, current, label, start, end);
    }

    SureReporter sure{eventReporter};
    Platform surePlatform{files,     registry,      clock,  timeZone,  sure,    eventLogExporter,
                          processes, workstation,   module, languages, desktop, database,
                          xml,       traceDatabases};
    ToolContext sureContext{surePlatform};
};

} // namespace

TEST(ProcessOrvanLogFileToDB, AddsARowForALineOfTheFrame)
{
    ImportTool tool;
    tool.eventReporter.extended();
    tool.context.g_bExtendedLogFields = true;
    tool.withLog(log, morning, {"15:23:07:123,Conv,1234,77,12,call-1,CallFlow,7,Answered, twice"});
    tool.importLog(log);
    ASSERT_EQ(1U, tool.rows().size());
    EXPECT_EQ((FakeTraceRow{{"Date", "10/8/2005 15:23:07:123"},
                            {"Process", "RoCsMgr"},
                            {"Source", "Conv"},
                            {"TraceNumber", "1234"},
                            {"Component", "CallFlow"},
                            {"TraceLevel", "7"},
                            {"Port", "12"},
                            {"Trace", "Answered, twice "},
                            {"CallId", "call-1"},
                            {"Highlight", "0"},
                            {"qrvIndex", "CallFlow_RoCsMgr_7_Conv"}}),
              tool.rows()[0]);
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Entering [mdlLogs]processOrvanLogFileToDB"));
    EXPECT_TRUE(tool.logged("Processing " + log));
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processOrvanLogFileToDB"));
}

TEST(ProcessOrvanLogFileToDB, SetsTheFieldsInOrderAndUpdatesEachRow)
{
    ImportTool tool;
    tool.withLog(log, morning, {lineAt("10:00:00:000")});
    const std::size_t before = tool.traceDatabases.calls().size();
    tool.importLog(log);
    Texts calls(tool.traceDatabases.calls().begin() + static_cast<std::ptrdiff_t>(before),
                tool.traceDatabases.calls().end());
    EXPECT_EQ((Texts{"addNew tblTraces", "set tblTraces.Date", "set tblTraces.Process",
                     "set tblTraces.Source", "set tblTraces.TraceNumber", "set tblTraces.Component",
                     "set tblTraces.TraceLevel", "set tblTraces.Port", "set tblTraces.Trace",
                     "set tblTraces.CallId", "set tblTraces.Highlight", "set tblTraces.qrvIndex",
                     "update tblTraces"}),
              calls);
}

TEST(ProcessOrvanLogFileToDB, KeepsACallIdAtTheHeadOfTheTrace)
{
    ImportTool tool;
    tool.eventReporter.extended();
    tool.context.g_bExtendedLogFields = true;
    const std::string id(32, 'c');
    tool.withLog(log, morning, {"15:23:07:123,Conv,1,77,12," + id + ",CallFlow,7,text"});
    tool.importLog(log);
    EXPECT_EQ((Texts{id + ": text "}), tool.column("Trace"));
}

TEST(ProcessOrvanLogFileToDB, TheBoundsOfTheFrameAreInside)
{
    ImportTool tool;
    tool.start = dateOf(2005, 10, 8, 10, 0, 0);
    tool.end = dateOf(2005, 10, 8, 11, 0, 0);
    tool.withLog(log, morning,
                 {lineAt("09:59:59:999", "before"), lineAt("10:00:00:000", "first"),
                  lineAt("11:00:00:999", "last"), lineAt("11:00:01:000", "behind")});
    tool.importLog(log);
    EXPECT_EQ((Texts{"first ", "last "}), tool.column("Trace"));
}

TEST(ProcessOrvanLogFileToDB, TheFirstLineBehindTheFrameEndsTheReading)
{
    ImportTool tool;
    tool.end = dateOf(2005, 10, 8, 11, 0, 0);
    tool.withLog(log, morning,
                 {lineAt("10:00:00:000"), lineAt("12:00:00:000"), "not even a line of a log"});
    tool.importLog(log);
    EXPECT_EQ(1U, tool.rows().size());
    EXPECT_EQ(2, tool.eventReporter.linesFormatted());
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_EQ(tool.current.maximum(), tool.current.value());
    EXPECT_EQ((Texts{closedPath}), tool.files.closed());
}

TEST(ProcessOrvanLogFileToDB, ALineOutOfOrderAfterTheFrameHasBegunEndsTheReading)
{
    ImportTool tool;
    tool.withLog(log, morning,
                 {lineAt("10:00:00:000", "a"), lineAt("09:59:59:000", "the next day by its time"),
                  lineAt("10:00:01:000", "b")});
    tool.importLog(log);
    EXPECT_EQ((Texts{"a "}), tool.column("Trace"));
}

TEST(ProcessOrvanLogFileToDB, TheLineThatEndsTheReadingHasNoProgressPoint)
{
    ImportTool tool;
    std::string text;
    for (int number = 1; number < 1'000; ++number) text += lineAt("10:00:00:000") + "\r\n";
    text += lineAt("09:00:00:000") + "\r\n";
    tool.files.with("C:\\Logs\\" + log, text).created("C:\\Logs\\" + log, morning);
    tool.importLog(log);
    EXPECT_EQ(999U, tool.rows().size());
    EXPECT_EQ(1, tool.desktop.pumps()) << "line 1 alone, not line 1000";
    EXPECT_EQ(9U, tool.clock.sleeps().size());
}

TEST(ProcessOrvanLogFileToDB, CarriesTheDateOverMidnights)
{
    struct Case {
        const char* because;
        Date created;
        std::vector<const char*> times;
        Texts dates;
    };
    const Case cases[] = {
        {"one midnight",
         dateOf(2005, 10, 8, 23, 0, 0),
         {"23:59:59:000", "00:00:00:000"},
         {"10/8/2005 23:59:59:000", "10/9/2005 00:00:00:000"}},
        {"several midnights",
         dateOf(2005, 10, 8, 23, 0, 0),
         {"23:30:00:000", "01:00:00:000", "00:30:00:000", "00:30:00:000"},
         {"10/8/2005 23:30:00:000", "10/9/2005 01:00:00:000", "10/10/2005 00:30:00:000",
          "10/10/2005 00:30:00:000"}},
        {"a gap of more than a day loses it",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"10:00:00:000", "11:00:00:000"},
         {"10/8/2005 10:00:00:000", "10/8/2005 11:00:00:000"}},
        {"a file made a minute before midnight",
         dateOf(2005, 10, 8, 23, 59, 0),
         {"00:00:05:000"},
         {"10/9/2005 00:00:05:000"}},
        {"a file made later than its first line",
         dateOf(2005, 10, 8, 15, 0, 0),
         {"14:59:59:000"},
         {"10/9/2005 14:59:59:000"}},
        {"the seconds of the file's time don't count",
         dateOf(2005, 10, 8, 15, 23, 59),
         {"15:23:01:000"},
         {"10/8/2005 15:23:01:000"}},
        {"milliseconds roll no date",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"10:00:00:900", "10:00:00:100"},
         {"10/8/2005 10:00:00:900", "10/8/2005 10:00:00:100"}},
        {"the end of a year",
         dateOf(2005, 12, 31, 23, 0, 0),
         {"23:59:59:000", "00:00:00:000"},
         {"12/31/2005 23:59:59:000", "1/1/2006 00:00:00:000"}},
        {"a date in the stamp is dropped",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"1999-12-31 10:00:00"},
         {"10/8/2005 10:00:00:000"}},
        {"a gap of two days between dated stamps is not noticed",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"2005-10-08 10:00:00", "2005-10-10 11:00:00", "2005-10-12 10:30:00"},
         {"10/8/2005 10:00:00:000", "10/8/2005 11:00:00:000", "10/9/2005 10:30:00:000"}},
        {"what stands behind the milliseconds is dropped",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"10:00:00:123456", "10:00:01:7890123"},
         {"10/8/2005 10:00:00:123", "10/8/2005 10:00:01:789"}},
        {"a stamp may end before its last digit",
         dateOf(2005, 10, 8, 9, 0, 0),
         {"10:00:00:12"},
         {"10/8/2005 10:00:00:12"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ImportTool tool;
        tool.context.g_bDebugMode = true; // the lines are in the formatted form already
        tool.start = dateOf(2005, 1, 1);
        tool.end = dateOf(2006, 12, 31);
        std::string text;
        for (const char* time : c.times) text += std::string(time) + " (Conv,1,CallFlow,7) x\r\n";
        tool.files.with("C:\\Logs\\" + log, text).created("C:\\Logs\\" + log, c.created);
        tool.importLog(log);
        // A stamp with a date ends at its first blank behind position 12, so it is kept whole.
        EXPECT_EQ(c.dates, tool.column("Date"));
    }
}

TEST(ProcessOrvanLogFileToDB, ReadsLinesAsTheyStandInTheDevelopmentHost)
{
    ImportTool tool;
    tool.context.g_bDebugMode = true;
    tool.withLog(log, morning, {"10:00:00:000 (Conv,1,CallFlow,7) formatted already"});
    tool.importLog(log);
    EXPECT_EQ((Texts{"formatted already"}), tool.column("Trace"));
    EXPECT_EQ(0, tool.eventReporter.linesFormatted());
}

TEST(ProcessOrvanLogFileToDB, ASourceOrATraceThatIsEmptyBecomesABlank)
{
    ImportTool tool;
    tool.context.g_bDebugMode = true;
    tool.withLog(log, morning, {"10:00:00:000 (,1,CallFlow,7) "});
    tool.importLog(log);
    EXPECT_EQ((Texts{" "}), tool.column("Source"));
    EXPECT_EQ((Texts{" "}), tool.column("Trace"));
    EXPECT_EQ((Texts{"CallFlow_RoCsMgr_7_ "}), tool.column("qrvIndex"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(ProcessOrvanLogFileToDB, RegistersEachFilterOnceByTheFirstRow)
{
    ImportTool tool;
    tool.withLog(log, morning,
                 {"10:00:00:000,Conv,1,CallFlow,7,a", "10:00:00:000,Conv,2,CallFlow,7,b",
                  "10:00:00:000,Conv,1,CallFlow,8,c"});
    tool.importLog(log);
    EXPECT_EQ((Texts{"CallFlow_RoCsMgr_7_Conv", "CallFlow_RoCsMgr_8_Conv"}),
              tool.context.g_dictUniqueFilters.keys());
    EXPECT_EQ("RoCsMgr,Conv,CallFlow,7",
              tool.context.g_dictUniqueFilters.item("CallFlow_RoCsMgr_7_Conv"));
}

TEST(ProcessOrvanLogFileToDB, AnEmptyFileEndsAtAMaximumOf0)
{
    ImportTool tool;
    tool.withLog(log, morning, {});
    tool.importLog(log);
    EXPECT_TRUE(tool.rows().empty());
    EXPECT_EQ(0.0F, tool.current.maximum());
    EXPECT_EQ(0.0F, tool.current.value());
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processOrvanLogFileToDB"));
}

TEST(ProcessOrvanLogFileToDB, TellsThePersonOfALogThatIsNotThere)
{
    ImportTool tool;
    tool.importLog("diag_a_1.txt");
    ASSERT_EQ(1U, tool.desktop.messages().size());
    EXPECT_EQ((FakeDesktop::Message{
                  "Log file: C:\\Logs\\diag_a_1.txt can not be found.  Log not processed.",
                  "Log not found", MessageIcon::critical}),
              tool.desktop.messages()[0]);
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Exiting [mdlLogs]processOrvanLogFileToDB"));
}

TEST(ProcessOrvanLogFileToDB, ACancelTakesEffectAtTheNextMultipleOf1000)
{
    ImportTool tool;
    std::string text;
    for (int number = 1; number <= 2'500; ++number) text += lineAt("10:00:00:000") + "\r\n";
    tool.files.with("C:\\Logs\\" + log, text).created("C:\\Logs\\" + log, morning);
    tool.clock.onSleep([&] {
        if (tool.clock.sleeps().size() == 3) mdlLogs::cancelCurrentProcess(tool.context, true);
    });
    tool.importLog(log);
    EXPECT_EQ(1'000U, tool.rows().size());
    EXPECT_EQ("Processing", tool.label.caption());
    EXPECT_EQ((Texts{closedPath}), tool.files.closed());
}

TEST(ProcessOrvanLogFileToDB, LinesOutsideTheFrameHaveProgressPointsToo)
{
    ImportTool tool;
    tool.start = dateOf(2010, 1, 1);
    tool.end = dateOf(2010, 1, 2);
    tool.files.with("C:\\Logs\\" + log, logOf(2'000)).created("C:\\Logs\\" + log, morning);
    tool.importLog(log);
    EXPECT_EQ(3, tool.desktop.pumps());
    EXPECT_EQ(20U, tool.clock.sleeps().size());
    EXPECT_TRUE(tool.rows().empty());
}

TEST(ProcessOrvanLogFileToDB, LinesThatAreSurelySoundAreNotFormattedBeforeTheFrame)
{
    const std::initializer_list<std::string> lines = {
        lineAt("09:40:00:000", "before"), "garbage of some bytes",
        lineAt("09:50:00:000", "before"), "09:55:00:000,C,1,F,",
        lineAt("10:00:00:000", "first"),  "garbage of some bytes",
        lineAt("10:30:00:000", "last"),   lineAt("11:00:01:000", "behind")};
    ImportTool plain;
    QuickTool quick;
    for (ImportTool* tool : {&plain, static_cast<ImportTool*>(&quick)}) {
        tool->start = dateOf(2005, 10, 8, 10, 0, 0);
        tool->end = dateOf(2005, 10, 8, 11, 0, 0);
        tool->withLog(log, morning, lines);
    }
    plain.importLog(log);
    quick.importSurely(log);
    EXPECT_EQ(plain.rows(), quick.rows());
    EXPECT_EQ(3U, quick.rows().size());
    for (const std::string& toolLog : {plain.files.content(plain.context.g_log->strLogFile()),
                                       quick.files.content(quick.sureContext.g_log->strLogFile())})
        EXPECT_NE(std::string::npos, toolLog.find("Could not format: 09:55:00:000,C,1,F,"))
            << "a line that is too short for a log's has no time, whatever it begins with";
    EXPECT_EQ(plain.eventReporter.linesFormatted() - 2, quick.eventReporter.linesFormatted())
        << "the two before the frame";
}

TEST(ProcessOrvanLogFileToDB, LinesBeforeTheFrameAreParsedAsTheyStandInTheDevelopmentHostToo)
{
    QuickTool quick;
    quick.sureContext.g_bDebugMode = true;
    quick.start = dateOf(2005, 10, 8, 12, 0, 0);
    quick.withLog(log, morning,
                  {"09:45:00:000 (Conv,1,CallFlow,7) before", lineAt("10:00:00:000"),
                   "13:00:00:000 (Conv,1,CallFlow,7) inside"});
    quick.importSurely(log);
    EXPECT_EQ((Texts{"inside"}), quick.column("Trace"));
    const std::string toolLog = quick.files.content(quick.sureContext.g_log->strLogFile());
    EXPECT_NE(std::string::npos, toolLog.find("Could not format: " + lineAt("10:00:00:000")))
        << "a raw line is none that can be parsed, though its time could be told";
}

TEST(ProcessOrvanLogFileToDB, TheCountOfCharactersHas32BitsAndKeepsTheSumBeforeItsOverflow)
{
    QuickTool quick;
    const std::size_t width = 2'150'000;
    std::string line = "09:40:00:000 before the frame";
    line.resize(width - 1, 'x');
    quick.files.withRepeated("C:\\Logs\\" + log, line + "\n", 1'000)
        .created("C:\\Logs\\" + log, morning);
    quick.start = dateOf(2005, 10, 8, 10, 0, 0);
    float shown = 0;
    quick.desktop.onPump([&] { shown = quick.current.value(); });
    CaptionRecorder captions(quick.label);

    quick.importSurely(log);

    const std::string toolLog = quick.files.content(quick.sureContext.g_log->strLogFile());
    const std::size_t first = toolLog.find("Err.Number = 6 Err.Description = Overflow Line: ");
    ASSERT_NE(std::string::npos, first) << "line 999 makes more than 2,147,483,647";
    const std::size_t second = toolLog.find("Err.Number = 6 ", first + 1);
    ASSERT_NE(std::string::npos, second) << "and so does line 1000";
    EXPECT_EQ(std::string::npos, toolLog.find("Err.Number", second + 1));
    EXPECT_EQ(998.0F * (width - 1), shown);
    EXPECT_EQ(
        (Texts{"Processing 2147850001 Bytes Left", "Processing 4300998 Bytes Left", "Processing"}),
        captions.captions);
}
