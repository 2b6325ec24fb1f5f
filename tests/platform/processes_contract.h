#pragma once

#include "platform/processes.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <string>

/// What every Processes promises.
///
/// A `Machine` has a default constructor and `Processes& processes()`; `std::string program()`, the
/// path of a program that is there, ends in `.exe`, has a blank in it and ends at once;
/// `letProgramFail()`, from which on the program ends in failure; `std::string missingProgram()`,
/// a path that ends in `.exe`; and `std::string forbiddenProgram()`, one that may not be run.
template <typename Machine>
class ProcessesContract : public testing::Test {
protected:
    Processes& processes() { return machine.processes(); }

    std::int32_t start(const std::string& program, const std::string& arguments = "one \"two 2\"")
    {
        return processes().start("\"" + program + "\" " + arguments, WindowStyle::hidden);
    }

    static std::string withoutEnding(const std::string& program)
    {
        return program.substr(0, program.size() - 4);
    }

    Machine machine;
};

TYPED_TEST_SUITE_P(ProcessesContract);

TYPED_TEST_P(ProcessesContract, AStartedProgramCanBeWaitedFor)
{
    const std::int32_t id = this->start(this->machine.program());
    EXPECT_GT(id, 0);
    EXPECT_TRUE(this->processes().wait(id, -1));
}

TYPED_TEST_P(ProcessesContract, AProgramThatRunsTwiceIsTwoProcesses)
{
    const std::string program = this->machine.program();
    const std::int32_t first = this->start(program);
    const std::int32_t second = this->start(program);
    EXPECT_NE(first, second);
    EXPECT_TRUE(this->processes().wait(second, -1));
    EXPECT_TRUE(this->processes().wait(first, -1));
}

TYPED_TEST_P(ProcessesContract, ANameWithoutAnEndingFindsTheProgram)
{
    const std::int32_t id = this->start(this->withoutEnding(this->machine.program()));
    EXPECT_TRUE(this->processes().wait(id, -1));
}

TYPED_TEST_P(ProcessesContract, AMissingProgramRaises53)
{
    const std::string program = this->machine.missingProgram();
    EXPECT_EQ(53, errorOf([&] { this->start(program); }));
    EXPECT_EQ(53, errorOf([&] { this->start(this->withoutEnding(program)); }));
    EXPECT_EQ(53, errorOf([&] { this->processes().start(program + " /f x", WindowStyle::normal); }))
        << "without quotes";
}

TYPED_TEST_P(ProcessesContract, AProgramThatMayNotBeRunRaises70AndSaysSo)
{
    const std::string program = this->machine.forbiddenProgram();
    EXPECT_EQ(70, errorOf([&] { this->start(program); }));
    EXPECT_NE(std::string::npos, errorTextOf([&] { this->start(program); }).find("is not run"));
}

TYPED_TEST_P(ProcessesContract, AProcessThatIsNotThereCannotBeWaitedFor)
{
    for (const std::int32_t id : {0, -1, -5, 2'000'000'000})
        EXPECT_FALSE(this->processes().wait(id, 10)) << id;
}

TYPED_TEST_P(ProcessesContract, NothingIsReportedUntilAProcessWasWaitedFor)
{
    this->machine.letProgramFail();
    EXPECT_EQ("", this->processes().lastReport().failure);
    this->start(this->machine.program());
    EXPECT_EQ("", this->processes().lastReport().failure);
    EXPECT_FALSE(this->processes().lastReport().replaced);
}

TYPED_TEST_P(ProcessesContract, AFailureIsReportedUntilAnotherStartWasTried)
{
    const std::string program = this->machine.program();
    EXPECT_TRUE(this->processes().wait(this->start(program), -1));
    EXPECT_EQ("", this->processes().lastReport().failure);
    this->machine.letProgramFail();
    EXPECT_TRUE(this->processes().wait(this->start(program), -1));
    EXPECT_NE("", this->processes().lastReport().failure);
    errorOf([&] { this->start(this->machine.missingProgram()); });
    EXPECT_EQ("", this->processes().lastReport().failure);
}

REGISTER_TYPED_TEST_SUITE_P(ProcessesContract, AStartedProgramCanBeWaitedFor,
                            AProgramThatRunsTwiceIsTwoProcesses,
                            ANameWithoutAnEndingFindsTheProgram, AMissingProgramRaises53,
                            AProgramThatMayNotBeRunRaises70AndSaysSo,
                            AProcessThatIsNotThereCannotBeWaitedFor,
                            NothingIsReportedUntilAProcessWasWaitedFor,
                            AFailureIsReportedUntilAnotherStartWasTried);
