// first_output COMMAND...: the microseconds from a command's start to the first byte that it
// prints. Ends with 1 when it prints nothing or does not end with 0.

#include <chrono>
#include <cstdio>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(readability-redundant-declaration)

int main(int argc, char** argv)
{
    int ends[2] = {};
    if (argc < 2 || pipe(ends) != 0) return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);

    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawnp(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0) return 2;
    close(ends[1]);
    char byte = 0;
    const bool said = read(ends[0], &byte, 1) == 1;
    const auto took = std::chrono::steady_clock::now() - begin;

    char rest[4096];
    while (read(ends[0], rest, sizeof rest) > 0) {
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!said || !WIFEXITED(status) || WEXITSTATUS(status) != 0) return 1;
    std::printf("%lld\n", static_cast<long long>(
                              std::chrono::duration_cast<std::chrono::microseconds>(took).count()));
    return 0;
}
