#include "system/end_signals.h"

#include "system/windows/console_events.h"

#include <atomic>

namespace {

/// The kinds of events that have come, a bit each: a second one of a kind ends the program.
std::atomic<unsigned> kindsThatCame = 0;

bool isFirstOfItsKind(unsigned long event)
{
    const unsigned kind = 1U << event;
    return (kindsThatCame.fetch_or(kind) & kind) == 0;
}

} // namespace

EndSignals::EndSignals()
{
    kindsThatCame = 0;
    listenToConsole(isFirstOfItsKind);
}

EndSignals::~EndSignals()
{
    stopListeningToConsole();
}

int EndSignals::descriptor() const
{
    return -1; // the system has nothing that becomes readable by them
}

void EndSignals::take() {}

bool EndSignals::came()
{
    return consoleEventCame();
}
