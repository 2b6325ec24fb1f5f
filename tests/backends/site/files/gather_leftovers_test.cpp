#include "backends/site/files/gather_leftovers.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

const std::string directives = ".Option EXPLICIT\r\n"
                               ".Set CabinetNameTemplate=..\\A_WPN_20250220_174200.cab\r\n"
                               ".Set Cabinet=on\r\n"
                               ".Set Compress=on\r\n"
                               ".Set MaxDiskSize=CDROM\r\n"
                               "\"/to/there\\System.csv\"\r\n"
                               "\"/to/there\\A_WPN_20250220_174100.mdb\"\r\n";

const std::string list =
    "[disks]\r\n; number,folder\r\n1,\"disk1\"\r\n\r\n"
    "[cabinets]\r\n; number,disk,file\r\n1,1,\"A_WPN_20250220_174200.cab\"\r\n";

const std::string report = "Cabinet         A_WPN_20250220_174200.cab\r\n"
                           "Compression     MSZIP\r\n";

/// The number of a process that has ended.
std::string endedProcess()
{
    const pid_t child = ::fork();
    if (child == 0) ::_exit(0);
    ::waitpid(child, nullptr, 0);
    return std::to_string(child);
}

struct GatherLeftoversTest : testing::Test {
    /// What is left of the folder by a sweep.
    std::set<std::string> swept(const std::string& program = "the program") const
    {
        const auto before = names();
        const auto maker = [&] { return program; };
        const auto foreseen = gatherLeftovers(RootFolder(folder.path()), maker);
        EXPECT_EQ(before, names()) << "a look";
        sweepGatherLeftovers(RootFolder(folder.path()), maker);
        const auto after = names();
        std::set<std::string> gone;
        std::set_difference(before.begin(), before.end(), after.begin(), after.end(),
                            std::inserter(gone, gone.end()));
        EXPECT_EQ(gone, std::set<std::string>(foreseen.begin(), foreseen.end()));
        return after;
    }

    std::set<std::string> names() const
    {
        std::set<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            found.insert(entry.path().filename());
        return found;
    }

    TemporaryFolder folder;
};

TEST_F(GatherLeftoversTest, WhatAKilledGatherLeftGoesAndItsResultsStay)
{
    folder.write("ZMK.DDF", directives);
    folder.write("cabmaker.exe", "the program");
    folder.write("setup.inf", list);
    folder.write("setup.rpt", report);
    folder.makeFolder("disk1");
    const std::string ended = endedProcess();
    folder.write(".new-" + ended + "-0", "half");
    folder.write(".new-" + ended + "-1", "half");
    folder.write("A_WPN_20250220_174100.mdb", "rows");
    folder.write("System.csv", "events");
    EXPECT_EQ((std::set<std::string>{"A_WPN_20250220_174100.mdb", "System.csv"}), swept());
}

TEST_F(GatherLeftoversTest, WhatANameAloneSpeaksForStays)
{
    folder.write("ZMK.DDF", ".Option EXPLICIT\r\n.Set CabinetNameTemplate=mine.cab\r\n");
    folder.write("cabmaker.exe", "another program");
    folder.write("setup.inf", "[Version]\r\n");
    folder.write("setup.rpt", "my report");
    folder.makeFolder("disk1");
    folder.write(".new-" + std::to_string(::getpid()) + "-0", "at work");
    folder.write(".new-" + endedProcess() + "-mine", "mine");
    EXPECT_EQ(7U, swept().size());
}

TEST_F(GatherLeftoversTest, AFolderThatIsNotEmptyAndLinksStay)
{
    folder.write("ZMK.DDF", directives);
    folder.write("disk1/mine");
    const std::string kept = folder.write("kept", list);
    fs::create_symlink("kept", folder / "setup.inf");
    EXPECT_EQ((std::set<std::string>{"disk1", "kept", "setup.inf"}), swept());
}

TEST_F(GatherLeftoversTest, AProgramStaysWhereTheOwnOneCantBeRead)
{
    folder.write("cabmaker.exe");
    folder.write("A_WPN_20250220_174100.mdb", "rows");
    EXPECT_EQ(2U, swept("").size());
}

TEST_F(GatherLeftoversTest, AProgramStaysWhereNoGatherWasAndInTheToolsOwnFolder)
{
    folder.write("cabmaker.exe", "the program");
    EXPECT_EQ(1U, swept().size());
    folder.write("A_WPN_20250220_174100.mdb", "rows");
    folder.write("blankwpndb.MDB", "template");
    EXPECT_EQ(3U, swept().size());
    fs::remove(folder / "blankwpndb.MDB");
    EXPECT_EQ((std::set<std::string>{"A_WPN_20250220_174100.mdb"}), swept());
}

TEST_F(GatherLeftoversTest, AFileWithAnotherNameStays)
{
    const TemporaryFolder elsewhere;
    fs::create_hard_link(elsewhere.write("mine", directives), folder / "ZMK.DDF");
    EXPECT_EQ((std::set<std::string>{"ZMK.DDF"}), swept());
}

TEST(DirectiveFileOfAGather, IsKnownByItsLinesAsFarAsTheyWereWritten)
{
    EXPECT_TRUE(isDirectiveFileOfAGather(directives));
    EXPECT_TRUE(isDirectiveFileOfAGather("\xEF\xBB\xBF" + directives));
    EXPECT_TRUE(isDirectiveFileOfAGather(directives.substr(0, directives.size() / 2)));
    EXPECT_TRUE(isDirectiveFileOfAGather(directives.substr(0, directives.size() - 5)));
    EXPECT_TRUE(isDirectiveFileOfAGather(""));
    EXPECT_FALSE(isDirectiveFileOfAGather(".Option EXPLICIT\r\n"));
    EXPECT_FALSE(isDirectiveFileOfAGather(directives + "\"C:\\mine\\notes.txt\"\r\n"));
    EXPECT_FALSE(isDirectiveFileOfAGather(directives + "a word"));
}

TEST(CabinetOfAGather, IsKnownByItsName)
{
    EXPECT_TRUE(isCabinetOfAGather("A_WPN_20250220_174200.cab"));
    EXPECT_TRUE(isCabinetOfAGather("A_WPN_B_WPN_20250220_174200_12.cab"));
    for (const char* name : {"A_WPN_20250220_174200.mdb", "20250220_174200.cab", "_WPN_.cab",
                             "A_WPN_20250220-174200.cab", "A_WPN_20250220_174200x.cab", ".cab"})
        EXPECT_FALSE(isCabinetOfAGather(name)) << name;
}

} // namespace
