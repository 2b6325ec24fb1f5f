#include "end_to_end/terminal.h"

#include "support/places.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string without(std::string text, const std::string& part)
{
    for (auto place = text.find(part); place != std::string::npos; place = text.find(part, place))
        text.erase(place, part.size());
    return text;
}

} // namespace

std::string onTerminal(std::vector<std::string> words, const std::string& folder)
{
    words.insert(words.begin(), built::orvandiag);
    termios asItIs{};
    cfmakeraw(&asItIs);
    winsize size{50, 200, 0, 0};
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, &asItIs, &size);
    if (child == 0) {
        if (chdir(folder.c_str()) != 0) _exit(126);
        std::vector<char*> arguments;
        for (auto& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        setenv("ORVAN_PAGER", "cat", 0); // what pages waits for keys
        setenv("NO_COLOR", "1", 0);      // colours act, too
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    EXPECT_GT(child, 0);
    std::string written;
    std::array<char, 4096> part{};
    for (ssize_t got = 0; (got = ::read(terminal, part.data(), part.size())) > 0;)
        written.append(part.data(), static_cast<std::size_t>(got));
    close(terminal);
    int state = 0;
    waitpid(child, &state, 0);
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) < 3) << "ended by " << state;
    return without(std::move(written), "\r\033[K");
}
