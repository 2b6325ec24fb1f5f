#include "end_to_end/program.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// An empty folder to make samples in.
struct SampleCommand : testing::Test {
    SampleCommand()
    {
        char name[] = "/tmp/orvan_sample_XXXXXX";
        folder = mkdtemp(name);
    }
    ~SampleCommand() override { fs::remove_all(folder); }

    /// Starts a sample that takes long; what it says goes to the file "said".
    pid_t startLongOne() const
    {
        const std::string site = (folder / "site").string();
        const std::string said = (folder / "said").string();
        const pid_t child = fork();
        if (child == 0) {
            dup2(open(said.c_str(), O_WRONLY | O_CREAT, 0666), STDERR_FILENO);
            execl(built::orvandiag, "orvandiag", "sample", site.c_str(), "--lines", "900000000",
                  static_cast<char*>(nullptr));
            _exit(127);
        }
        return child;
    }

    /// Whether a log of the sample in the making is there before half a minute has passed.
    bool hasBegun() const
    {
        const fs::path logs = folder / "site.partial/drive_c/KelmaOrvan/Logs";
        for (int tries = 0; tries < 3000; ++tries) {
            std::error_code none;
            if (fs::exists(logs, none) && !fs::is_empty(logs, none)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return false;
    }

    fs::path folder;
};

TEST_F(SampleCommand, LeavesNothingWhenItIsInterrupted)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        const pid_t child = startLongOne();
        EXPECT_TRUE(hasBegun());
        kill(child, signal);
        kill(child, signal); // an impatient person
        int state = 0;
        waitpid(child, &state, 0);
        EXPECT_TRUE(WIFEXITED(state));
        EXPECT_EQ(1, WEXITSTATUS(state));
        EXPECT_FALSE(fs::exists(folder / "site"));
        EXPECT_FALSE(fs::exists(folder / "site.partial"));
        EXPECT_THAT(runProgram({"cat", (folder / "said").string()}).out,
                    HasSubstr("orvandiag: interrupted; no sample server was made"));
        fs::remove(folder / "said");
    }
}

TEST_F(SampleCommand, GoesOnWithoutItsTerminalWhereItWasToldTo)
{
    const std::string said = runProgram({"sh", "-c",
                                         std::string("trap '' HUP; '") + built::orvandiag +
                                             "' sample '" + (folder / "site").string() +
                                             "' --lines 300000 & child=$!; sleep 0.1; "
                                             "kill -HUP $child; wait $child; echo $?"})
                                 .out;
    EXPECT_THAT(said, testing::EndsWith("0\n"));
    EXPECT_TRUE(fs::exists(folder / "site/site.ini"));
}

TEST_F(SampleCommand, ShowsItsProgressOnATerminalAlone)
{
    const std::string command = std::string("'") + built::orvandiag + "' sample '" +
                                (folder / "site").string() + "' --lines 20000";
    const Outcome seen = runProgram({"script", "-qec", command, "/dev/null"});
    EXPECT_EQ(0, seen.status);
    EXPECT_THAT(seen.out, HasSubstr("%  Making a sample server"));
    EXPECT_THAT(seen.out, HasSubstr("Made a sample server in"));
    fs::remove_all(folder / "site");
    const Outcome unseen = orvandiag({"sample", (folder / "site").string()});
    EXPECT_EQ(0, unseen.status);
    EXPECT_EQ("", unseen.err);
}

} // namespace
