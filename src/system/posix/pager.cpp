#include "system/pager.h"

#include "system/environment.h"
#include "system/file_descriptor.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

pid_t pager = -1;

/// Whether the folders of PATH have a program.
bool isInstalled(const std::string& program)
{
    std::string folders = environmentVariable("PATH").value_or("/usr/bin:/bin");
    while (!folders.empty()) {
        const auto end = folders.find(':');
        if (::access((folders.substr(0, end) + "/" + program).c_str(), X_OK) == 0) return true;
        folders.erase(0, end == std::string::npos ? end : end + 1);
    }
    return false;
}

/// Whether what a command begins with is there. What only the shell can tell is taken to be.
bool canBegin(const std::string& command)
{
    constexpr const char* plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._+-/";
    const std::string program = command.substr(0, command.find(' '));
    if (program.empty() || program.find_first_not_of(plain) != std::string::npos) return true;
    if (program.find('/') != std::string::npos) return ::access(program.c_str(), X_OK) == 0;
    return isInstalled(program);
}

[[noreturn]] void becomePager(const std::string& command, int input)
{
    // Where standard input was closed, the pipe has its number, and would go with the program.
    if (input == STDIN_FILENO)
        ::fcntl(input, F_SETFD, 0);
    else
        ::dup2(input, STDIN_FILENO);
    // Colours pass, what fits on one screen is left there, and the screen stays as it was.
    ::setenv("LESS", "FRX", 0);
    ::execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
    ::_exit(127);
}

} // namespace

bool startPager(const std::string& command)
{
    const std::string shown = command.empty() ? "less -R" : command;
    if (!canBegin(shown)) return false;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return false;
    const FileDescriptor input(ends[0]);
    const FileDescriptor output(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) becomePager(shown, input.get());
    if (child < 0 || ::dup2(output.get(), STDOUT_FILENO) < 0) return false;
    pager = child;
    return true;
}

void endPager()
{
    if (pager < 0) return;
    ::close(STDOUT_FILENO); // the pager's input ends
    while (::waitpid(pager, nullptr, 0) < 0 && errno == EINTR) {
    }
    pager = -1;
}
