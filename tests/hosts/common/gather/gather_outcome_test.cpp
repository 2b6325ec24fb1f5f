#include "hosts/common/gather/gather_outcome.h"

#include "core/error_trap.h"
#include "core/trapped_error_listener.h"
#include "hosts/common/gather/gather_report.h"
#include "platform/trace_database.h"
#include "support/temporary_folder.h"
#include "wizards/gather_wizard_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A gather whose page is on show: a test plays what the run does, and asks what came of it.
struct GatherOutcomeTest : GatherWizardTest {
    TemporaryFolder machine;
    std::string out = machine.makeFolder("Out");
    GatherReport report;

    /// Goes to the progress page with a job of its own.
    void job(std::vector<std::string> logs, std::vector<std::string> windowsLogs)
    {
        sheet->show();
        shared->clearOrvanLogs();
        shared->clearWindowsLogs();
        for (const auto& log : logs) shared->addOrvanLog(log);
        for (const auto& log : windowsLogs) shared->addWindowsLog(log);
        int button = 0;
        bool back = false;
        std::string text;
        progress->IWizardPage_Activate(back, button, text);
    }

    GatherWatch watch()
    {
        return GatherWatch(tool.context, report, *progress, [this](const std::string& path) {
            std::string below = path.substr(3);
            std::replace(below.begin(), below.end(), '\\', '/');
            return machine.path() + "/" + below;
        });
    }

    /// An error in a routine of the pipeline, while a log is being gathered or between them.
    void fail(const RunTimeError& error, const char* routine, const std::string& log = {})
    {
        const auto mark = [&](bool bold) {
            auto& steps = progress->treeviewSteps;
            for (int index = 1; index <= steps.count(); ++index)
                if (!log.empty() && steps.item(index).text() == log)
                    steps.item(index).setBold(bold);
        };
        mark(true);
        ErrorTrap step{tool.context, "mdlLogs", routine};
        step([&] { throw error; });
        mark(false);
    }

    void fail(int error, const char* routine = "processLogs", const std::string& log = {})
    {
        fail(RunTimeError(error), routine, log);
    }

    static std::vector<std::string> texts(const std::vector<Sentence>& sentences)
    {
        std::vector<std::string> all;
        for (const auto& sentence : sentences) all.push_back(sentence.text());
        return all;
    }
};

TEST_F(GatherOutcomeTest, AGatherThatBroughtAllHasNothingToTell)
{
    job({"diag_A_1.txt"}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "x");
    machine.write("Out/System.csv", "x");
    const GatherOutcome outcome = watched.outcome();
    EXPECT_THAT(outcome.files, ElementsAre("System.csv", "diag_A_1_fmtd.txt"));
    EXPECT_THAT(outcome.sentences(), IsEmpty());
}

TEST_F(GatherOutcomeTest, OnlyWhatThisRunWroteCounts)
{
    job({"diag_A_1.txt"}, {"System", "Application"});
    machine.write("Out/diag_A_1_fmtd.txt", "of an earlier gather");
    machine.write("Out/System.csv", "of an earlier gather, too");
    machine.write("Out/notes.txt", "x");
    const GatherWatch watched = watch();
    machine.write("Out/System.csv", "new");
    machine.write("Out/Application.csv", "new");
    machine.write("Out/notes.txt", "another program's");
    const GatherOutcome outcome = watched.outcome();
    EXPECT_THAT(outcome.files, ElementsAre("Application.csv", "System.csv"));
    EXPECT_THAT(texts(outcome.missing),
                ElementsAre("diag_A_1.txt was not copied: the copy has gone."));
}

TEST_F(GatherOutcomeTest, TellsTheFirstErrorOfEachLogAndWhereTheRestIsKept)
{
    job({"diag_A_1.txt", "diag_B_1.txt"}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "half of it");
    fail(runTimeErrors::diskFull, "processOrvanLogFile", "diag_A_1.txt");
    fail(runTimeErrors::deviceIo, "processOrvanLogFile", "diag_A_1.txt");
    fail(runTimeErrors::permissionDenied, "processOrvanLogFile", "diag_B_1.txt");
    fail(runTimeErrors::fileNotFound, "processWindowsEventLogFile", "System");
    EXPECT_THAT(texts(watched.outcome().sentences()),
                ElementsAre("diag_A_1.txt was copied in part: Disk full.",
                            "diag_B_1.txt was not copied: Permission denied.",
                            "The System event log was not captured: File not found.",
                            "What was gathered is kept in " + out + "."));
}

TEST_F(GatherOutcomeTest, ADestinationThatBecameAnotherFolderIsTold)
{
    job({}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/System.csv", "x");
    std::filesystem::rename(out, machine / "Moved");
    std::filesystem::create_symlink("Moved", out);
    EXPECT_FALSE(watched.outcome().destinationSwapped) << "the link leads to the same folder";
    std::filesystem::remove(out);
    machine.write("Out/System.csv", "x");
    const GatherOutcome outcome = watched.outcome();
    EXPECT_TRUE(outcome.destinationSwapped);
    EXPECT_THAT(texts(outcome.missing), ElementsAre("The destination " + out + " has gone."));
}

TEST_F(GatherOutcomeTest, AMalformedLineCostsNothing)
{
    job({"diag_A_1.txt"}, {});
    const GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "x");
    fail(runTimeErrors::invalidCall, "processOrvanLogFile", "diag_A_1.txt");
    EXPECT_THAT(watched.outcome().missing, IsEmpty());
}

TEST_F(GatherOutcomeTest, ATrapThatGivesUpTellsOfMalformedLinesOnlyWhereNothingElseFailed)
{
    job({"diag_A_1.txt", "diag_B_1.txt"}, {});
    shared->m_bTimeFrameLogs = true;
    tool.context.g_strTraceDatabase = "C:\\Out\\PC_WPN_1.mdb";
    const GatherWatch watched = watch();
    const RunTimeError noRoom(traceDatabaseErrors::diskFull, "Not enough space on disk.");
    machine.write("Out/PC_WPN_1.mdb");
    for (const char* log : {"diag_A_1.txt", "diag_B_1.txt"}) {
        if (log == std::string_view("diag_B_1.txt")) fail(noRoom, "processOrvanLogFileToDB", log);
        fail(runTimeErrors::invalidCall, "processOrvanLogFileToDB", log);
        fail(errorCountExceeded, "processOrvanLogFileToDB", log);
    }
    fail(noRoom, "saveUniqueFilters");
    fail(errorCountExceeded, "saveUniqueFilters");
    EXPECT_THAT(texts(watched.outcome().missing),
                testing::IsSupersetOf(
                    {"The filters could not all be stored: Not enough space on disk.",
                     "diag_A_1.txt has too many malformed lines, and was read no further "
                     "than the eleventh.",
                     "diag_B_1.txt was not gathered as a whole: Not enough space on disk."}));
}

TEST_F(GatherOutcomeTest, ABoxDuringALogTellsThatItIsNotThere)
{
    job({"diag_A_1.txt"}, {});
    GatherWatch watched = watch();
    progress->treeviewSteps.item(2).setBold(true);
    watched.messageShown();
    EXPECT_THAT(texts(watched.outcome().missing),
                ElementsAre("diag_A_1.txt was not gathered: it is not in C:\\Logs."));
}

TEST_F(GatherOutcomeTest, AStandardGatherTellsWhyItHasNoCurrentLog)
{
    job({}, {});
    shared->m_bStandardLogs = true;
    withProcess("KoCSMgr");
    EXPECT_THAT(texts(watch().outcome().missing),
                ElementsAre("The server names no current log of KoCSMgr."));
    tool.registry.withText(processKey("KoCSMgr"), "CurrentLogFile", "C:\\Logs\\diag_KoCSMgr_1.txt");
    EXPECT_THAT(
        texts(watch().outcome().missing),
        ElementsAre("The current log of KoCSMgr, C:\\Logs\\diag_KoCSMgr_1.txt, is not there."));
}

TEST_F(GatherOutcomeTest, AGatherByHandMayHaveNoLogs)
{
    job({}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/System.csv");
    EXPECT_THAT(watched.outcome().missing, IsEmpty());
}

TEST_F(GatherOutcomeTest, AFrameTellsOfItsDatabaseItsCabinetAndTheLogFolder)
{
    job({"diag_A_1.txt"}, {});
    shared->m_bTimeFrameLogs = true;
    tool.context.g_strTraceDatabase = "C:\\Out\\PC_WPN_1.mdb";
    tool.context.g_strLogFolder = "C:\\Gone";
    const GatherWatch watched = watch();
    fail(runTimeErrors::diskFull, "createNewDB");
    fail(runTimeErrors::objectVariableNotSet, "processOrvanLogFileToDB", "diag_A_1.txt");
    const GatherOutcome outcome = watched.outcome();
    EXPECT_FALSE(outcome.database);
    EXPECT_FALSE(outcome.cabinet);
    EXPECT_THAT(texts(outcome.missing),
                ElementsAre("No trace database was made: Disk full.",
                            "The server's log folder C:\\Gone is not there.",
                            testing::StartsWith("No cabinet was made: the cabinet maker ")));
}

/// A cabinet that holds files of these names, as far as its head.
std::string cabinetOf(const std::vector<std::string>& names)
{
    constexpr std::size_t headSize = 36;
    std::string head(headSize, '\0');
    head.replace(0, 4, "MSCF");
    head[16] = static_cast<char>(headSize);
    head[28] = static_cast<char>(names.size());
    for (const auto& name : names) head += std::string(16, '\1') + name + '\0';
    return head;
}

/// A frame's gather of one log, and what the tool's services saw of it.
struct SeenLogTest : GatherOutcomeTest {
    const std::string path = "C:\\Logs\\diag_A_1.txt";

    SeenLogTest()
    {
        tool.context.g_strTraceDatabase = "C:\\Out\\PC_WPN_1.mdb";
        machine.write("Out/PC_WPN_1.cab");
    }

    /// What is told of the logs of a frame, when `happens` has happened during the run.
    template <typename Happening>
    std::vector<std::string> told(std::vector<std::string> logs, Happening&& happens)
    {
        job(std::move(logs), {});
        shared->m_bTimeFrameLogs = true;
        const GatherWatch watched = watch();
        machine.write("Out/PC_WPN_1.mdb", std::to_string(++runs_));
        machine.write("Out/PC_WPN_1.cab", cabinetOf({"PC_WPN_1.mdb"}) +
                                              std::string(static_cast<std::size_t>(runs_), 'x'));
        happens();
        return texts(watched.outcome().missing);
    }

    static LogSight readTo(std::int64_t lines, bool end)
    {
        LogSight sight;
        sight.lines = lines;
        sight.readToEnd = end;
        return sight;
    }

private:
    int runs_ = 0;
};

TEST_F(SeenLogTest, AFolderThatCouldNotBeListedIsTold)
{
    report.notListed("C:\\Logs\\data_*.txt", "Permission denied");
    EXPECT_THAT(told({}, [] {}),
                ElementsAre("The logs in C:\\Logs could not be listed: Permission denied."));
    report.listed("C:\\Logs\\data_*.txt");
    EXPECT_THAT(told({}, [] {}), IsEmpty()) << "it was listed since";
}

TEST_F(SeenLogTest, ALogThatCouldNotBeLookedAtIsToldUnlessItWasGatheredAllTheSame)
{
    report.listed("C:\\Logs\\diag_*.txt");
    report.notSeen(path, "Device I/O error");
    EXPECT_THAT(told({}, [] {}), ElementsAre("diag_A_1.txt was passed over: Device I/O error."));
    EXPECT_THAT(told({"diag_A_1.txt"}, [] {}), IsEmpty());
    report.listed("C:\\Logs\\diag_*.txt");
    EXPECT_THAT(told({}, [] {}), IsEmpty()) << "the next listing looks anew";
}

TEST_F(SeenLogTest, ALogThatNoListingShowsIsTold)
{
    machine.makeFolder("Logs");
    machine.makeFolder("Logs/diag_F_1.txt");
    machine.write("Logs/diag_A_1.txt");
    const std::vector<std::string> links = {"diag_B_1.txt", "DATA_B_1.TXT", "diag_B_1_fmtd.txt",
                                            "notes.txt", "diag_L_1.txt"};
    for (const auto& name : links)
        std::filesystem::create_symlink("/elsewhere", machine / ("Logs/" + name));
    tool.files.with("C:\\Logs\\diag_L_1.txt", "a link that stays inside");
    report.listed("C:\\Logs\\diag_*.txt", {"diag_L_1.txt"});
    tool.files.failing("C:\\Logs\\diag_B_1.txt", runTimeErrors::permissionDenied);
    EXPECT_THAT(told({}, [] {}), ElementsAre("DATA_B_1.TXT was passed over: File not found.",
                                             "diag_B_1.txt was passed over: Permission denied."));
    report.listed("C:\\Logs\\diag_*.txt");
    EXPECT_THAT(told({}, [] {}), testing::Contains("diag_L_1.txt was passed over: it could not be "
                                                   "followed when the logs were listed."));
}

TEST_F(SeenLogTest, AFrameMissesTheCurrentLogOfAProcessThatIsNotThere)
{
    withCurrentLog("A", "diag_A_1.txt");
    tool.registry.withText(processKey("B"), "CurrentLogFile", "C:\\Logs\\diag_B_1.txt");
    withProcess("C");
    EXPECT_THAT(told({}, [] {}),
                ElementsAre("The current log of B, C:\\Logs\\diag_B_1.txt, is not there."));
    report.notListed("C:\\Logs\\diag_*.txt", "Permission denied");
    EXPECT_THAT(told({}, [] {}), testing::SizeIs(1)) << "the folder's own trouble says it all";
    report.listed("C:\\Logs\\diag_*.txt");
    tool.files.failing("C:\\Logs\\diag_B_1.txt", runTimeErrors::permissionDenied);
    EXPECT_THAT(told({}, [] {}), ElementsAre("The current log of B, C:\\Logs\\diag_B_1.txt, can't "
                                             "be looked at: Permission denied."));
}

TEST_F(SeenLogTest, AReadingThatBrokeOffTellsHowFarItCame)
{
    const auto missing = told({"diag_A_1.txt"}, [&] {
        LogSight sight = readTo(17, false);
        sight.unread = "Device I/O error";
        report.readingBegins(path);
        report.readingEnds(path, sight);
        fail(runTimeErrors::deviceIo, "processOrvanLogFileToDB", "diag_A_1.txt");
    });
    EXPECT_THAT(missing, ElementsAre("diag_A_1.txt was read as far as line 17: Device I/O error."));
}

TEST_F(SeenLogTest, AnImporterThatGaveUpTellsHowFarItCameAndHowManyLinesItLost)
{
    const auto missing = told({"diag_A_1.txt"}, [&] {
        report.readingBegins(path);
        for (int row = 0; row < 11; ++row) {
            report.rowBegun();
            report.rowLost("Not enough space on disk.");
            fail(RunTimeError(traceDatabaseErrors::diskFull, "Not enough space on disk."),
                 "processOrvanLogFileToDB", "diag_A_1.txt");
        }
        fail(errorCountExceeded, "processOrvanLogFileToDB", "diag_A_1.txt");
        report.readingEnds(path, readTo(30, false));
    });
    EXPECT_THAT(missing,
                ElementsAre("diag_A_1.txt was read as far as line 30: Not enough space on disk.",
                            "Lines of diag_A_1.txt that were not stored: 11 (Not enough space on "
                            "disk)."));
}

TEST_F(SeenLogTest, RowsThatWereStoredAreNotLost)
{
    const auto missing = told({"diag_A_1.txt"}, [&] {
        report.rowLost("of the log before");
        report.readingBegins(path);
        report.rowBegun();
        report.rowStored("A");
        report.readingEnds(path, readTo(30, true));
    });
    EXPECT_THAT(missing, IsEmpty());
}

TEST_F(SeenLogTest, ALogThatWasCutOrTakenAwayWhileItWasReadIsTold)
{
    const auto reading = [&](bool cut, bool vanished) {
        return told({"diag_A_1.txt"}, [&] {
            LogSight sight = readTo(30, true);
            sight.cut = cut;
            sight.vanished = vanished;
            report.readingBegins(path);
            report.readingEnds(path, sight);
        });
    };
    EXPECT_THAT(reading(true, false), ElementsAre("diag_A_1.txt was cut while it was read."));
    EXPECT_THAT(reading(false, true),
                ElementsAre("diag_A_1.txt was taken away while it was read."));
    EXPECT_THAT(told({"diag_A_1.txt"}, [] {}), IsEmpty()) << "that was another gather";
}

struct CabinetOutcomeTest : GatherOutcomeTest {
    CabinetOutcomeTest()
    {
        job({}, {});
        shared->m_bTimeFrameLogs = true;
        tool.context.g_strTraceDatabase = "C:\\Out\\PC_WPN_1.mdb";
        tool.context.g_strLogFolder = "C:\\Logs";
        tool.files.withFolder("C:\\Logs").with("C:\\OrvanDiagnostics\\cabmaker.exe", "x");
    }

    std::string lastMissing(const GatherWatch& watched)
    {
        machine.write("Out/PC_WPN_1.mdb");
        const auto missing = texts(watched.outcome().missing);
        return missing.empty() ? "" : missing.back();
    }

    /// Runs the cabinet maker to its end, of which so much is known then.
    void runCabinetMaker(ProcessReport known)
    {
        tool.processes.reporting(std::move(known));
        tool.processes.wait(tool.processes.start("cabmaker.exe", WindowStyle::hidden), -1);
    }
};

TEST_F(CabinetOutcomeTest, AMissingCabinetIsToldInTheCabinetMakersOwnWords)
{
    const GatherWatch watched = watch();
    fail(runTimeErrors::fileNotFound, "compressResults");
    runCabinetMaker({"a.ddf:6: it changed", false});
    EXPECT_EQ("No cabinet was made: a.ddf:6: it changed.", lastMissing(watched));
}

TEST_F(CabinetOutcomeTest, AMissingCabinetIsToldByTheFirstStatementThatFailed)
{
    const GatherWatch watched = watch();
    fail(runTimeErrors::diskFull, "compressResults");
    fail(runTimeErrors::fileNotFound, "compressResults");
    EXPECT_EQ("No cabinet was made: Disk full.", lastMissing(watched));
}

TEST_F(CabinetOutcomeTest, ACabinetOfAnotherMakerIsNoted)
{
    const GatherWatch watched = watch();
    machine.write("Out/PC_WPN_2.cab", cabinetOf({}));
    machine.write("Out/PC_WPN_2_2.cab", cabinetOf({"PC_WPN_1.mdb"}));
    runCabinetMaker({"", true});
    EXPECT_EQ("", lastMissing(watched));
    const GatherOutcome outcome = watched.outcome();
    EXPECT_EQ(out + "/PC_WPN_2.cab", outcome.cabinet) << "the first of a set";
    EXPECT_THAT(texts(outcome.sentences()),
                testing::Contains("The site's cabinet maker is not the installed one, which made "
                                  "the cabinet in its place."));
}

TEST_F(CabinetOutcomeTest, WhatTheCabinetLacksIsTold)
{
    shared->addWindowsLog("System");
    const GatherWatch watched = watch();
    machine.write("Out/System.csv", "x");
    machine.write("Out/PC_WPN_2.cab", cabinetOf({"PC_WPN_1.mdb"}));
    EXPECT_EQ("System.csv was passed over: it is not in the cabinet.", lastMissing(watched));
    machine.write("Out/PC_WPN_2.cab", cabinetOf({"PC_WPN_1.mdb", "System.csv"}));
    EXPECT_EQ("", lastMissing(watched));
    machine.write("Out/PC_WPN_2.cab", "no cabinet");
    EXPECT_EQ("System.csv was passed over: it is not in the cabinet.", lastMissing(watched));
}

TEST_F(CabinetOutcomeTest, WhatAKilledGatherLeftIsSweptAndWhatAPersonPutThereIsNot)
{
    tool.files.with("C:\\OrvanDiagnostics\\cabmaker.exe", "program");
    machine.write("Out/cabmaker.exe", "program");
    machine.makeFolder("Out/disk1");
    machine.write("Out/A_WPN_20250220_174100.mdb", "rows");
    EXPECT_FALSE(watch().refusal());
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(out), {}));
    machine.write("Out/cabmaker.exe", "another program");
    EXPECT_TRUE(watch().refusal());
    EXPECT_TRUE(machine.exists("Out/cabmaker.exe"));
}

TEST_F(CabinetOutcomeTest, WhatAFrameWouldTakeAwayMakesItRefuseTheDestination)
{
    for (const std::string name : {"setup.inf", "SETUP.RPT", "zmk.ddf", "CabMaker.exe", "Disk1"}) {
        machine.write("Out/" + name);
        const auto refusal = watch().refusal();
        ASSERT_TRUE(refusal) << name;
        EXPECT_EQ(name + " in the destination " + out +
                      " would be lost: the gather makes a file or folder of that name and removes "
                      "it again.",
                  refusal->text());
        std::filesystem::remove(out + "/" + name);
    }
    machine.write("Out/ZMK.DDF");
    shared->m_bTimeFrameLogs = false;
    EXPECT_FALSE(watch().refusal()) << "a gather without a cabinet does not touch it";
}

TEST_F(CabinetOutcomeTest, WhatIsNoPlainFileUnderAResultsNameMakesItRefuseTheDestination)
{
    const auto refused = [&](const std::string& name) {
        std::filesystem::create_symlink("/dev/null", out + "/" + name);
        const auto refusal = watch().refusal();
        std::filesystem::remove(out + "/" + name);
        return refusal && refusal->text() == name + " in the destination " + out +
                                                 " is not a plain file, and nothing is written to "
                                                 "such a one.";
    };
    shared->addOrvanLog("diag_A_1.txt");
    shared->addWindowsLog("System");
    tool.context.g_strTraceDatabase.clear(); // as before the first one of a run
    EXPECT_TRUE(refused("system.CSV"));
    EXPECT_TRUE(refused("PC_WPN_20250101_000000.mdb"));
    EXPECT_TRUE(refused("PC_WPN_20250101_000000.cab"));
    EXPECT_FALSE(refused("diag_A_1_fmtd.txt")) << "a frame writes no copies";
    EXPECT_FALSE(refused("notes.txt"));
    shared->m_bTimeFrameLogs = false;
    EXPECT_TRUE(refused("diag_A_1_fmtd.txt"));
    EXPECT_FALSE(refused("PC_WPN_20250101_000000.mdb"));
    machine.write("Out/System.csv", "of an earlier gather");
    EXPECT_FALSE(watch().refusal());
}

TEST_F(GatherOutcomeTest, ManyLogsWithOneTroubleAreToldInOneSentence)
{
    std::vector<std::string> logs;
    for (int number = 1; number <= 4; ++number)
        logs.push_back("diag_A_" + std::to_string(number) + ".txt");
    job(logs, {});
    const GatherWatch watched = watch();
    for (const auto& log : logs) fail(runTimeErrors::diskFull, "processOrvanLogFile", log);
    EXPECT_THAT(
        texts(watched.outcome().missing),
        ElementsAre(
            "4 logs were not gathered as a whole, the first of them diag_A_1.txt: Disk full."));
}

TEST_F(SeenLogTest, ACauseThatCostManyLogsInTwoWaysIsToldOnce)
{
    std::vector<std::string> logs;
    for (int number = 1; number <= 4; ++number)
        logs.push_back("diag_A_" + std::to_string(number) + ".txt");
    const auto missing = told(logs, [&] {
        for (const auto& log : logs) {
            report.readingBegins("C:\\Logs\\" + log);
            report.rowBegun();
            report.rowLost("Disk full");
            LogSight sight = readTo(5, false);
            sight.unread = "Disk full";
            report.readingEnds("C:\\Logs\\" + log, sight);
            fail(runTimeErrors::diskFull, "processOrvanLogFileToDB", log);
        }
    });
    EXPECT_THAT(missing, ElementsAre("4 logs were not gathered as a whole, the first of them "
                                     "diag_A_1.txt: Disk full."));
}

TEST_F(GatherOutcomeTest, ACancelIsToldWithWhatIsKeptAndNotWithWhatWasLeftOut)
{
    job({"diag_A_1.txt", "diag_B_1.txt"}, {"System"});
    GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "half of it");
    watched.cancelled();
    EXPECT_THAT(
        texts(watched.outcome().sentences()),
        ElementsAre("The gather was cancelled.", "What was gathered is kept in " + out + "."));
}

TEST_F(GatherOutcomeTest, ADestinationThatWasNeverMadeIsToldOtherwiseThanOneThatHasGone)
{
    job({}, {"System"});
    std::filesystem::remove(out);
    const GatherWatch never = watch();
    EXPECT_THAT(texts(never.outcome().missing),
                ElementsAre("The destination " + out + " has gone."));
    fail(runTimeErrors::permissionDenied);
    EXPECT_THAT(texts(never.outcome().missing),
                ElementsAre("The destination " + out + " can't be made: Permission denied."));
}

TEST_F(GatherOutcomeTest, WhoListenedBeforeListensAgain)
{
    job({}, {});
    int heard = 0;
    const TrappedErrorListener before(tool.context,
                                      [&](const RunTimeError&, std::string_view) { ++heard; });
    {
        const GatherWatch watched = watch();
        fail(runTimeErrors::diskFull);
    }
    EXPECT_EQ(0, heard);
    fail(runTimeErrors::diskFull);
    EXPECT_EQ(1, heard);
}

} // namespace
