#include "system/interruptions.h"

#include <csignal>

namespace {

constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t cameOnce = 0;
volatile std::sig_atomic_t furtherEnd = 1;

extern "C" void rememberInterruption(int signal)
{
    cameOnce = 1;
    if (furtherEnd != 0) std::signal(signal, SIG_DFL);
}

} // namespace

void noteInterruptions(FurtherInterruptions further)
{
    cameOnce = 0;
    furtherEnd = further == FurtherInterruptions::end ? 1 : 0;
    for (const int signal : signals)
        if (std::signal(signal, rememberInterruption) == SIG_IGN && signal == SIGHUP)
            std::signal(signal, SIG_IGN);
}

void stopNotingInterruptions()
{
    for (const int signal : signals)
        if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
}

bool interruptionCame()
{
    return cameOnce != 0;
}
