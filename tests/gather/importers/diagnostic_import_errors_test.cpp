#include "gather/import_tool.h"
#include "support/fits_pattern.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

const std::string logName = "diag_RoCsMgr_20051008_093000.txt";
const std::string path = "C:\\Logs\\" + logName;
const std::string proc = "[mdlLogs]processOrvanLogFileToDB";
const std::string exceeded = "Error count exceeded, forcing exit from " + proc;
const Date morning = dateOf(2005, 10, 8, 9, 30, 0);
using Texts = std::vector<std::string>;

/// How often a line is told to be malformed, in the words for that.
std::ptrdiff_t timesToldMalformed(TestTool& tool, const std::string& line)
{
    const auto all = tool.logLines();
    return std::count_if(all.begin(), all.end(), [&](const LogLine& found) {
        return found.level == "Warning" && found.procName == "processOrvanLogFile" &&
               found.message == "Could not format: " + line;
    });
}

std::string lines(int count, const std::string& line)
{
    std::string text;
    for (int number = 0; number < count; ++number) text += line + "\r\n";
    return text;
}

} // namespace

TEST(ProcessOrvanLogFileToDBErrors, AMalformedLineIsStillARow)
{
    ImportTool tool;
    tool.withLog(logName, morning,
                 {lineAt("10:00:00:000", "a"), "short", lineAt("10:00:01:000", "b")});
    tool.importLog(logName);
    EXPECT_EQ((Texts{"a ", " ", "b "}), tool.column("Trace"));
    EXPECT_EQ((Texts{"10/8/2005 10:00:00:000", "10/8/2005 ", "10/8/2005 10:00:01:000"}),
              tool.column("Date"))
        << "its time is that of the line before";
    EXPECT_EQ("_RoCsMgr_0_ ", tool.column("qrvIndex")[1]);
    EXPECT_EQ(1, timesToldMalformed(tool, "short"));
    EXPECT_TRUE(tool.failures(proc).empty()) << "that it could not be formatted is all there is";
}

TEST(ProcessOrvanLogFileToDBErrors, AMalformedLineOfFullLengthIsToldAsItStands)
{
    ImportTool tool;
    const std::string line = "nothing that anybody could read";
    tool.withLog(logName, morning, {lineAt("10:00:00:000", "a"), line});
    tool.importLog(logName);
    EXPECT_EQ(1, timesToldMalformed(tool, line));
    EXPECT_EQ(1U, tool.failures("[mdlDiagnostics]formatLineSafe").size());
    EXPECT_TRUE(tool.failures(proc).empty());
}

TEST(ProcessOrvanLogFileToDBErrors, AnErrorOfAnotherNumberIsLoggedWithTheStatementsLine)
{
    ImportTool tool;
    tool.context.g_bDebugMode = true;
    tool.withLog(logName, morning, {"25:00:00:000 (Conv,1,CallFlow,7) no time of a day"});
    tool.importLog(logName);
    ASSERT_EQ(1U, tool.failures(proc).size());
    EXPECT_THAT(tool.failures(proc)[0],
                FitsPattern("Err.Number = 13 Err.Description = Type mismatch Line: [0-9]+"));
}

TEST(ProcessOrvanLogFileToDBErrors, TheEleventhErrorEndsTheFileAtOnce)
{
    ImportTool tool;
    tool.files.with(path, lines(1, lineAt("10:00:00:000")) + lines(20, "short"))
        .created(path, morning);
    tool.importLog(logName);
    EXPECT_EQ(11U, tool.rows().size()) << "the line and ten that are malformed";
    EXPECT_EQ(10, timesToldMalformed(tool, "short"));
    EXPECT_EQ(
        (Texts{"Err.Number = 5 Err.Description = Invalid procedure call or argument", exceeded}),
        tool.failures(proc));
    EXPECT_FALSE(tool.logged("Exiting " + proc)) << "there is no common ending";
    EXPECT_NE("Processing", tool.label.caption());
    EXPECT_TRUE(tool.files.closed().empty());
    EXPECT_FALSE(tool.files.isOpen(path)) << "the stream is let go all the same";
}

TEST(ProcessOrvanLogFileToDBErrors, TenErrorsEndNothing)
{
    ImportTool tool;
    tool.files
        .with(path, lines(1, lineAt("10:00:00:000")) + lines(10, "short") +
                        lines(1, lineAt("10:00:00:000")))
        .created(path, morning);
    tool.importLog(logName);
    EXPECT_EQ(12U, tool.rows().size());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanLogFileToDBErrors, ALogWhoseEveryLineIsMalformedStopsAtItsEleventh)
{
    ImportTool tool;
    tool.files.with(path, lines(100'000, "nothing that anybody could read")).created(path, morning);
    tool.importLog(logName);
    EXPECT_EQ(exceeded, tool.failures(proc).back());
    EXPECT_EQ(11, tool.eventReporter.linesFormatted());
    EXPECT_TRUE(tool.rows().empty()) << "the first time of day, midnight, is the next day's";
}

TEST(ProcessOrvanLogFileToDBErrors, ErrorsOfAllKindsCountTogetherAndInEachFileAnew)
{
    ImportTool tool;
    tool.withLog(logName, morning, {lineAt("10:00:00:000"), "short", "short", "short", "short"});
    tool.files.failingAfterLines(path, 4, 57);
    tool.importLog(logName);
    const Texts failures = tool.failures(proc);
    EXPECT_EQ(6, timesToldMalformed(tool, "short")) << "and again where the next can't be read";
    ASSERT_EQ(6U, failures.size());
    for (std::size_t place = 0; place < 4; ++place)
        EXPECT_THAT(failures[place], testing::HasSubstr("Device I/O error"));
    EXPECT_EQ(exceeded, failures.back());
    EXPECT_FALSE(tool.logged("Exiting " + proc));

    tool.files.mended(path);
    const std::size_t rows = tool.rows().size();
    tool.importLog(logName);
    EXPECT_EQ(rows + 5, tool.rows().size());
    EXPECT_TRUE(tool.logged("Exiting " + proc));
}

TEST(ProcessOrvanLogFileToDBErrors, Error5IsAWarningUnderTheFirstImportersNameAndCounts)
{
    ImportTool tool;
    const std::string name = "diag_nothing.txt";
    tool.withLog(name, morning, {lineAt("10:00:00:000")});
    tool.importLog(name);
    EXPECT_EQ(1, timesToldMalformed(tool, "")) << "before the first line is read";
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_EQ((Texts{""}), tool.column("Process")) << "the name has no second underline";
}

TEST(ProcessOrvanLogFileToDBErrors, TheEleventhError5ForcesTheExitTooButIsNoWarning)
{
    ImportTool tool;
    tool.files.with(path, lines(30, lineAt("10:00:00:000"))).created(path, morning);
    // Each row's update fails as an invalid call.
    struct Refusing final : TraceRecordset {
        explicit Refusing(TraceRecordset& inner) : recordset(inner) {}
        std::string utf8Of(std::string_view text) const override { return std::string(text); }
        TraceField& field(std::string_view name) override { return recordset.field(name); }
        void addNew() override { recordset.addNew(); }
        void update() override { throw RunTimeError(5); }
        void close() override { recordset.close(); }
        TraceRecordset& recordset;
    } refusing(*tool.traces);
    mdlLogs::processOrvanLogFileToDB(tool.context, logName, refusing, tool.current, tool.label,
                                     tool.start, tool.end);
    EXPECT_EQ(10, timesToldMalformed(tool, lineAt("10:00:00:000")));
    EXPECT_EQ(
        (Texts{"Err.Number = 5 Err.Description = Invalid procedure call or argument", exceeded}),
        tool.failures(proc));
}

TEST(ProcessOrvanLogFileToDBErrors, AFieldThatRefusesItsValueLeavesItOutOfTheRow)
{
    ImportTool tool;
    tool.traceDatabases.failing("set tblTraces.Source", 1, 3421);
    tool.withLog(logName, morning, {lineAt("10:00:00:000")}).importLog(logName);
    EXPECT_EQ((Texts{"Null"}), tool.column("Source"));
    EXPECT_EQ((Texts{"CallFlow_RoCsMgr_7_Conv"}), tool.column("qrvIndex"));
    EXPECT_EQ(1U, tool.failures(proc).size());
}

TEST(ProcessOrvanLogFileToDBErrors, LongSourcesAreNoErrorsAndTheKeyOfARowIsThatOfItsFilter)
{
    ImportTool tool;
    tool.context.g_bDebugMode = true;
    const auto line = [](const char* end) {
        return "10:00:00:000 (" + std::string(300, 's') + end + ",1,CallFlow,7) long source";
    };
    tool.withLog(logName, morning,
                 {line("1"), line("2"), line("3"), line("4"), line("5"), line("6"), line("7"),
                  line("8"), line("9"), line("10"), line("11"), line("12")});
    tool.importLog(logName);
    const std::string key = "CallFlow_RoCsMgr_7_" + std::string(236, 's');
    EXPECT_EQ(Texts(12, std::string(255, 's')), tool.column("Source"));
    EXPECT_EQ(Texts(12, key), tool.column("qrvIndex"));
    EXPECT_EQ(Texts{key}, tool.context.g_dictUniqueFilters.keys());
    EXPECT_EQ("RoCsMgr," + std::string(255, 's') + ",CallFlow,7",
              tool.context.g_dictUniqueFilters.item(key));
    EXPECT_EQ(Texts{}, tool.failures(proc));
}

TEST(ProcessOrvanLogFileToDBErrors, ARowWhoseFilterCannotBeReadBackCountsToTheRowBeforeIt)
{
    /// A field whose value can be read until it breaks.
    struct BreakingField final : TraceField {
        void setText(std::string_view text) override { value = text; }
        void setUtf8(std::string_view text) override { value = text; }
        void setNumber(std::int32_t) override {}
        std::string_view text() const override
        {
            if (broken) throw RunTimeError(3021);
            return value;
        }
        bool isNull() const override { return false; }
        std::string value;
        bool broken = false;
    };
    /// Its index breaks with the first row that is added.
    struct Breaking final : TraceRecordset {
        explicit Breaking(TraceRecordset& inner) : recordset(inner) {}
        std::string utf8Of(std::string_view text) const override { return recordset.utf8Of(text); }
        TraceField& field(std::string_view name) override
        {
            return name == "qrvIndex" ? index : recordset.field(name);
        }
        void addNew() override { recordset.addNew(); }
        void update() override
        {
            recordset.update();
            index.broken = true;
        }
        void close() override { recordset.close(); }
        TraceRecordset& recordset;
        BreakingField index;
    };
    ImportTool tool;
    Breaking breaking(*tool.traces);
    tool.withLog(logName, morning, {lineAt("10:00:00:000"), "10:00:01:000,B,1,Other,3,text"});
    mdlLogs::processOrvanLogFileToDB(tool.context, logName, breaking, tool.current, tool.label,
                                     tool.start, tool.end);
    EXPECT_EQ(2U, tool.rows().size());
    EXPECT_EQ(Texts{"CallFlow_RoCsMgr_7_Conv"}, tool.context.g_dictUniqueFilters.keys());
    EXPECT_EQ(1U, tool.failures(proc).size());
}

TEST(ProcessOrvanLogFileToDBErrors, ARefusedIndexReadsBackEmptyAndIsAFilterOfThatRow)
{
    ImportTool tool;
    tool.traceDatabases.failing("set tblTraces.qrvIndex", 1, 3421);
    tool.withLog(logName, morning, {lineAt("10:00:00:000"), "10:00:01:000,B,1,Other,3,text"});
    tool.importLog(logName);
    EXPECT_EQ((Texts{"Null", "Other_RoCsMgr_3_B"}), tool.column("qrvIndex"));
    EXPECT_EQ((Texts{"", "Other_RoCsMgr_3_B"}), tool.context.g_dictUniqueFilters.keys());
    EXPECT_EQ("RoCsMgr,Conv,CallFlow,7", tool.context.g_dictUniqueFilters.item(""));
    EXPECT_EQ(1U, tool.failures(proc).size());
}

TEST(ProcessOrvanLogFileToDBErrors, AFailedUpdateLosesThatRowAlone)
{
    ImportTool tool;
    tool.traceDatabases.failing("update tblTraces", 2, 3026);
    tool.withLog(
        logName, morning,
        {lineAt("10:00:00:000", "a"), lineAt("10:00:01:000", "b"), lineAt("10:00:02:000", "c")});
    tool.importLog(logName);
    EXPECT_EQ((Texts{"a ", "c "}), tool.column("Trace"));
}

TEST(ProcessOrvanLogFileToDBErrors, ALogThatShrankIsReadToTheEndThatItHas)
{
    ImportTool tool;
    tool.files.withSize(path, 1'000'000).created(path, morning);
    tool.files.openForAppending(path)->write(lines(3, lineAt("10:00:00:000")));
    tool.importLog(logName);
    EXPECT_EQ(3U, tool.rows().size());
    EXPECT_EQ(1'000'000.0F, tool.current.value());
    EXPECT_TRUE(tool.failures().empty());
}

TEST(ProcessOrvanLogFileToDBErrors, ALogThatGrowsIsReadToItsNewEnd)
{
    ImportTool tool;
    tool.files.with(path, lines(3, lineAt("10:00:00:000"))).created(path, morning);
    tool.desktop.onPump([&] {
        if (tool.desktop.pumps() == 1)
            tool.files.openForAppending(path)->write(lines(1'000, lineAt("10:00:00:000")));
    });
    tool.importLog(logName);
    EXPECT_EQ(1'003U, tool.rows().size());
    EXPECT_EQ("Processing", tool.label.caption());
    ASSERT_EQ(1U, tool.failures(proc).size()) << "the bar has no room for what came later";
    EXPECT_THAT(tool.failures(proc)[0], testing::HasSubstr("Invalid property value"));
}
