#include "system/child_process.h"

#include "support/temporary_folder.h"
#include "system/file_bytes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

/// This program tells of its arguments, and does nothing else, where it is asked to.
const bool toldOfArguments = [] {
    if (std::getenv("ORVAN_TELL_ARGUMENTS") == nullptr) return false;
    for (int index = 1; index < __argc; ++index) std::fprintf(stderr, "[%s]", __argv[index]);
    std::fflush(stderr);
    std::_Exit(0);
}();

class ChildProcessTest : public testing::Test {
protected:
    /// What a command line of the system's own interpreter writes to standard error.
    std::string errorsOf(std::vector<std::string> arguments)
    {
        const FileDescriptor words = makeMemoryFile();
        EXPECT_TRUE(words.isOpen());
        plan.arguments = std::move(arguments);
        plan.standardError = words.get();
        const std::int32_t process = startChildProcess(plan);
        EXPECT_EQ(ChildProcessState::ended, lookAtChildProcess(process, true, end));
        EXPECT_EQ(ChildProcessState::unknown, lookAtChildProcess(process, true, end));
        char text[256];
        return {text, readAt(words, text, sizeof text, 0)};
    }

    TemporaryFolder box;
    ChildProcessEnd end;
    ChildProcessPlan plan{.program = std::string(std::getenv("ComSpec")),
                          .arguments = {},
                          .folder = box.path(),
                          .variables = {{"ORVAN_TRIED", "tried"}}};
};

TEST_F(ChildProcessTest, TellsHowItEnded)
{
    errorsOf({"/c", "exit", "3"});
    EXPECT_EQ(3, end.status);
    EXPECT_EQ(0, end.signal);
}

TEST_F(ChildProcessTest, HasItsVariablesAndItsErrors)
{
    EXPECT_EQ("tried", errorsOf({"/c", "echo", "%ORVAN_TRIED%", "1>&2"}).substr(0, 5));
    EXPECT_EQ(0, end.status);
}

TEST_F(ChildProcessTest, HasEachArgumentAsItIs)
{
    plan.program = _pgmptr;
    plan.variables["ORVAN_TELL_ARGUMENTS"] = "1";
    EXPECT_EQ("[a b][][c\\][d \\\\][say \"so\"][\\\"][%PATH%][a&b|c^d]",
              errorsOf({"a b", "", "c\\", "d \\\\", "say \"so\"", "\\\"", "%PATH%", "a&b|c^d"}));
    EXPECT_FALSE(toldOfArguments);
}

TEST_F(ChildProcessTest, BeginsInItsFolder)
{
    box.write("here.txt");
    errorsOf({"/c", "if", "not", "exist", "here.txt", "exit", "4"});
    EXPECT_EQ(0, end.status);
}

TEST_F(ChildProcessTest, WhatIsNoProgramIsAnError)
{
    plan.program = box / "none.exe";
    EXPECT_EQ(53, errorOf([&] { startChildProcess(plan); }));
    plan.program = box.path();
    EXPECT_EQ(70, errorOf([&] { startChildProcess(plan); }));
    plan.program = box.write("text.exe", "no program");
    EXPECT_EQ(5, errorOf([&] { startChildProcess(plan); }));
}

} // namespace
