#pragma once

#include "platform/clock.h"
#include "platform/host_module.h"
#include "platform/processes.h"
#include "platform/workstation.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

/// What every Clock promises. A `Machine` has `Clock& clock()`.
template <typename Machine>
class ClockContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, TheMomentIsAWholeSecond)
{
    const double seconds = this->machine.clock().now().days * 86400;
    EXPECT_NEAR(std::round(seconds), seconds, 1e-3);
    EXPECT_GT(this->machine.clock().now().days, 36526.0) << "later than the year 2000";
}

TYPED_TEST_P(ClockContract, TheTimerCountsSecondsOfTheDay)
{
    const float seconds = this->machine.clock().timer();
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 86400);
}

TYPED_TEST_P(ClockContract, SleepingGoesNeverBack)
{
    const Date before = this->machine.clock().now();
    this->machine.clock().sleep(1);
    EXPECT_LE(before, this->machine.clock().now());
}

REGISTER_TYPED_TEST_SUITE_P(ClockContract, TheMomentIsAWholeSecond, TheTimerCountsSecondsOfTheDay,
                            SleepingGoesNeverBack);

/// What every Processes promises. A `Machine` has `Processes& processes()`, `std::string program()`
/// (the path of a program that is there and ends at once) and `std::string missingProgram()`.
template <typename Machine>
class ProcessesContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(ProcessesContract);

TYPED_TEST_P(ProcessesContract, AStartedProgramCanBeWaitedFor)
{
    Processes& processes = this->machine.processes();
    const std::int32_t id = processes.start("\"" + this->machine.program() + "\" one \"two three\"",
                                            WindowStyle::hidden);
    EXPECT_GT(id, 0);
    EXPECT_TRUE(processes.wait(id, -1));
}

TYPED_TEST_P(ProcessesContract, AMissingProgramRaises53)
{
    EXPECT_EQ(53, errorOf([&] {
                  this->machine.processes().start(this->machine.missingProgram() + " /f x",
                                                  WindowStyle::normal);
              }));
}

TYPED_TEST_P(ProcessesContract, AProcessThatIsNotThereCannotBeWaitedFor)
{
    EXPECT_FALSE(this->machine.processes().wait(0, 10));
    EXPECT_FALSE(this->machine.processes().wait(-5, 10));
    EXPECT_FALSE(this->machine.processes().wait(2'000'000'000, 10));
}

REGISTER_TYPED_TEST_SUITE_P(ProcessesContract, AStartedProgramCanBeWaitedFor,
                            AMissingProgramRaises53, AProcessThatIsNotThereCannotBeWaitedFor);

/// What every Workstation and HostModule promises. A `Machine` has `Workstation& workstation()` and
/// `HostModule& module()`.
template <typename Machine>
class IdentityContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(IdentityContract);

TYPED_TEST_P(IdentityContract, TheMachineIsOfTheNtFamilyAndHasNames)
{
    const Workstation& workstation = this->machine.workstation();
    EXPECT_EQ(2, workstation.platform());
    ASSERT_TRUE(workstation.details().has_value());
    EXPECT_NE("", workstation.details()->computerName);
    ASSERT_TRUE(workstation.user().has_value());
    EXPECT_NE("", workstation.user()->userName);
}

TYPED_TEST_P(IdentityContract, TheModuleHasANameAFolderAndAVersion)
{
    HostModule& module = this->machine.module();
    EXPECT_EQ("OrvanDiagnostics", module.name());
    ASSERT_FALSE(module.folder().empty());
    EXPECT_NE('\\', module.folder().back());
    EXPECT_GE(module.majorVersion(), 1);
    EXPECT_GE(module.minorVersion(), 0);
    EXPECT_GE(module.revision(), 0);
    EXPECT_FALSE(module.isDevelopmentHost(0));
    module.debugOutput("nobody listens");
}

REGISTER_TYPED_TEST_SUITE_P(IdentityContract, TheMachineIsOfTheNtFamilyAndHasNames,
                            TheModuleHasANameAFolderAndAVersion);
