#include "hosts/common/gather/gather_files.h"

#include "hosts/common/gather/gather_watch_fixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST_F(GatherWatchTest, OnlyWhatThisRunWroteCounts)
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

TEST_F(GatherWatchTest, ADestinationThatBecameAnotherFolderIsTold)
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

TEST_F(FrameGatherTest, WhatAKilledGatherLeftIsSweptAndWhatAPersonPutThereIsNot)
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

TEST_F(FrameGatherTest, WhatAFrameWouldTakeAwayMakesItRefuseTheDestination)
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

TEST_F(FrameGatherTest, WhatIsNoPlainFileUnderAResultsNameMakesItRefuseTheDestination)
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

} // namespace
