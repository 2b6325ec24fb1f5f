#include "backends/site/site_turn.h"

#include "support/error_of.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Another process, which is at work when this is made; killed at the end.
class OtherProcess {
public:
    /// `begin` gives what the process does next, until it is killed.
    explicit OtherProcess(const std::function<std::function<void()>()>& begin)
    {
        int ready[2];
        EXPECT_EQ(0, pipe(ready));
        process_ = fork();
        if (process_ == 0) {
            const auto work = begin();
            if (write(ready[1], "r", 1) != 1) _exit(1);
            for (;;) work();
        }
        close(ready[1]);
        char mark = 0;
        EXPECT_EQ(1, read(ready[0], &mark, 1));
        close(ready[0]);
    }
    ~OtherProcess()
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    pid_t process() const { return process_; }

private:
    pid_t process_ = 0;
};

void idle()
{
    std::this_thread::sleep_for(10s);
}

struct SiteTurnTest : testing::Test {
    /// Another program whose turn it is.
    std::unique_ptr<OtherProcess> other() const
    {
        return std::make_unique<OtherProcess>([this] {
            static const SiteTurn turn(folder.path());
            return idle;
        });
    }

    TemporaryFolder folder;
};

TEST_F(SiteTurnTest, ComesAgainAfterEachTurn)
{
    for (int round = 0; round < 3; ++round) EXPECT_NO_THROW(SiteTurn{folder.path()});
}

TEST_F(SiteTurnTest, IsRefusedWithASentenceWhileAnotherProgramKeepsIt)
{
    const auto holder = other();
    const auto before = Clock::now();
    EXPECT_EQ("another program (process " + std::to_string(holder->process()) +
                  ") is changing the site " + folder.path() + " and did not finish in time",
              errorTextOf([&] { SiteTurn(folder.path(), 40ms); }));
    EXPECT_GE(Clock::now() - before, 40ms);
    EXPECT_EQ(runTimeErrors::permissionDenied, errorOf([&] { SiteTurn(folder.path(), 1ms); }));
}

TEST_F(SiteTurnTest, IsSaidToBeWaitedForAfterASecondAndOnce)
{
    const auto holder = other();
    const auto before = Clock::now();
    Clock::duration until{};
    std::string told;
    const auto notice = [&](const std::string& text) {
        told += text;
        until = Clock::now() - before;
    };
    EXPECT_EQ(runTimeErrors::permissionDenied,
              errorOf([&] { SiteTurn(folder.path(), 3s, notice); }));
    EXPECT_EQ("waiting for another program (process " + std::to_string(holder->process()) +
                  ") that is changing the site " + folder.path(),
              told);
    EXPECT_GE(until, 1s);
}

TEST_F(SiteTurnTest, IsLetGoByAProgramThatIsKilled)
{
    other().reset();
    EXPECT_NO_THROW(SiteTurn(folder.path(), 0ms));
}

TEST_F(SiteTurnTest, IsWaitedForAsLongAsOthersTakeTheirTurns)
{
    const std::string path = folder / "changes.lock";
    int taken = 0;
    const OtherProcess queue([&] {
        const int lock = open(path.c_str(), O_RDWR | O_CREAT, 0666);
        flock(lock, LOCK_EX);
        return [lock, path, taken]() mutable {
            const std::string holder = std::to_string(100 + taken) + "\n";
            if (pwrite(lock, holder.data(), holder.size(), 0) < 0 || ++taken == 20) _exit(0);
            std::this_thread::sleep_for(50ms);
        };
    });
    EXPECT_NO_THROW(SiteTurn(folder.path(), 600ms));
}

TEST_F(SiteTurnTest, IsNotWaitedForAnyLongerThanAQueueMayTake)
{
    const std::string path = folder / "changes.lock";
    const OtherProcess queue([&] {
        const int lock = open(path.c_str(), O_RDWR | O_CREAT, 0666);
        flock(lock, LOCK_EX);
        return [lock, holder = 100]() mutable {
            const std::string text = std::to_string(holder++) + "\n";
            if (pwrite(lock, text.data(), text.size(), 0) < 0) _exit(1);
            std::this_thread::sleep_for(1ms);
        };
    });
    EXPECT_EQ(runTimeErrors::permissionDenied, errorOf([&] { SiteTurn(folder.path(), 50ms); }));
}

TEST_F(SiteTurnTest, FollowsNoLinkAndTakesNoFolder)
{
    fs::create_symlink(folder / "elsewhere", folder / "changes.lock");
    EXPECT_EQ(runTimeErrors::permissionDenied, errorOf([&] { SiteTurn{folder.path()}; }));
    EXPECT_FALSE(folder.exists("elsewhere"));
    fs::remove(folder / "changes.lock");
    ASSERT_EQ(0, mkfifo((folder / "changes.lock").c_str(), 0666));
    EXPECT_EQ(runTimeErrors::permissionDenied, errorOf([&] { SiteTurn{folder.path()}; }));
    EXPECT_EQ(runTimeErrors::pathNotFound, errorOf([&] { SiteTurn{folder / "none"}; }));
}

TEST_F(SiteTurnTest, IsAnotherPersonsTooAndNotNeededWhereNobodyMayWrite)
{
    if (geteuid() != 0) GTEST_SKIP() << "needs two persons";
    fs::permissions(folder.path(), fs::perms(0755));
    ASSERT_EQ(0, seteuid(65534));
    EXPECT_NO_THROW(SiteTurn{folder.path()});
    EXPECT_FALSE(folder.exists("changes.lock"));
    ASSERT_EQ(0, seteuid(0));

    const auto holder = other();
    fs::permissions(folder / "changes.lock", fs::perms(0644));
    ASSERT_EQ(0, seteuid(65534));
    EXPECT_EQ(runTimeErrors::permissionDenied, errorOf([&] { SiteTurn(folder.path(), 1ms); }));
    ASSERT_EQ(0, seteuid(0));
}

} // namespace
