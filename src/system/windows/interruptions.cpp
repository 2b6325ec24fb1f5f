#include "system/interruptions.h"

#include "system/windows/console_events.h"

#include <atomic>

namespace {

std::atomic<bool> furtherEnd = true;
std::atomic<unsigned> kindsThatCame = 0; ///< a bit each

bool keeps(unsigned long event)
{
    const unsigned kind = 1U << event;
    const bool first = (kindsThatCame.fetch_or(kind) & kind) == 0;
    return first || !furtherEnd;
}

} // namespace

void noteInterruptions(FurtherInterruptions further)
{
    kindsThatCame = 0;
    furtherEnd = further == FurtherInterruptions::end;
    listenToConsole(keeps);
}

void stopNotingInterruptions()
{
    stopListeningToConsole();
}

bool interruptionCame()
{
    return kindsThatCame != 0;
}
