#include "backends/site/files/result_folder.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using Turn = ResultFolder::Turn;

Turn turnOn(const TemporaryFolder& folder)
{
    return ResultFolder(folder.path()).takeTurn();
}

TEST(ResultFolder, HasOneGatherAtATime)
{
    const TemporaryFolder folder;
    std::optional<ResultFolder> first(folder.path());
    EXPECT_EQ(Turn::ours, turnOn(folder));
    EXPECT_EQ(Turn::ours, first->takeTurn());
    EXPECT_EQ(Turn::ours, first->takeTurn());
    EXPECT_EQ(Turn::anothers, turnOn(folder));
    first.reset();
    EXPECT_EQ(Turn::ours, turnOn(folder));
}

TEST(ResultFolder, IsNotFreeWhileAProgramThatTheGatherStartedIsAtWork)
{
    const TemporaryFolder folder;
    pid_t child = 0;
    {
        ResultFolder first(folder.path());
        ASSERT_EQ(Turn::ours, first.takeTurn());
        std::string words[] = {"sleep", "60"};
        char* const arguments[] = {words[0].data(), words[1].data(), nullptr};
        ASSERT_EQ(0, ::posix_spawnp(&child, "sleep", nullptr, nullptr, arguments, nullptr));
    }
    EXPECT_EQ(Turn::anothers, turnOn(folder));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(Turn::ours, turnOn(folder));
}

TEST(ResultFolder, KnowsWhetherItsNameStillLeadsToIt)
{
    const TemporaryFolder folder;
    folder.makeFolder("to");
    const ResultFolder results(folder / "to");
    EXPECT_TRUE(results.isAt(folder / "to"));
    fs::rename(folder / "to", folder / "moved");
    EXPECT_FALSE(results.isAt(folder / "to"));
    EXPECT_TRUE(results.isAt(folder / "moved"));
    folder.makeFolder("other");
    fs::create_symlink("other", folder / "to");
    EXPECT_FALSE(results.isAt(folder / "to"));
}

TEST(ResultFolder, KnowsItselfWhereNobodyMaySearchIt)
{
    const TemporaryFolder folder;
    folder.makeFolder("to");
    fs::permissions(folder.path(), fs::perms(0755));
    // To root every folder is open, so root becomes somebody else.
    const bool root = ::geteuid() == 0;
    if (root) {
        ASSERT_EQ(0, ::chown((folder / "to").c_str(), 65534, 65534));
    }
    fs::permissions(folder / "to", fs::perms(0600));
    if (root) {
        ASSERT_EQ(0, ::seteuid(65534));
    }
    EXPECT_TRUE(ResultFolder(folder / "to").isAt(folder / "to"));
    if (root) {
        ASSERT_EQ(0, ::seteuid(0));
    }
}

TEST(ResultFolder, SweepsForWhoHasTheTurnByAnotherObjectAndKeepsNone)
{
    const TemporaryFolder folder;
    folder.write("cabmaker.exe", "program");
    folder.write("A_WPN_20250220_174100.mdb", "rows");
    const auto program = [] { return std::string("program"); };
    ResultFolder first(folder.path());
    EXPECT_EQ(Turn::ours, first.takeTurn());
    ResultFolder(folder.path()).sweepLeftovers(program);
    EXPECT_FALSE(folder.exists("cabmaker.exe"));

    const TemporaryFolder other;
    ResultFolder second(other.path());
    second.sweepLeftovers(program);
    EXPECT_EQ(Turn::ours, turnOn(other));
}

TEST(ResultFolder, IsOnlyWhereThereIsAFolder)
{
    const TemporaryFolder folder;
    EXPECT_EQ(76, errorOf([&] { ResultFolder(folder / "missing"); }));
}

} // namespace
