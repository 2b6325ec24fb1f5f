#include "system/held_end_signals.h"

#include <gtest/gtest.h>

#include <csignal>
#include <initializer_list>
#include <unistd.h>

namespace {

/// Ends with what went wrong, or by the signal that was let go.
[[noreturn]] void holdOneBack(int signal)
{
    HeldEndSignals held;
    if (held.came()) ::_exit(1);
    held.letGo();
    std::raise(signal);
    if (!held.came()) ::_exit(2);
    if (held.came()) ::_exit(3);
    held.letGo();
    ::_exit(4);
}

TEST(HeldEndSignals, OneThatComesIsTakenOnceAndEndsTheProgramWhenItIsLetGo)
{
    for (const int signal : {SIGHUP, SIGINT, SIGTERM})
        EXPECT_EXIT(holdOneBack(signal), testing::KilledBySignal(signal), "");
}

} // namespace
