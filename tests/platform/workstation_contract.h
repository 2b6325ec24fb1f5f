#pragma once

#include "platform/workstation.h"

#include <gtest/gtest.h>

/// What every Workstation promises. A `Machine` has a default constructor, `Workstation&
/// workstation()`, and the names that this is to tell: `std::string computer()` and `std::string
/// user()`.
template <typename Machine>
class WorkstationContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(WorkstationContract);

TYPED_TEST_P(WorkstationContract, TheMachineIsOfTheNtFamily)
{
    EXPECT_EQ(2, this->machine.workstation().platform());
}

TYPED_TEST_P(WorkstationContract, TheMachineAndItsUserHaveTheirNames)
{
    const Workstation& workstation = this->machine.workstation();
    ASSERT_TRUE(workstation.details().has_value());
    EXPECT_EQ(this->machine.computer(), workstation.details()->computerName);
    EXPECT_GE(workstation.details()->loggedOnUsers, 1);
    ASSERT_TRUE(workstation.user().has_value());
    EXPECT_EQ(this->machine.user(), workstation.user()->userName);
}

REGISTER_TYPED_TEST_SUITE_P(WorkstationContract, TheMachineIsOfTheNtFamily,
                            TheMachineAndItsUserHaveTheirNames);
