#include "backends/site/database/lock_patience.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace std::chrono_literals;

LockPatience::Clock::duration timeOfWaiting(LockPatience& patience)
{
    const auto before = LockPatience::Clock::now();
    for (int tries = 0; patience.wait(tries); ++tries) {
    }
    return LockPatience::Clock::now() - before;
}

TEST(LockPatience, LastsAsLongAsItIsAndNoLonger)
{
    LockPatience patience(120ms);
    patience.begin();
    EXPECT_GE(timeOfWaiting(patience), 120ms);
}

TEST(LockPatience, IsOneForAllStatementsOfARun)
{
    LockPatience patience(120ms);
    patience.begin();
    timeOfWaiting(patience);
    for (int statement = 0; statement < 5; ++statement) {
        patience.begin();
        EXPECT_FALSE(patience.wait(0)) << statement;
    }
}

TEST(LockPatience, IsNewAfterAPause)
{
    LockPatience patience(20ms);
    patience.begin();
    timeOfWaiting(patience);
    std::this_thread::sleep_for(3100ms);
    patience.begin();
    EXPECT_TRUE(patience.wait(0));
}

TEST(LockPatience, IsNeverNewInAProgramOfOneRun)
{
    LockPatience patience(20ms);
    patience.holdForOneRun();
    patience.begin();
    timeOfWaiting(patience);
    std::this_thread::sleep_for(3100ms);
    patience.begin();
    EXPECT_FALSE(patience.wait(0));
}

TEST(LockPatience, TellsOnceOfARunThatWaitsForASecond)
{
    LockPatience patience(2500ms);
    int told = 0;
    patience.onLongWait([&] { ++told; });
    patience.begin();
    const auto before = LockPatience::Clock::now();
    for (int tries = 0; told == 0 && patience.wait(tries); ++tries) {
    }
    EXPECT_GE(LockPatience::Clock::now() - before, 1s);
    timeOfWaiting(patience);
    EXPECT_EQ(1, told);
}

TEST(LockPatience, ALongWaitIsNoPause)
{
    LockPatience patience(3200ms);
    patience.begin();
    timeOfWaiting(patience);
    patience.begin();
    EXPECT_FALSE(patience.wait(0));
}

} // namespace
