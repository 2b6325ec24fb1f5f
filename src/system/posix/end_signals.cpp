#include "system/end_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array endSignals = {SIGTERM, SIGHUP, SIGINT};

/// What a signal's handler may do is to write into a pipe, which the event loop reads.
int pipeEnds[2] = {-1, -1};
volatile std::sig_atomic_t signalCame = 0;

extern "C" void passOn(int)
{
    signalCame = 1;
    const int kept = errno;
    const char wish = 1;
    [[maybe_unused]] const auto written = ::write(pipeEnds[1], &wish, 1);
    errno = kept;
}

void listen(int signal)
{
    struct sigaction before = {};
    if (::sigaction(signal, nullptr, &before) != 0 || before.sa_handler == SIG_IGN) return;
    struct sigaction heard = {};
    heard.sa_handler = passOn;
    heard.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &heard, nullptr);
}

void stopListening(int signal)
{
    struct sigaction now = {};
    if (::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == passOn)
        std::signal(signal, SIG_DFL);
}

} // namespace

EndSignals::EndSignals()
{
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;
    for (const int signal : endSignals) listen(signal);
}

EndSignals::~EndSignals()
{
    for (const int signal : endSignals) stopListening(signal);
    signalCame = 0;
    for (int& end : pipeEnds)
        if (end >= 0) ::close(std::exchange(end, -1));
}

int EndSignals::descriptor() const
{
    return pipeEnds[0];
}

void EndSignals::take()
{
    char wish = 0;
    while (::read(pipeEnds[0], &wish, 1) == 1) {
    }
}

bool EndSignals::came()
{
    return signalCame != 0;
}
