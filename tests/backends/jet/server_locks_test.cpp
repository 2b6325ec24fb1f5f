// The locks of an open database, as file servers carry them from machine to machine.
#include "backends/jet/scratch_database.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs a part of a test in another process and gives its number.
int inAnotherProcess(const std::function<int()>& part)
{
    const pid_t child = fork();
    if (child == 0) _exit(part());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A lock as file servers carry them from machine to machine, for all of a file or a part of it.
struct flock serverLock(off_t start, off_t length)
{
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = start;
    lock.l_len = length;
    return lock;
}

TEST(ServerLocks, TheLockOfAnOpenDatabaseIsOneThatOtherMachinesSee)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const auto lockedBytes = [&] {
        return inAnotherProcess([&] {
            const int file = open(scratch.path().c_str(), O_RDWR);
            int locked = 0;
            for (const off_t at : {off_t{0}, off_t{5000}, off_t{1} << 33}) {
                struct flock lock = serverLock(at, 1);
                fcntl(file, F_GETLK, &lock);
                locked += lock.l_type != F_UNLCK ? 1 : 0;
            }
            return locked;
        });
    };
    EXPECT_EQ(0, lockedBytes());
    auto database = engine.openDatabase(scratch.path().string());
    EXPECT_EQ(3, lockedBytes()) << "the first byte, one of a later page, one past the end";
    database.reset();
    EXPECT_EQ(0, lockedBytes());
}

TEST(ServerLocks, ADatabaseThatAnotherProgramHasLockedAPartOfIsInUse)
{
    ScratchDatabase scratch;
    auto engine = machineEngine();
    const int file = open(scratch.path().c_str(), O_RDWR | O_CLOEXEC);
    struct flock lock = serverLock(0x1000'0000, 1);
    ASSERT_EQ(0, fcntl(file, F_SETLK, &lock));
    const auto opened = [&] {
        return errorOf([&] { engine.openDatabase(scratch.path().string()); }) == 3045 ? 1 : 0;
    };
    EXPECT_EQ(1, inAnotherProcess(opened));
    close(file);
    EXPECT_EQ(0, inAnotherProcess(opened));
}

} // namespace
