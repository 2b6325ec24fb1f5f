#include "core/class_log.h"

#include "runtime/dates.h"
#include "support/test_tool.h"

#include <algorithm>
#include <gtest/gtest.h>

/// A log on a fresh machine, with the lines that it wrote.
class ClassLogTest : public ::testing::Test {
protected:
    classLog& log()
    {
        if (!log_) log_ = std::make_unique<classLog>(tool.platform);
        return *log_;
    }

    std::string content() { return tool.files.content(log().strLogFile()); }

    std::vector<std::string> lines()
    {
        std::vector<std::string> all;
        std::string rest = content();
        for (std::size_t end; (end = rest.find("\r\n")) != std::string::npos;) {
            all.push_back(rest.substr(0, end));
            rest.erase(0, end + 2);
        }
        EXPECT_EQ("", rest) << "a line without an end";
        return all;
    }

    std::string lastLine() { return lines().back(); }

    /// The last line without its time, level and procedure.
    std::string lastMessage() { return lastLine().substr(70); }

    void setVerbosity(std::int32_t verbosity) { log().verbosity_ = verbosity; }
    bool debugOutput() { return log().debugOutput_; }

    /// As after `count` entries of a routine that left without its exit.
    void leaveOpen(const std::string& procName, int count)
    {
        for (int number = 0; number < count; ++number) {
            log().procTimers_.add(procName + "_" + std::to_string(number), 0);
        }
    }

    TestTool tool;

private:
    std::unique_ptr<classLog> log_;
};

namespace {

const std::string logsFolder = "C:\\OrvanDiagnostics\\LOGS";
const std::string blanks20(20, ' ');

TEST_F(ClassLogTest, NamesTheFileByModuleAndMomentInAFolderBesideTheTool)
{
    EXPECT_EQ(logsFolder + "\\OrvanDiagnostics_20051008_152307.LOG", log().strLogFile());
    EXPECT_TRUE(tool.files.folderExists(logsFolder));
}

TEST_F(ClassLogTest, AddsNoSecondBackslashToTheToolsFolder)
{
    tool.module.folderPath = "C:\\OrvanDiagnostics\\";
    EXPECT_EQ(logsFolder + "\\OrvanDiagnostics_20051008_152307.LOG", log().strLogFile());
}

TEST_F(ClassLogTest, KeepsWhatTheLogsFolderHolds)
{
    tool.files.with(logsFolder + "\\notes.txt", "notes");
    log();
    EXPECT_EQ("notes", tool.files.content(logsFolder + "\\notes.txt"));
}

TEST_F(ClassLogTest, RaisesWhatStandsInTheWayOfItsFolder)
{
    tool.files.failing(logsFolder, 70);
    EXPECT_EQ(70, errorOf([&] { classLog log(tool.platform); }));
}

TEST_F(ClassLogTest, ABlankLineARuleTheBannerAndAnotherRulePrecedeTheFirstLineOfARun)
{
    log();
    const std::string rule(120, '*');
    const auto all = lines();
    ASSERT_EQ(5u, all.size());
    EXPECT_EQ("", all[0]);
    EXPECT_EQ(rule, all[1]);
    EXPECT_EQ("OrvanDiagnostics Version: 4.2.17   Started: 10/8/2005 3:23:07 PM", all[2]);
    EXPECT_EQ(rule, all[3]);
    EXPECT_EQ(0u, all[4].find("15:23:07    Info:("));
    log().log("second", logLevel::info, "");
    EXPECT_EQ(6u, lines().size()) << "the banner comes once";
}

TEST_F(ClassLogTest, ANewRunGetsANewFileAsTheNameHoldsTheSecondOfItsStart)
{
    const std::string first = log().strLogFile();
    tool.clock.advance(1);
    const classLog later(tool.platform);
    EXPECT_EQ(logsFolder + "\\OrvanDiagnostics_20051008_152308.LOG", later.strLogFile());
    EXPECT_NE(first, later.strLogFile());
}

TEST_F(ClassLogTest, ARunInTheSameSecondAddsToTheFile)
{
    log();
    const classLog same(tool.platform);
    EXPECT_EQ(10u, lines().size()) << "a second banner and line behind the first";
}

TEST_F(ClassLogTest, WritesTimeLevelProcedureIndentationAndMessageInColumns)
{
    log().enterProc("[mdlInitialize]initGlobalVariables");
    log().log("Cannot connect to database", logLevel::info, "[mdlInitialize]initGlobalVariables");
    EXPECT_EQ("15:23:07    Info:(                [mdlInitialize]initGlobalVariables)   "
              "Cannot connect to database",
              lastLine());
}

TEST_F(ClassLogTest, AlignsTheWordOfEachLevel)
{
    struct Case {
        std::int32_t level;
        const char* head;
    };
    const Case cases[] = {
        {logLevel::info, "15:23:07    Info:("},
        {logLevel::warning, "15:23:07 Warning:("},
        {logLevel::error, "15:23:07   ERROR:("},
        {logLevel::verbose, "15:23:07 VerInfo:("},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.level);
        log().log("message", c.level, "[mdlTraces]x");
        EXPECT_EQ(c.head + std::string(38, ' ') + "[mdlTraces]x) message", lastLine());
    }
}

TEST_F(ClassLogTest, AnEmptyProcNameGivesTwentyBlanksInTheFiftyColumns)
{
    log().log("message", logLevel::info, "");
    EXPECT_EQ("15:23:07    Info:(" + std::string(50, ' ') + ") message", lastLine());
}

TEST_F(ClassLogTest, AProcNameIsCutToFiftyCharactersInTheLineAndWholeForTheDebugger)
{
    tool.module.command = "mmc.exe /DEBUG";
    const std::string name = "[mdlTraces]" + std::string(38, 'a') + "bCD";
    log().log("message", logLevel::info, name);
    EXPECT_EQ("15:23:07    Info:([mdlTraces]" + std::string(38, 'a') + "b) message", lastLine());
    EXPECT_EQ("OrvanDiagnostics:(" + name + ") message", tool.module.debugTexts.back());
}

TEST_F(ClassLogTest, KeepsMessagesAsTheyAre)
{
    for (const std::string message : {"", "  two blanks", "bytes \xE9\xFF", "a\r\nb"}) {
        log().log(message, logLevel::info, "p");
        EXPECT_EQ(") " + message + "\r\n", content().substr(content().size() - message.size() - 4));
    }
}

TEST_F(ClassLogTest, WritesAllLevelsAtItsVerbosityAndFiltersInfoAndVerboseBelow)
{
    struct Case {
        std::int32_t verbosity;
        std::vector<std::int32_t> written;
    };
    const Case cases[] = {
        {2, {0, 1, 2, 3}},
        {1, {1, 2}},
        {0, {1, 2}},
        {3, {0, 1, 2}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.verbosity);
        setVerbosity(c.verbosity);
        for (std::int32_t level = 0; level <= 3; ++level) {
            const std::size_t before = lines().size();
            log().log("message", level, "p");
            const bool expected =
                std::find(c.written.begin(), c.written.end(), level) != c.written.end();
            EXPECT_EQ(before + (expected ? 1 : 0), lines().size()) << level;
        }
    }
}

TEST_F(ClassLogTest, SendsEveryLevelToTheDebuggerBeforeTheFilter)
{
    tool.module.command = "C:\\mmc.exe -Debug x";
    log();
    EXPECT_TRUE(debugOutput());
    setVerbosity(1);
    tool.module.debugTexts.clear();
    for (std::int32_t level = 0; level <= 3; ++level) log().log("message", level, "p");
    EXPECT_EQ(std::vector<std::string>(4, "OrvanDiagnostics:(p) message"), tool.module.debugTexts);
}

TEST_F(ClassLogTest, SendsNothingToTheDebuggerWithoutTheWordOnTheCommandLine)
{
    log().log("message", logLevel::error, "p");
    EXPECT_FALSE(debugOutput());
    EXPECT_TRUE(tool.module.debugTexts.empty());
}

TEST_F(ClassLogTest, DebugModeIsTheHostsAnswer)
{
    EXPECT_FALSE(log().DebugMode());
    tool.module.developmentHost = true;
    tool.module.patience = 2;
    EXPECT_TRUE(log().DebugMode());
    EXPECT_TRUE(log().DebugMode(1));
    EXPECT_FALSE(log().DebugMode(2));
}

TEST_F(ClassLogTest, EntryAndExitStandAtTheCallersIndentationAndLinesBetweenOneStepFurther)
{
    tool.clock.timerAt(55387.5f);
    log().enterProc("[a]x");
    EXPECT_EQ("Entering [a]x_0", lastMessage());
    log().log("inside", logLevel::info, "[a]x");
    EXPECT_EQ("  inside", lastMessage());
    log().enterProc("[a]y");
    EXPECT_EQ("  Entering [a]y_0", lastMessage());
    log().log("deep", logLevel::info, "[a]y");
    EXPECT_EQ("    deep", lastMessage());
    tool.clock.timerAt(55387.75f);
    log().exitProc("[a]y");
    EXPECT_EQ("  Exiting [a]y_0 Start: 55387.5 End: 55387.75 - Elapsed: 0.25", lastMessage());
    tool.clock.timerAt(55389.5f);
    log().exitProc("[a]x");
    EXPECT_EQ("Exiting [a]x_0 Start: 55387.5 End: 55389.5 - Elapsed: 2.0", lastMessage());
    log().log("outside", logLevel::info, "[a]x");
    EXPECT_EQ("outside", lastMessage());
}

TEST_F(ClassLogTest, TwoOverlappingCallsOfOneRoutineCloseTheInnerOneFirst)
{
    tool.clock.timerAt(1);
    log().enterProc("[a]x");
    tool.clock.timerAt(2);
    log().enterProc("[a]x");
    EXPECT_EQ("  Entering [a]x_1", lastMessage());
    tool.clock.timerAt(4);
    log().exitProc("[a]x");
    EXPECT_EQ("  Exiting [a]x_1 Start: 2 End: 4 - Elapsed: 2.0", lastMessage());
    tool.clock.timerAt(8);
    log().exitProc("[a]x");
    EXPECT_EQ("Exiting [a]x_0 Start: 1 End: 8 - Elapsed: 7.0", lastMessage());
    log().enterProc("[a]x");
    EXPECT_EQ("Entering [a]x_0", lastMessage()) << "closed numbers are free again";
}

TEST_F(ClassLogTest, ARoutineThatLeftWithoutItsExitKeepsItsEntryAndTheIndentation)
{
    log().enterProc("[a]x");
    log().enterProc("[a]x");
    EXPECT_EQ("  Entering [a]x_1", lastMessage());
    log().exitProc("[a]x");
    EXPECT_EQ("  Exiting [a]x_1", lastMessage().substr(0, 16));
    log().enterProc("[a]x");
    EXPECT_EQ("  Entering [a]x_1", lastMessage()) << "the older entry stays open";
}

TEST_F(ClassLogTest, TheExitOfARoutineThatWasNeverEnteredShowsMinusOneAndNoTimes)
{
    log().exitProc("[a]x");
    EXPECT_EQ("Exiting [a]x_-1", lastMessage());
    log().log("message", logLevel::info, "p");
    EXPECT_EQ("message", lastMessage()) << "the depth stays at 0";
    log().enterProc("[a]x");
    log().log("message", logLevel::info, "p");
    EXPECT_EQ("  message", lastMessage());
}

TEST_F(ClassLogTest, TheLastSequenceNumberIsTheLargestOfSixteenBits)
{
    tool.clock.timerAt(0);
    leaveOpen("[a]x", 32767);
    log().enterProc("[a]x");
    EXPECT_EQ("Entering [a]x_32767", lastMessage());
}

TEST_F(ClassLogTest, AnEntryPastTheLastSequenceNumberIsLoggedAsAnErrorAndIndentsNothing)
{
    leaveOpen("[a]x", 32768);
    for (const bool developmentHost : {false, true}) {
        tool.module.developmentHost = developmentHost;
        const std::size_t before = lines().size();
        log().enterProc("[a]x");
        EXPECT_EQ(before + (developmentHost ? 10 : 1), lines().size());
        EXPECT_EQ("15:23:07   ERROR:(" + std::string(41, ' ') +
                      "enterProc) Err.Number = 6 Err.Description = Overflow",
                  lastLine());
    }
}

TEST_F(ClassLogTest, AnExitPastTheLastSequenceNumberRaisesOverflowAndKeepsTheDepth)
{
    log().enterProc("[a]y");
    leaveOpen("[a]x", 32768);
    EXPECT_EQ(6, errorOf([&] { log().exitProc("[a]x"); }));
    log().log("message", logLevel::info, "p");
    EXPECT_EQ("  message", lastMessage());
}

TEST_F(ClassLogTest, ARoutineThatSpansMidnightShowsANegativeTime)
{
    tool.clock.timerAt(86399);
    log().enterProc("[a]x");
    tool.clock.timerAt(1);
    log().exitProc("[a]x");
    EXPECT_EQ("Exiting [a]x_0 Start: 86399 End: 1 - Elapsed: -86398.0", lastMessage());
}

TEST_F(ClassLogTest, CloseLogStartsAFreshFileWithABannerAtTheNextLine)
{
    const std::string first = log().strLogFile();
    const std::string before = content();
    tool.clock.advance(60);
    log().closeLog();
    EXPECT_EQ(logsFolder + "\\OrvanDiagnostics_20051008_152407.LOG", log().strLogFile());
    EXPECT_FALSE(tool.files.fileExists(log().strLogFile()));
    log().log("again", logLevel::info, "p");
    EXPECT_EQ(5u, lines().size());
    EXPECT_EQ("again", lastMessage());
    EXPECT_EQ(before, tool.files.content(first));
}

TEST_F(ClassLogTest, CloseLogFailsWhileNoStreamIsOpen)
{
    log().closeLog();
    EXPECT_EQ(91, errorOf([&] { log().closeLog(); }));
}

TEST_F(ClassLogTest, DumpDictionaryWritesALineForEachEntry)
{
    Dictionary<std::string> dictionary;
    dictionary.add("key", "value");
    dictionary.add(std::string(50, 'k'), "");
    log().dumpDictionary(dictionary, "[a]x");
    const auto all = lines();
    EXPECT_EQ(std::string(40, ' ') + "key    value", all[all.size() - 2].substr(70));
    EXPECT_EQ(std::string(50, 'k') + "    ", all.back().substr(70));
    EXPECT_NE(std::string::npos, all.back().find("   Info:("));
}

class Retention : public ClassLogTest {
protected:
    std::string removalMessage()
    {
        return log().strLogFile().empty() ? "" : lines().at(4).substr(70);
    }
    void withFreeBytes(std::int64_t bytes)
    {
        tool.files.withDrive("C:", DiskSpace{bytes, 40'000'000'000});
    }
};

TEST_F(Retention, TellsTheCutOffAndTheSizesInDecimalMegabytes)
{
    withFreeBytes(4'812'345'678);
    tool.files.withSize(logsFolder + "\\big.txt", 12'340'000);
    EXPECT_EQ("Removing logs older than 9/8/2005 3:23:07 PM - Log Directory Size: 12.3 MB   "
              "4,812 MB Free   40,000 MB Total ",
              removalMessage());
    EXPECT_EQ("15:23:07    Info:(                         [classLog]checkSizeOfLogs) ",
              lines().at(4).substr(0, 70));
}

TEST_F(Retention, FollowsTheFreeSpaceOfTheDisk)
{
    struct Case {
        const char* because;
        std::int64_t freeBytes;
        const char* cutOff;
    };
    const Case cases[] = {
        {"500,000,000 bytes exactly keep 14 days", 500'000'000, "9/24/2005"},
        {"one byte more keeps 30", 500'000'001, "9/8/2005"},
        {"100,000,000 bytes exactly keep 14", 100'000'000, "9/24/2005"},
        {"99,999,999 keep 10", 99'999'999, "9/28/2005"},
        {"a full disk keeps 10", 0, "9/28/2005"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool machine;
        machine.files.withDrive("C:", DiskSpace{c.freeBytes, 40'000'000'000});
        const classLog fresh(machine.platform);
        const std::string written = machine.files.content(fresh.strLogFile());
        EXPECT_NE(std::string::npos, written.find(std::string("Removing logs older than ") +
                                                  c.cutOff + " 3:23:07 PM - "));
    }
}

TEST_F(Retention, DeletesFilesWithLogInCapitalsThatAreOlderThanTheCutOff)
{
    const Date cutOff = dateOf(2005, 9, 24, 15, 23, 7);
    struct Case {
        const char* because;
        const char* name;
        Date modified;
        bool stays;
    };
    const Case cases[] = {
        {"LOG must match in capitals", "notes.log", addDays(cutOff, -30), true},
        {"wherever in the name", "MYLOG.txt", addDays(cutOff, -30), false},
        {"a log of the tool", "OrvanDiagnostics_20050901_000000.LOG", addDays(cutOff, -23), false},
        {"an old file of another name", "old.txt", addDays(cutOff, -30), true},
        {"the cut-off itself stays", "AT.LOG", cutOff, true},
        {"a second before it goes", "BEFORE.LOG", addSeconds(cutOff, -1), false},
        {"a second behind it stays", "BEHIND.LOG", addSeconds(cutOff, 1), true},
    };
    for (const auto& c : cases) {
        tool.files.with(logsFolder + "\\" + c.name)
            .modified(logsFolder + "\\" + c.name, c.modified);
    }
    tool.files.withFolder(logsFolder + "\\LOG").modified(logsFolder + "\\LOG", Date{1});
    tool.files.with(logsFolder + "\\LOG\\IN.LOG").modified(logsFolder + "\\LOG\\IN.LOG", Date{1});
    log();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.stays, tool.files.fileExists(logsFolder + "\\" + c.name));
    }
    EXPECT_TRUE(tool.files.fileExists(logsFolder + "\\LOG\\IN.LOG")) << "subfolders are left alone";
    EXPECT_EQ(5u, lines().size()) << "without a failure";
}

TEST_F(Retention, AReadOnlyFileStaysAndTheOthersGo)
{
    for (const char* name : {"A.LOG", "B.LOG", "C.LOG"}) {
        const std::string path = logsFolder + "\\" + name;
        tool.files.with(path).modified(path, Date{1});
    }
    tool.files.readOnly(logsFolder + "\\B.LOG");
    log();
    EXPECT_FALSE(tool.files.fileExists(logsFolder + "\\A.LOG"));
    EXPECT_TRUE(tool.files.fileExists(logsFolder + "\\B.LOG"));
    EXPECT_FALSE(tool.files.fileExists(logsFolder + "\\C.LOG"));
    EXPECT_EQ("15:23:07   ERROR:(                         [classLog]checkSizeOfLogs) "
              "Err.Number = 70 Err.Description = Permission denied",
              lastLine());
    EXPECT_EQ(6u, lines().size());
}

} // namespace
