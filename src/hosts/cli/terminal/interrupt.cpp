#include "hosts/cli/terminal/interrupt.h"

#include <csignal>

namespace cli {

namespace {

constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t wished = 0;
volatile std::sig_atomic_t repeatedEnds = 1;

extern "C" void rememberWish(int signal)
{
    wished = 1;
    if (repeatedEnds != 0) std::signal(signal, SIG_DFL);
}

} // namespace

InterruptWish::InterruptWish(Repeated repeated)
{
    wished = 0;
    repeatedEnds = repeated == Repeated::ends ? 1 : 0;
    for (const int signal : signals)
        if (std::signal(signal, rememberWish) == SIG_IGN && signal == SIGHUP)
            std::signal(signal, SIG_IGN);
}

InterruptWish::~InterruptWish()
{
    for (const int signal : signals)
        if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
}

bool InterruptWish::made() const
{
    return interruptNoted();
}

bool interruptNoted()
{
    return wished != 0;
}

} // namespace cli
