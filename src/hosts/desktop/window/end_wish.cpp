#include "hosts/desktop/window/end_wish.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace desktop {

namespace {

constexpr std::array wishes = {SIGTERM, SIGHUP, SIGINT};

/// What a signal's handler may do is to write into a pipe, which the event loop reads.
int pipeEnds[2] = {-1, -1};
volatile std::sig_atomic_t signalCame = 0;

extern "C" void passOnWish(int)
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
    heard.sa_handler = passOnWish;
    heard.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &heard, nullptr);
}

void stopListening(int signal)
{
    struct sigaction now = {};
    if (::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == passOnWish)
        std::signal(signal, SIG_DFL);
}

} // namespace

EndWish::EndWish(std::function<void()> wished) : wished_(std::move(wished))
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &EndWish::hear);
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char wish = 0;
        while (::read(pipeEnds[0], &wish, 1) == 1) {
        }
        hear();
    });
    for (const int signal : wishes) listen(signal);
}

EndWish::~EndWish()
{
    for (const int signal : wishes) stopListening(signal);
    signalCame = 0;
    for (int& end : pipeEnds)
        if (end >= 0) ::close(std::exchange(end, -1));
}

bool EndWish::signalled()
{
    return signalCame != 0;
}

void EndWish::hear()
{
    made_ = true;
    wished_();
}

} // namespace desktop
