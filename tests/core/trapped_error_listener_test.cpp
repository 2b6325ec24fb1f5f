#include "core/trapped_error_listener.h"

#include "core/error_trap.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TrappedErrorListenerTest : public ::testing::Test {
protected:
    TrappedErrorListener::Hear into(std::vector<std::string>& heard)
    {
        return [&heard](const RunTimeError& error, std::string_view procName) {
            heard.push_back(std::string(procName) + ": " + error.description());
        };
    }

    void fail(int number)
    {
        ErrorTrap step{tool.context, "mdlTraces", "initMacroTraces"};
        step([&] { throw RunTimeError(number); });
    }

    TestTool tool;
    std::vector<std::string> first;
    std::vector<std::string> second;
};

TEST_F(TrappedErrorListenerTest, HearsWhatATrapHasLoggedAsLongAsItLives)
{
    fail(runTimeErrors::diskFull);
    {
        const TrappedErrorListener listener(tool.context, into(first));
        fail(runTimeErrors::permissionDenied);
    }
    fail(runTimeErrors::diskFull);
    EXPECT_THAT(first, ElementsAre("[mdlTraces]initMacroTraces: Permission denied"));
}

TEST_F(TrappedErrorListenerTest, TheOneMadeLastHearsAlone)
{
    const TrappedErrorListener outer(tool.context, into(first));
    {
        const TrappedErrorListener inner(tool.context, into(second));
        fail(runTimeErrors::permissionDenied);
        EXPECT_THAT(first, IsEmpty());
        EXPECT_THAT(second, ElementsAre("[mdlTraces]initMacroTraces: Permission denied"));
    }
    fail(runTimeErrors::diskFull);
    EXPECT_THAT(first, ElementsAre("[mdlTraces]initMacroTraces: Disk full"));
    EXPECT_EQ(1U, second.size());
}

TEST_F(TrappedErrorListenerTest, EndsBehindAnotherWithoutTakingItsPlace)
{
    std::optional<TrappedErrorListener> outer;
    outer.emplace(tool.context, into(first));
    std::optional<TrappedErrorListener> inner;
    inner.emplace(tool.context, into(second));
    outer.reset();
    fail(runTimeErrors::permissionDenied);
    EXPECT_THAT(second, ElementsAre("[mdlTraces]initMacroTraces: Permission denied"));
    inner.reset();
    fail(runTimeErrors::diskFull);
    EXPECT_THAT(first, IsEmpty());
}

TEST_F(TrappedErrorListenerTest, HearsThatACountedTrapHasLeftItsRoutine)
{
    std::vector<int> numbers;
    const TrappedErrorListener listener(
        tool.context,
        [&](const RunTimeError& error, std::string_view) { numbers.push_back(error.number()); });
    ErrorTrap step{tool.context, "mdlTraces", "initMacroTraces", countedTrap};
    step.body([&] {
        for (int i = 0; i < 12; ++i) step([] { throw RunTimeError(runTimeErrors::diskFull); });
    });
    EXPECT_EQ(12U, numbers.size()) << "eleven errors, and the leaving";
    EXPECT_EQ(errorCountExceeded, numbers.back());
}

} // namespace
