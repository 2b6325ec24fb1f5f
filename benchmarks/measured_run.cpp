// measured_run COMMAND...: three numbers of microseconds from a command's start: to the first byte
// that it prints, to its end, and what of that it was at work on a processor.
// Ends with 1 when the command prints nothing or does not end with 0.

#include <chrono>
#include <cstdio>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Not every header of a C library declares it.
extern char** environ; // NOLINT(readability-redundant-declaration)

namespace {

using Clock = std::chrono::steady_clock;

long long microseconds(Clock::duration took)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(took).count();
}

long long microseconds(const timeval& time)
{
    return time.tv_sec * 1'000'000LL + time.tv_usec;
}

} // namespace

int main(int argc, char** argv)
{
    int ends[2] = {};
    if (argc < 2 || pipe(ends) != 0) return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);

    const auto begin = Clock::now();
    pid_t child = 0;
    if (posix_spawnp(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0) return 2;
    close(ends[1]);
    char rest[65536];
    const bool said = read(ends[0], rest, 1) == 1;
    const auto first = Clock::now() - begin;
    while (read(ends[0], rest, sizeof rest) > 0) {
    }
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    const auto whole = Clock::now() - begin;
    if (!said || !WIFEXITED(status) || WEXITSTATUS(status) != 0) return 1;
    std::printf("%lld %lld %lld\n", microseconds(first), microseconds(whole),
                microseconds(used.ru_utime) + microseconds(used.ru_stime));
    return 0;
}
