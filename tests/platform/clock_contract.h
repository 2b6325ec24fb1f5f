#pragma once

#include "platform/clock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// What every Clock promises. A `Machine` has a default constructor and `Clock& clock()`.
template <typename Machine>
class ClockContract : public testing::Test {
protected:
    static constexpr double secondsOfDay = 86400;

    Machine machine;
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, TheMomentIsAWholeSecond)
{
    const double seconds = this->machine.clock().now().days * this->secondsOfDay;
    EXPECT_NEAR(std::round(seconds), seconds, 1e-3);
    EXPECT_GT(this->machine.clock().now().days, 36526.0) << "later than the year 2000";
}

TYPED_TEST_P(ClockContract, TheTimerCountsSecondsSinceTheMidnightOfTheMoment)
{
    const double days = this->machine.clock().now().days;
    const double expected = (days - std::floor(days)) * this->secondsOfDay;
    const double seconds = this->machine.clock().timer();
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, this->secondsOfDay);
    const double apart = std::abs(seconds - expected);
    EXPECT_LT(std::min(apart, this->secondsOfDay - apart), 5) << "midnight may lie between them";
}

TYPED_TEST_P(ClockContract, SleepingGoesNeverBack)
{
    const Date before = this->machine.clock().now();
    this->machine.clock().sleep(1);
    EXPECT_LE(before, this->machine.clock().now());
}

REGISTER_TYPED_TEST_SUITE_P(ClockContract, TheMomentIsAWholeSecond,
                            TheTimerCountsSecondsSinceTheMidnightOfTheMoment,
                            SleepingGoesNeverBack);
