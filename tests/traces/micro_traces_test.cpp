#include "traces/micro_traces.h"

#include "traces/traces_fixture.h"

#include <limits>

using mdlTraces::isTraceLevelSet;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* keyThereAlready = "Err.Number = 457 Err.Description = This key is already "
                                        "associated with an element of this collection";
constexpr std::int32_t bit31 = std::numeric_limits<std::int32_t>::min();

struct MicroTraces : TracesTest {
    void configure(const std::vector<Choice>& choices)
    {
        TreeView tree;
        fillTree(tree, choices);
        mdlTraces::configureMicroTrace(tool.context, tree);
    }

    Texts ownFailures() { return tool.failures("[mdlTraces]configureMicroTrace"); }
};

} // namespace

TEST_F(MicroTraces, TestsALevelsBitInTheCurrentFlags)
{
    tool.database.withComponent("A", 5, 2).withComponent("all", -1, 0);

    EXPECT_TRUE(isTraceLevelSet(tool.context, 0, "A"));
    EXPECT_FALSE(isTraceLevelSet(tool.context, 1, "A")) << "the default flags do not count";
    EXPECT_TRUE(isTraceLevelSet(tool.context, 2, "A"));
    EXPECT_TRUE(isTraceLevelSet(tool.context, 30, "all"));
    EXPECT_FALSE(isTraceLevelSet(tool.context, 0, "Nothing"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MicroTraces, TestsLevel31FalseAlsoWhenItsBitIsOn)
{
    tool.database.withComponent("A", bit31, 0).withComponent("all", -1, 0);

    EXPECT_FALSE(isTraceLevelSet(tool.context, 31, "A"));
    EXPECT_FALSE(isTraceLevelSet(tool.context, 31, "all"));
}

TEST_F(MicroTraces, AsksTheServerForEachLevel)
{
    tool.database.withComponent("A", 5, 0);

    for (int level = 0; level < 4; ++level) isTraceLevelSet(tool.context, level, "A");

    EXPECT_EQ(4u, tool.database.queries().size());
}

TEST_F(MicroTraces, LogsALevelOutsideTheWordAndTestsItFalse)
{
    tool.database.withComponent("A", -1, 0);

    EXPECT_FALSE(isTraceLevelSet(tool.context, 32, "A"));
    EXPECT_FALSE(isTraceLevelSet(tool.context, -1, "A"));

    EXPECT_THAT(tool.failures("[mdlTraces]isTraceLevelSet"), ElementsAre(outOfRange, outOfRange));
}

TEST_F(MicroTraces, ReadsAFailingQueryAsALevelThatIsOff)
{
    tool.database.withComponent("A", -1, 0).failing("vw_LoggerDiagnosticGrid", 5);

    EXPECT_FALSE(isTraceLevelSet(tool.context, 1, "A"));
}

TEST_F(MicroTraces, BuildsAComponentsWordOfItsTicksAlone)
{
    tool.database.withComponent("A", 0x70, 0);

    configure({{true, "Alpha (A)"},
               {false, "00  zero", true},
               {false, "03  three", true},
               {false, "04  four", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=9")) << "also what is not shown is cleared";
    EXPECT_THAT(defaultsRestored(), ElementsAre("id-A"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_THAT(tool.failures(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [mdlTraces]configureMicroTrace_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlTraces]configureMicroTrace_0"));
}

TEST_F(MicroTraces, ReportsEachTickedLevelOnEveryRunWithoutItsComponent)
{
    tool.database.withComponent("A", 8, 0);

    for (int run = 0; run < 2; ++run)
        configure({{true, "Alpha (A)"}, {false, "03  three", true}, {false, "04  four", false}});

    EXPECT_THAT(events(), ElementsAre("10006  (03  three)", "10006  (03  three)"));
}

TEST_F(MicroTraces, ReadsALevelsNumberWhateverItsTextBeginsWith)
{
    tool.database.withComponent("A", 0, 0);

    configure({{true, "Alpha (A)"},
               {false, "01  1st stage", true},
               {false, "02  E1 trunk", true},
               {false, "04  32 bit", true},
               {false, "05  .5 s", true}});

    EXPECT_EQ(0b110110, flags("A"));
    EXPECT_THAT(ownFailures(), IsEmpty());
}

TEST_F(MicroTraces, WritesOnlyComponentsWhoseFlagsChange)
{
    tool.database.withComponent("A", 8, 0).withComponent("B", 8, 0).withComponent("C", 0, 5);

    configure({{true, "A (A)"},
               {false, "03  three", true},
               {true, "B (B)"},
               {false, "04  four", true},
               {true, "C (C)"},
               {false, "00  zero", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("B=16"));
    EXPECT_THAT(defaultsRestored(), ElementsAre("id-A", "id-B", "id-C"))
        << "the default flags come back to all";
    EXPECT_EQ(5, flags("C"));
}

TEST_F(MicroTraces, ClearsAComponentWithoutTicksAndGivesItItsDefaultFlags)
{
    tool.database.withComponent("A", 0x77, 3);

    configure({{true, "A (A)"}, {false, "04  four", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=0"));
    EXPECT_EQ(3, flags("A"));
}

TEST_F(MicroTraces, LosesBit31UnlessTheDefaultFlagsHoldIt)
{
    tool.database.withComponent("lost", bit31 | 8, 1).withComponent("kept", bit31 | 8, bit31);

    configure({{true, "lost (lost)"},
               {false, "03  three", true},
               {true, "kept (kept)"},
               {false, "03  three", true}});

    EXPECT_EQ(9, flags("lost"));
    EXPECT_EQ(bit31 | 8, flags("kept"));
}

TEST_F(MicroTraces, SetsBit31WhenALevel31IsTicked)
{
    tool.database.withComponent("A", 0, 0);

    configure({{true, "A (A)"}, {false, "31  thirty-one", true}});

    EXPECT_EQ(bit31, flags("A"));
}

TEST_F(MicroTraces, TakesTheFirstPairOfParenthesesForTheName)
{
    tool.database.withComponent("A", 8, 0).withComponent("old", 0, 0);

    configure({{true, "Alpha (outdated) one (A)"}, {false, "04  four", true}});

    EXPECT_EQ(8, flags("A"));
    EXPECT_THAT(tool.failures(), ElementsAre(notInGrid("outdated")));
}

TEST_F(MicroTraces, TakesAnEmptyPairOfParenthesesForAnEmptyName)
{
    tool.database.withComponent("A", 0, 0);

    configure({{true, "Alpha () (A)"}, {false, "04  four", true}});

    EXPECT_EQ(0, flags("A"));
    EXPECT_THAT(tool.failures(), ElementsAre(notInGrid("")));
}

TEST_F(MicroTraces, CountsATextWithoutAPairOfParenthesesToTheComponentBeforeIt)
{
    for (const char* text : {"Alpha", "Alpha (A", "Alpha A)", ")A(", ""}) {
        SCOPED_TRACE(text);
        TestTool fresh;
        initBitMasks(fresh.context);
        fresh.database.opened().withComponent("B", 0, 0);
        TreeView tree;
        fillTree(
            tree,
            {{true, "B (B)"}, {false, "01  one", true}, {true, text}, {false, "04  four", true}});

        mdlTraces::configureMicroTrace(fresh.context, tree);

        EXPECT_EQ(18, fresh.database.flagsOf("B"));
        EXPECT_THAT(fresh.failures(),
                    ElementsAre("Err.Number = 5 Err.Description = Invalid procedure call or "
                                "argument",
                                keyThereAlready));
    }
}

TEST_F(MicroTraces, ReadsAnEmptyNameFromAFirstTextWithoutAPairOfParentheses)
{
    tool.database.withComponent("B", 0, 0);

    configure(
        {{true, "Alpha"}, {false, "04  four", true}, {true, "B (B)"}, {false, "01  one", true}});

    EXPECT_EQ(2, flags("B"));
    EXPECT_THAT(ownFailures(), ElementsAre("Err.Number = 5 Err.Description = Invalid procedure "
                                           "call or argument"));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("")));
}

TEST_F(MicroTraces, AddsTheTicksOfAComponentThatIsThereTwiceToOneWord)
{
    tool.database.withComponent("A", 0, 0);

    configure(
        {{true, "A (A)"}, {false, "01  one", true}, {true, "Again (A)"}, {false, "02  two", true}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=6"));
    EXPECT_THAT(ownFailures(), ElementsAre(keyThereAlready));
}

TEST_F(MicroTraces, GoesOnPastAnyNumberOfDuplicates)
{
    tool.database.withComponent("A", 0, 1);
    std::vector<Choice> choices;
    for (int number = 0; number < 15; ++number) choices.push_back({true, "A (A)"});
    choices.push_back({false, "02  two", true});

    configure(choices);

    EXPECT_EQ(5, flags("A"));
    EXPECT_EQ(14u, ownFailures().size());
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MicroTraces, LogsATickedLevelThatIsNoneAndLeavesTheWord)
{
    tool.database.withComponent("A", 0, 0);

    configure({{true, "A (A)"},
               {false, "01  one", true},
               {false, "32  beyond", true},
               {false, "-1  below", true},
               {false, "99999  far", true}});

    EXPECT_EQ(2, flags("A"));
    EXPECT_THAT(ownFailures(), ElementsAre(outOfRange, outOfRange,
                                           "Err.Number = 6 Err.Description = Overflow", outOfRange))
        << "the level that could not be read is still -1";
    EXPECT_EQ(4u, events().size()) << "each ticked one is reported";
}

TEST_F(MicroTraces, TakesATickedLevelThatCannotBeReadForTheOneBeforeIt)
{
    tool.database.withComponent("A", 0, 0).withComponent("B", 0, 0);

    configure({{true, "A (A)"},
               {false, "03  three", true},
               {true, "B (B)"},
               {false, "99999  far", true}});

    EXPECT_EQ(8, flags("A"));
    EXPECT_EQ(8, flags("B"));
    EXPECT_THAT(ownFailures(), ElementsAre("Err.Number = 6 Err.Description = Overflow"));
}

TEST_F(MicroTraces, ReadsALevelWithoutANumberAsLevel0)
{
    tool.database.withComponent("A", 0, 0);

    configure({{true, "A (A)"}, {false, "verbose", true}});

    EXPECT_EQ(1, flags("A"));
}

TEST_F(MicroTraces, OnlyLogsAComponentWithAQuoteInItsName)
{
    tool.database.withComponent("O'Brien", 0, 0).withComponent("A", 0, 0);

    configure({{true, "O'Brien (O'Brien)"},
               {false, "01  one", true},
               {true, "A (A)"},
               {false, "01  one", true}});

    EXPECT_EQ(0, flags("O'Brien"));
    EXPECT_EQ(2, flags("A"));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("O'Brien")));
}

TEST_F(MicroTraces, SetsFlagsAlsoWhenEventsCannotBeReported)
{
    tool.database.withComponent("A", 0, 0);
    tool.eventReporter.failing(429);

    configure({{true, "A (A)"}, {false, "01  one", true}});

    EXPECT_EQ(2, flags("A"));
    EXPECT_EQ(1u, ownFailures().size());
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MicroTraces, RestoresDefaultsAndSignalsForAnEmptyTree)
{
    tool.database.withComponent("A", 0, 3);

    configure({});

    EXPECT_EQ(3, flags("A"));
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MicroTraces, EndsTheWalkWhereItsCounterOverflows)
{
    tool.database.withComponent("A", 0, 0).withComponent("beyond", 8, 0);
    TreeView tree;
    TreeNode& root = tree.add("A (A)");
    for (int number = 0; number < 32766; ++number) tree.addChild(root, "01  one");
    tree.item(32767).setChecked(true);
    tree.add("beyond (beyond)");
    ASSERT_EQ(32768, tree.count());

    mdlTraces::configureMicroTrace(tool.context, tree);

    EXPECT_THAT(wordsSet(), ElementsAre("A=2")) << "what lies beyond is not touched";
    EXPECT_THAT(ownFailures(), ElementsAre("Err.Number = 6 Err.Description = Overflow"));
    EXPECT_EQ(1, signalsSent());
}
