#include "hosts/common/gather/gather_troubles.h"

#include "core/trapped_error_listener.h"
#include "hosts/common/gather/gather_watch_fixture.h"
#include "platform/trace_database.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GatherWatchTest, AMalformedLineCostsNothing)
{
    job({"diag_A_1.txt"}, {});
    const GatherWatch watched = watch();
    machine.write("Out/diag_A_1_fmtd.txt", "x");
    fail(runTimeErrors::invalidCall, "processOrvanLogFile", "diag_A_1.txt");
    EXPECT_THAT(watched.outcome().missing, IsEmpty());
}

TEST_F(GatherWatchTest, ATrapThatGivesUpTellsOfMalformedLinesOnlyWhereNothingElseFailed)
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

TEST_F(GatherWatchTest, TellsTheFirstErrorOfEachLogAndWhereTheRestIsKept)
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

TEST_F(GatherWatchTest, ABoxDuringALogTellsThatItIsNotThere)
{
    job({"diag_A_1.txt"}, {});
    GatherWatch watched = watch();
    progress->treeviewSteps.item(2).setBold(true);
    watched.messageShown();
    EXPECT_THAT(texts(watched.outcome().missing),
                ElementsAre("diag_A_1.txt was not gathered: it is not in C:\\Logs."));
}

TEST_F(GatherWatchTest, WhoListenedBeforeListensAgain)
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
