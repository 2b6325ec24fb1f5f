#include "system/held_end_signals.h"

#include <csignal>
#include <ctime>
#include <initializer_list>

namespace {

sigset_t endSignals()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) sigaddset(&signals, signal);
    return signals;
}

} // namespace

HeldEndSignals::HeldEndSignals()
{
    const sigset_t signals = endSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

bool HeldEndSignals::came()
{
    const sigset_t signals = endSignals();
    const timespec atOnce{};
    const int signal = ::sigtimedwait(&signals, nullptr, &atOnce);
    if (signal < 0) return false;
    taken_ = signal;
    return true;
}

void HeldEndSignals::letGo() const
{
    if (taken_ == 0) return;
    std::raise(taken_);
    const sigset_t signals = endSignals();
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}
