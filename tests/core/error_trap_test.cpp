#include "core/error_trap.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using Texts = std::vector<std::string>;

const std::string overflowText = "Err.Number = 6 Err.Description = Overflow";

void overflow()
{
    throw RunTimeError(runTimeErrors::overflow);
}

TEST(ErrorText, NamesNumberAndDescription)
{
    EXPECT_EQ("Err.Number = 53 Err.Description = File not found", errorText(RunTimeError(53)));
    EXPECT_EQ("Err.Number = -2147217900 Err.Description = Syntax error",
              errorText(RunTimeError(-2147217900, "Syntax error")));
    EXPECT_EQ("Err.Number = 1001 Err.Description = ", errorText(RunTimeError(1001, "")));
}

TEST(ErrorTrap, LogsAFailedStatementUnderTheRoutinesNameAndRunsTheNext)
{
    TestTool tool;
    ErrorTrap step{tool.context, "mdlTraces", "recordMacroTrace"};
    int value = 7;
    bool next = false;
    step([&] {
        overflow();
        value = 8;
    });
    step([&] { next = true; });

    EXPECT_TRUE(next);
    EXPECT_EQ(7, value) << "the variable holds what it held before the statement";
    EXPECT_EQ(Texts{overflowText}, tool.failures("[mdlTraces]recordMacroTrace"));
    EXPECT_EQ("[mdlTraces]recordMacroTrace", step.procName());
}

TEST(ErrorTrap, GivesTheValueOfAStatementOrTheFallbackWhereItFails)
{
    TestTool tool;
    ErrorTrap step{tool.context, "mdlTraces", "recordMacroTrace"};
    EXPECT_EQ(8, step.value(7, [] { return 8; }));
    EXPECT_TRUE(tool.failures("[mdlTraces]recordMacroTrace").empty());

    EXPECT_EQ(7, step.value(7, [] {
        overflow();
        return 8;
    }));
    EXPECT_EQ(Texts{overflowText}, tool.failures("[mdlTraces]recordMacroTrace"));

    const std::string name = "Orvan";
    const auto copied = step.value("", [&]() -> const std::string& { return name; });
    static_assert(std::is_same_v<const std::string, decltype(copied)>);
    EXPECT_EQ(name, copied);
}

TEST(ErrorTrap, LogsNothingForAStatementThatSucceeds)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r"};
    step([] {});
    EXPECT_FALSE(tool.context.g_log.exists()) << "the log comes to life with its first line";
    EXPECT_EQ(0, step.errors());
}

TEST(ErrorTrap, CountsNoErrorsUnlessItIsCounted)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r"};
    int reached = 0;
    step.body([&] {
        for (int round = 0; round < 50; ++round) {
            step(overflow);
            ++reached;
        }
    });
    EXPECT_EQ(50, reached);
    EXPECT_EQ(Texts(50, overflowText), tool.failures());
}

TEST(ErrorTrap, AnotherKindOfExceptionIsNoFailureOfAStatement)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r", countedTrap};
    EXPECT_THROW(step.body([&] { step([] { throw std::logic_error("ours"); }); }),
                 std::logic_error);
    EXPECT_EQ(Texts{}, tool.failures());
}

TEST(CountedTrap, LeavesTheRoutineOnTheEleventhError)
{
    TestTool tool;
    ErrorTrap step{tool.context, "mdlGatherLogs", "processLogs", countedTrap};
    int reached = 0;
    bool behind = false;
    step.body([&] {
        for (int round = 0; round < 50; ++round) {
            step(overflow);
            ++reached;
        }
        behind = true;
    });

    EXPECT_EQ(10, reached) << "the eleventh error does not come back";
    EXPECT_FALSE(behind);
    Texts expected(11, overflowText);
    expected.push_back("Error count exceeded, forcing exit from [mdlGatherLogs]processLogs");
    EXPECT_EQ(expected, tool.failures("[mdlGatherLogs]processLogs"));
    EXPECT_EQ(expected, tool.failures());
}

TEST(CountedTrap, StaysInTheRoutineForTenErrors)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r", countedTrap};
    bool behind = false;
    step.body([&] {
        for (int round = 0; round < 10; ++round) step(overflow);
        behind = true;
    });
    EXPECT_TRUE(behind);
    EXPECT_EQ(10, step.errors());
    EXPECT_EQ(Texts(10, overflowText), tool.failures());
}

TEST(CountedTrap, CountsForEachCallAnew)
{
    TestTool tool;
    const auto routine = [&] {
        ErrorTrap step{tool.context, "m", "r", countedTrap};
        bool behind = false;
        step.body([&] {
            for (int round = 0; round < 6; ++round) step(overflow);
            behind = true;
        });
        return behind;
    };
    EXPECT_TRUE(routine());
    EXPECT_TRUE(routine());
}

TEST(TrapWithLine, NamesTheLineOfTheStatement)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r", countedTrapWithLine};
    const int line = __LINE__ + 1;
    step(overflow);
    step(overflow, 1234);
    EXPECT_EQ(
        (Texts{overflowText + " Line: " + std::to_string(line), overflowText + " Line: 1234"}),
        tool.failures());
}

TEST(TrapWithLine, TheEleventhErrorIsLoggedWithoutTheLine)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r", countedTrapWithLine};
    step.body([&] {
        for (;;) step(overflow, 77);
    });
    Texts expected(10, overflowText + " Line: 77");
    expected.push_back(overflowText);
    expected.push_back("Error count exceeded, forcing exit from [m]r");
    EXPECT_EQ(expected, tool.failures());
}

TEST(SpecialCase, DecidesWhatFollowsTheErrorsItKnows)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r"};
    step.specialCase([](const RunTimeError& error) {
        if (error.number() == 9511) return Resume::next;
        if (error.number() == 3709) return Resume::retry;
        return Resume::asUsual;
    });

    step([] { throw RunTimeError(9511); });
    EXPECT_EQ(Texts{}, tool.failures()) << "going on is silent";

    int tries = 0;
    step([&] {
        if (++tries < 4) throw RunTimeError(3709);
    });
    EXPECT_EQ(4, tries);
    EXPECT_EQ(Texts{}, tool.failures()) << "so is a retry";

    step(overflow);
    EXPECT_EQ(Texts{overflowText}, tool.failures());
}

TEST(SpecialCase, ComesAfterACountedTrapHasCountedTheError)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r", countedTrap};
    int asked = 0;
    step.specialCase([&](const RunTimeError&) {
        ++asked;
        return Resume::retry;
    });
    step.body([&] { step(overflow); });
    EXPECT_EQ(10, asked) << "the eleventh error leaves before it is asked";
    EXPECT_EQ((Texts{overflowText, "Error count exceeded, forcing exit from [m]r"}),
              tool.failures());
}

TEST(DevelopmentHost, RunsAFailedStatementAgainUntilItSucceeds)
{
    TestTool tool;
    tool.module.developmentHost = true;
    ErrorTrap step{tool.context, "m", "r"};
    int tries = 0;
    step([&] {
        if (++tries < 5) overflow();
    });
    EXPECT_EQ(5, tries);
    EXPECT_EQ(Texts(4, overflowText), tool.failures());
}

TEST(DevelopmentHost, RunsAFailedStatementAgainForAsLongAsTheHostSaysSo)
{
    TestTool tool;
    tool.module.developmentHost = true;
    ErrorTrap step{tool.context, "m", "r"};
    int tries = 0;
    bool next = false;
    step([&] {
        if (++tries == 200) tool.module.developmentHost = false;
        overflow();
    });
    step([&] { next = true; });
    EXPECT_EQ(200, tries);
    EXPECT_TRUE(next);
    EXPECT_EQ(Texts(200, overflowText), tool.failures());
}

TEST(DevelopmentHost, HearsHowOftenEachStatementHasFailedInARow)
{
    TestTool tool;
    tool.module.developmentHost = true;
    tool.module.patience = 7;
    ErrorTrap step{tool.context, "m", "r"};
    for (int round = 0; round < 2; ++round) {
        int tries = 0;
        step([&] {
            ++tries;
            overflow();
        });
        EXPECT_EQ(7, tries) << "it gives up, and each statement is counted anew";
    }
}

TEST(DevelopmentHost, RunsAStatementAgainWhoseErrorTheRoutineHasLoggedItself)
{
    TestTool tool;
    tool.module.developmentHost = true;
    tool.module.patience = 3;
    ErrorTrap step{tool.context, "m", "r"};
    step.specialCase([&](const RunTimeError&) {
        step.log("in its own words", logLevel::error);
        return Resume::logged;
    });
    int tries = 0;
    step([&] {
        ++tries;
        overflow();
    });
    EXPECT_EQ(3, tries);
    EXPECT_EQ(Texts(3, "in its own words"), tool.failures());
}

TEST(DevelopmentHost, LeavesACountedRoutineOnTheEleventhErrorOfOneStatement)
{
    TestTool tool;
    tool.module.developmentHost = true;
    ErrorTrap step{tool.context, "m", "r", countedTrap};
    int tries = 0;
    step.body([&] {
        step([&] {
            ++tries;
            overflow();
        });
    });
    EXPECT_EQ(11, tries);
}

TEST(ForcedExit, OfAnInnerRoutineEndsThatRoutineAlone)
{
    TestTool tool;
    ErrorTrap outer{tool.context, "m", "outer", countedTrap};
    bool outerWentOn = false;
    bool innerWentOn = false;
    outer.body([&] {
        outer([&] {
            ErrorTrap inner{tool.context, "m", "inner", countedTrap};
            inner.body([&] {
                for (int round = 0; round < 20; ++round) inner(overflow);
                innerWentOn = true;
            });
        });
        outerWentOn = true;
    });
    EXPECT_FALSE(innerWentOn);
    EXPECT_TRUE(outerWentOn);
    EXPECT_EQ(0, outer.errors()) << "a routine returns no error to its caller";
    EXPECT_EQ(12u, tool.failures("[m]inner").size());
    EXPECT_EQ(0u, tool.failures("[m]outer").size());
}

TEST(ForcedExit, OfAnOuterRoutinePassesThroughTheInnerOnesThatRunWithinIt)
{
    TestTool tool;
    ErrorTrap outer{tool.context, "m", "outer", countedTrap};
    bool innerWentOn = false;
    bool outerWentOn = false;
    outer.body([&] {
        ErrorTrap inner{tool.context, "m", "inner", countedTrap};
        inner.body([&] {
            inner([&] {
                for (;;) outer(overflow);
            });
            innerWentOn = true;
        });
        outerWentOn = true;
    });
    EXPECT_FALSE(innerWentOn);
    EXPECT_FALSE(outerWentOn);
    EXPECT_EQ(0u, tool.failures("[m]inner").size());
}

TEST(ErrorTrap, LogsEntryAndExitOfATracedRoutine)
{
    TestTool tool;
    ErrorTrap step{tool.context, "m", "r"};
    step.enterProc();
    step.log("within", logLevel::warning);
    step.exitProc();
    const auto lines = tool.logLines();
    ASSERT_EQ(4u, lines.size()) << "after the line of the retention";
    EXPECT_EQ("Entering [m]r_0", lines[1].message);
    EXPECT_EQ("within", lines[2].message);
    EXPECT_EQ("Warning", lines[2].level);
    EXPECT_EQ("[m]r", lines[2].procName);
    EXPECT_EQ(2, lines[2].indent);
    EXPECT_EQ(0u, lines[3].message.find("Exiting [m]r_0 Start: "));
}

TEST(ErrorTrap, HoldsNoRoutineUpWhereNoLogCanBeMade)
{
    TestTool tool;
    tool.files.failing("C:\\OrvanDiagnostics\\LOGS", 70);
    for (const bool developmentHost : {false, true}) {
        tool.module.developmentHost = developmentHost;
        ErrorTrap step{tool.context, "m", "r"};
        bool behind = false;
        step.body([&] {
            step.enterProc();
            step(overflow);
            step.log("lost", logLevel::info);
            step.exitProc();
            behind = true;
        });
        EXPECT_TRUE(behind);
        EXPECT_FALSE(tool.context.g_log.exists());
    }
    tool.files.mended("C:\\OrvanDiagnostics\\LOGS");
    ErrorTrap step{tool.context, "m", "r"};
    step.log("kept", logLevel::info);
    EXPECT_TRUE(tool.logged("kept"));
}

} // namespace
