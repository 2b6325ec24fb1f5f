#include "system/interruptions.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

TEST(Interruptions, AreNotedInPlaceOfTheEndOfTheProgram)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        noteInterruptions(FurtherInterruptions::areIgnored);
        EXPECT_FALSE(interruptionCame()) << signal;
        std::raise(signal);
        EXPECT_TRUE(interruptionCame()) << signal;
        std::raise(signal); // does nothing further
        stopNotingInterruptions();
        EXPECT_TRUE(interruptionCame()) << signal;
    }
}

TEST(InterruptionsDeathTest, ASecondOneEndsTheProgramWhereItIsToDoSo)
{
    const auto twice = [] {
        noteInterruptions(FurtherInterruptions::end);
        std::raise(SIGTERM);
        if (interruptionCame()) std::raise(SIGTERM);
    };
    EXPECT_EXIT(twice(), testing::KilledBySignal(SIGTERM), "");
}

TEST(Interruptions, TheEndOfTheTerminalStaysIgnoredWhereItWas)
{
    std::signal(SIGHUP, SIG_IGN);
    noteInterruptions(FurtherInterruptions::end);
    std::raise(SIGHUP);
    EXPECT_FALSE(interruptionCame());
    stopNotingInterruptions();
    EXPECT_EQ(SIG_IGN, std::signal(SIGHUP, SIG_DFL));
}

} // namespace
