#include "system/held_end_signals.h"

#include "system/windows/console_events.h"

HeldEndSignals::HeldEndSignals()
{
    listenToConsole([](unsigned long) { return true; });
}

bool HeldEndSignals::came()
{
    const auto event = takeConsoleEvent();
    if (!event) return false;
    taken_ = static_cast<int>(*event) + 1;
    return true;
}

void HeldEndSignals::letGo() const
{
    if (taken_ != 0) endAsConsoleWould();
}
