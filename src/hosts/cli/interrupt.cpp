#include "hosts/cli/interrupt.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t wished = 0;

extern "C" void rememberWish(int signal)
{
    wished = 1;
    std::signal(signal, SIG_DFL);
}

} // namespace

InterruptWish::InterruptWish()
{
    wished = 0;
    std::signal(SIGINT, rememberWish);
    std::signal(SIGTERM, rememberWish);
}

InterruptWish::~InterruptWish()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool InterruptWish::made() const
{
    return wished != 0;
}
