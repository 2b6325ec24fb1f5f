#include "hosts/common/gather/destination_turn.h"

#include "backends/site/files/site_file_system.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

struct DestinationTurnTest : testing::Test {
    DestinationTurnTest() { machine.makeFolder("drive_c"); }

    DestinationTurn turn(const std::string& name = "Out")
    {
        return {files, "C:\\" + name, machine / ("drive_c/" + name)};
    }

    TemporaryFolder machine;
    SitePaths paths{machine.path()};
    SiteFileSystem files{paths, parsePosixTimeZone("UTC0")};
    std::string out = machine / "drive_c/Out";
};

TEST_F(DestinationTurnTest, AFolderHasOneGatherAtATime)
{
    machine.makeFolder("drive_c/Out");
    {
        const DestinationTurn first = turn();
        EXPECT_FALSE(first.refusal());
        EXPECT_FALSE(turn("Out/..").refusal()) << "another folder";
        const auto refusal = turn().refusal();
        ASSERT_TRUE(refusal);
        EXPECT_EQ("Another gather is writing to " + out +
                      "; wait until it has ended, or name another folder.",
                  refusal->text());
    }
    EXPECT_FALSE(turn().refusal()) << "once the first one has ended";
}

TEST_F(DestinationTurnTest, AFolderThatIsNotThereIsMadeAndKept)
{
    const DestinationTurn first = turn();
    EXPECT_FALSE(first.refusal());
    struct stat facts {};
    ASSERT_EQ(0, ::stat(out.c_str(), &facts));
    EXPECT_EQ(0700U, facts.st_mode & 0777U);
    EXPECT_TRUE(turn().refusal());
}

TEST_F(DestinationTurnTest, OneThatCannotBeMadeIsLeftToTheGatherToTellOf)
{
    EXPECT_FALSE(turn("None/Out").refusal());
    machine.write("drive_c/File", "x");
    EXPECT_FALSE(turn("File").refusal());
    EXPECT_FALSE(turn("File").hasNamesOfThisSecond());
}

TEST_F(DestinationTurnTest, AnotherFolderInTheSamePlaceIsAnotherTurn)
{
    const DestinationTurn first = turn();
    fs::rename(out, machine / "drive_c/Before");
    const DestinationTurn second = turn();
    EXPECT_FALSE(second.refusal());
    EXPECT_TRUE(turn().refusal());
}

TEST_F(DestinationTurnTest, NamesOfThisSecondAreThoseOfResultsAlone)
{
    const DestinationTurn kept = turn();
    EXPECT_FALSE(kept.hasNamesOfThisSecond());
    machine.write("drive_c/Out/diag_A_1_fmtd.txt", "x");
    EXPECT_FALSE(kept.hasNamesOfThisSecond());
    machine.write("drive_c/Out/VM_WPN_20250220_150000.mdb", "x");
    EXPECT_TRUE(kept.hasNamesOfThisSecond());
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(DestinationTurn::longestPause);
    while (kept.hasNamesOfThisSecond() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(kept.hasNamesOfThisSecond());
}

} // namespace
