#include "hosts/common/gather/gather_account.h"

#include "hosts/common/gather/gather_watch_fixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST_F(GatherWatchTest, AFrameTellsOfItsDatabaseItsCabinetAndTheLogFolder)
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

TEST_F(FrameGatherTest, AMissingCabinetIsToldInTheCabinetMakersOwnWords)
{
    const GatherWatch watched = watch();
    fail(runTimeErrors::fileNotFound, "compressResults");
    runCabinetMaker({"a.ddf:6: it changed", false});
    EXPECT_EQ("No cabinet was made: a.ddf:6: it changed.", lastMissing(watched));
}

TEST_F(FrameGatherTest, AMissingCabinetIsToldByTheFirstStatementThatFailed)
{
    const GatherWatch watched = watch();
    fail(runTimeErrors::diskFull, "compressResults");
    fail(runTimeErrors::fileNotFound, "compressResults");
    EXPECT_EQ("No cabinet was made: Disk full.", lastMissing(watched));
}

TEST_F(FrameGatherTest, ACabinetOfAnotherMakerIsNoted)
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

TEST_F(FrameGatherTest, WhatTheCabinetLacksIsTold)
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

TEST_F(GatherWatchTest, ADestinationThatWasNeverMadeIsToldOtherwiseThanOneThatHasGone)
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

} // namespace
