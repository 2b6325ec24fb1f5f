// followed_run LOG LINE COMMAND... : starts a command that shows what is written to a log, writes
// LINE with a number behind it to the log forty times, and prints three numbers of microseconds:
// from the writing of a line until it is shown the median and the longest, and what the command is
// at work on a processor in a second in which nothing is written.
// Ends with 1 when a line is not shown within five seconds.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// Not every header of a C library declares it.
extern char** environ; // NOLINT(readability-redundant-declaration)

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int lines = 40;
constexpr int quietSeconds = 10;

/// Reads what the command shows until a text is in it. False when it does not come.
bool waitFor(const std::string& text, int shown)
{
    const auto until = Clock::now() + std::chrono::seconds(5);
    std::string seen;
    while (seen.find(text) == std::string::npos) {
        const auto left = std::chrono::duration_cast<milliseconds>(until - Clock::now()).count();
        pollfd waiting{shown, POLLIN, 0};
        if (left <= 0 || poll(&waiting, 1, static_cast<int>(left)) <= 0) return false;
        char bytes[65536];
        const ssize_t count = read(shown, bytes, sizeof bytes);
        if (count <= 0) return false;
        seen.append(bytes, static_cast<std::size_t>(count));
    }
    return true;
}

/// How long it takes until a line is shown that is written now; negative when it is not.
long long shownAfter(const std::string& log, const std::string& line, int shown)
{
    const int file = open(log.c_str(), O_WRONLY | O_APPEND);
    const std::string whole = line + "\n";
    const auto begin = Clock::now();
    const bool written =
        file >= 0 && write(file, whole.data(), whole.size()) == static_cast<ssize_t>(whole.size());
    close(file);
    if (!written || !waitFor(whole, shown)) return -1;
    return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count();
}

/// The processor time of a process so far.
long long usedBy(pid_t process)
{
    clockid_t clock{};
    timespec used{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0) return 0;
    return used.tv_sec * 1'000'000LL + used.tv_nsec / 1000;
}

/// Prints the numbers of a command that is running. False when it does not show what it should.
bool measure(pid_t command, const std::string& log, const std::string& line, int shown)
{
    std::this_thread::sleep_for(std::chrono::seconds(1));
    std::vector<long long> took;
    for (int number = 1; number <= lines; ++number) {
        // Never in step with a command that looks at fixed times.
        std::this_thread::sleep_for(milliseconds(100 + number * 37 % 101));
        took.push_back(shownAfter(log, line + std::to_string(number), shown));
        if (took.back() < 0) return false;
    }
    std::sort(took.begin(), took.end());
    const long long before = usedBy(command);
    std::this_thread::sleep_for(std::chrono::seconds(quietSeconds));
    const long long idle = (usedBy(command) - before) / quietSeconds;
    std::printf("%lld %lld %lld\n", took[took.size() / 2], took.back(), idle);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    int ends[2] = {};
    if (argc < 4 || pipe(ends) != 0) return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    pid_t child = 0;
    if (posix_spawnp(&child, argv[3], &actions, nullptr, argv + 3, environ) != 0) return 2;
    close(ends[1]);
    const bool shown = measure(child, argv[1], argv[2], ends[0]);
    kill(child, SIGINT);
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return shown ? 0 : 1;
}
