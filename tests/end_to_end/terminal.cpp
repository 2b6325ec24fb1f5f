#include "end_to_end/terminal.h"

#include "support/places.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Far more than anything takes: the machine may have much else to do.
constexpr int patienceMilliseconds = 60'000;

std::string without(std::string text, const std::string& part)
{
    for (auto place = text.find(part); place != std::string::npos; place = text.find(part, place))
        text.erase(place, part.size());
    return text;
}

} // namespace

OnTerminal::OnTerminal(std::vector<std::string> words, const std::string& folder,
                       unsigned short columns)
{
    words.insert(words.begin(), built::orvandiag);
    termios asItIs{};
    cfmakeraw(&asItIs);
    asItIs.c_lflag |= ISIG | ICANON;
    asItIs.c_cc[VINTR] = '\x03';
    asItIs.c_cc[VEOF] = '\x04';
    winsize size{50, columns, 0, 0};
    child_ = forkpty(&terminal_, nullptr, &asItIs, &size);
    if (child_ == 0) {
        if (chdir(folder.c_str()) != 0) _exit(126);
        std::vector<char*> arguments;
        for (auto& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        setenv("ORVAN_PAGER", "cat", 0); // what pages waits for keys
        setenv("NO_COLOR", "1", 0);      // colours act, too
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    EXPECT_GT(child_, 0);
}

OnTerminal::~OnTerminal()
{
    if (child_ > 0) {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
    close(terminal_);
}

bool OnTerminal::readMore()
{
    pollfd terminal{terminal_, POLLIN, 0};
    if (poll(&terminal, 1, patienceMilliseconds) <= 0) {
        ADD_FAILURE() << "nothing came any more behind " << testing::PrintToString(written_);
        return false;
    }
    std::array<char, 4096> part{};
    const ssize_t got = ::read(terminal_, part.data(), part.size());
    if (got > 0) written_.append(part.data(), static_cast<std::size_t>(got));
    return got > 0;
}

const std::string& OnTerminal::writtenWith(const std::string& text)
{
    while (written_.find(text) == std::string::npos && readMore()) {
    }
    return written_;
}

void OnTerminal::type(const std::string& keys) const
{
    EXPECT_EQ(static_cast<ssize_t>(keys.size()), ::write(terminal_, keys.data(), keys.size()));
}

std::string OnTerminal::end()
{
    while (readMore()) {
    }
    int state = 0;
    waitpid(child_, &state, 0);
    child_ = -1;
    status_ = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    return without(written_, "\r\033[K");
}

std::string onTerminal(std::vector<std::string> words, const std::string& folder,
                       unsigned short columns)
{
    OnTerminal program(std::move(words), folder, columns);
    std::string written = program.end();
    EXPECT_LT(program.status(), 3);
    return written;
}
