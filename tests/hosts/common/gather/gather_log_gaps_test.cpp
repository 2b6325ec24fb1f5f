#include "hosts/common/gather/gather_log_gaps.h"

#include "hosts/common/gather/gather_watch_fixture.h"
#include "platform/trace_database.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GatherWatchTest, AStandardGatherTellsWhyItHasNoCurrentLog)
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

TEST_F(GatherWatchTest, AGatherByHandMayHaveNoLogs)
{
    job({}, {"System"});
    const GatherWatch watched = watch();
    machine.write("Out/System.csv");
    EXPECT_THAT(watched.outcome().missing, IsEmpty());
}

TEST_F(GatherWatchTest, ManyLogsWithOneTroubleAreToldInOneSentence)
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

/// A frame's gather of one log, and what the tool's services saw of it.
struct SeenLogTest : GatherWatchTest {
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

} // namespace
