#include "traces/macro_trace_operations.h"

#include "traces/macro_trace_catalogue.h"
#include "traces/traces_fixture.h"

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::int32_t bit31 = std::numeric_limits<std::int32_t>::min();

std::string flagsOf(const std::vector<std::string>& ids)
{
    std::string text;
    for (const auto& id : ids) text += "<FLAG ID='" + id + "'/>";
    return text;
}

std::string diag(const std::string& component, const std::vector<std::string>& ids)
{
    return "<DIAG GROUP=\"" + component + "\">" + flagsOf(ids) + "</DIAG>";
}

std::string trace(const std::string& name, const std::string& content)
{
    return "<TRACE NAME='" + name + "'>" + content + "</TRACE>";
}

struct MacroTraceOperations : TracesTest {
    /// One group "G" with these traces, and the catalogue built.
    void define(const std::string& traces)
    {
        withFile("HTg.xml", "<GA NAME='G'>" + traces + "</GA>");
        mdlTraces::initMacroTraces(tool.context);
    }

    void configure(const std::vector<Choice>& choices)
    {
        TreeView tree;
        fillTree(tree, choices);
        mdlTraces::configureMacroTrace(tool.context, tree);
    }

    XmlElementPtr element(const std::string& name)
    {
        return tool.context.g_domMacroTraces->selectSingleNode("HYBRIDTRACES/GA/TRACE[@NAME='" +
                                                               name + "']");
    }
    void enable(const std::string& name)
    {
        mdlTraces::enableMacroTrace(tool.context, element(name));
    }
    void disable(const std::string& name)
    {
        mdlTraces::disableMacroTrace(tool.context, element(name));
    }

    Texts enableFailures() { return tool.failures("[mdlTraces]enableMacroTrace"); }
    Texts disableFailures() { return tool.failures("[mdlTraces]disableMacroTrace"); }
};

} // namespace

TEST_F(MacroTraceOperations, SetsTheLevelsOfATickedTraceAndRecordsIt)
{
    tool.database.withComponent("A", 1, 0).withComponent("B", 0, 0);
    define(trace("T", diag("A", {"3", "4"}) + diag("B", {"0"})));

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=25", "B=1")) << "one write for each component";
    EXPECT_EQ(1, enabledRecord("G", "T"));
    EXPECT_THAT(events(), ElementsAre("10004 G - T"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_THAT(tool.failures(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [mdlTraces]configureMacroTrace_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlTraces]configureMacroTrace_0"));
}

TEST_F(MacroTraceOperations, WritesEveryTickedTraceAgainWhenNoTickChanged)
{
    tool.database.withComponent("A", 8, 3);
    define(trace("T", diag("A", {"3"})));
    recorded("G", "T", 1);

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=8"));
    EXPECT_THAT(defaultsRestored(), ElementsAre("id-A"));
    EXPECT_EQ(11, flags("A"));
    EXPECT_THAT(events(), ElementsAre("10004 G - T"));
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MacroTraceOperations, DoesNothingForAnUntickedTraceThatIsNotRecordedAsOn)
{
    tool.database.withComponent("A", 8, 0);
    define(trace("off", diag("A", {"3"})) + trace("never", diag("A", {"3"})) +
           trace("odd", diag("A", {"3"})));
    recorded("G", "off", 0);
    recorded("G", "odd", 7);

    configure({{true, "G"}, {false, "off"}, {false, "never"}, {false, "odd"}});

    EXPECT_THAT(wordsSet(), IsEmpty());
    EXPECT_THAT(events(), IsEmpty());
    EXPECT_EQ(7, enabledRecord("G", "odd")) << "only exactly 1 counts as on";
    EXPECT_EQ(8, flags("A"));
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MacroTraceOperations, ClearsTheLevelsOfATraceThatIsUnticked)
{
    tool.database.withComponent("A", 9, 0);
    define(trace("T", diag("A", {"3"})));
    recorded("G", "T", 1);

    configure({{true, "G"}, {false, "T", false}});

    EXPECT_EQ(1, flags("A"));
    EXPECT_EQ(0, enabledRecord("G", "T"));
    EXPECT_THAT(events(), ElementsAre("10005 G - T"));
}

TEST_F(MacroTraceOperations, SetsABitThatIsClearWhenItsTraceIsUnticked)
{
    tool.database.withComponent("A", 1, 0);
    define(trace("T", diag("A", {"3"})));
    recorded("G", "T", 1);

    configure({{true, "G"}, {false, "T", false}});

    EXPECT_EQ(9, flags("A")) << "the bit is toggled, not cleared";
}

TEST_F(MacroTraceOperations, LeavesASharedLevelOnWhileOneOfItsTracesStaysTicked)
{
    tool.database.withComponent("A", 0x18, 0);
    define(trace("1", diag("A", {"3", "4"})) + trace("2", diag("A", {"3"})));
    recorded("G", "1", 1);
    recorded("G", "2", 1);

    configure({{true, "G"}, {false, "1", false}, {false, "2", true}});

    EXPECT_EQ(8, flags("A"));
    EXPECT_THAT(wordsSet(), ElementsAre("A=0", "A=8"));
    EXPECT_THAT(events(), ElementsAre("10005 G - 1", "10004 G - 2"));
}

TEST_F(MacroTraceOperations, UnticksAllBeforeItTicksAnyWhateverTheirOrder)
{
    tool.database.withComponent("A", 0x18, 0);
    define(trace("1", diag("A", {"3"})) + trace("2", diag("A", {"3", "4"})));
    recorded("G", "1", 1);
    recorded("G", "2", 1);

    configure({{true, "G"}, {false, "1", true}, {false, "2", false}});

    EXPECT_EQ(8, flags("A"));
}

TEST_F(MacroTraceOperations, RestoresDefaultFlagsThatUntickingTook)
{
    tool.database.withComponent("A", 0xB, 3);
    define(trace("T", diag("A", {"0", "3"})));
    recorded("G", "T", 1);

    configure({{true, "G"}, {false, "T", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=2"));
    EXPECT_EQ(3, flags("A"));
}

TEST_F(MacroTraceOperations, RecordsATraceWithoutComponentsAndChangesNoFlags)
{
    tool.database.withComponent("A", 1, 0);
    define(trace("T", ""));

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_THAT(wordsSet(), IsEmpty());
    EXPECT_EQ(1, enabledRecord("G", "T"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceOperations, RewritesTheFlagsOfAComponentWithoutLevels)
{
    tool.database.withComponent("A", 5, 0);
    define(trace("T", "<DIAG GROUP='A'/>"));

    enable("T");

    EXPECT_THAT(wordsSet(), ElementsAre("A=5"));
}

TEST_F(MacroTraceOperations, TogglesALevelTwiceThatIsListedTwice)
{
    tool.database.withComponent("A", 8, 0);
    define(trace("T", diag("A", {"3", "3"})));

    disable("T");
    EXPECT_EQ(8, flags("A"));
    enable("T");
    EXPECT_EQ(8, flags("A"));
}

TEST_F(MacroTraceOperations, FollowsTheLatestGroupOfTheTree)
{
    tool.database.withComponent("A", 0, 0);
    withFile("HT1.xml", "<GA NAME='G1'>" + trace("T", diag("A", {"1"})) + "</GA>");
    withFile("HT2.xml", "<GA NAME='G2'>" + trace("T", diag("A", {"2"})) + "</GA>");
    mdlTraces::initMacroTraces(tool.context);

    configure({{true, "G1"}, {false, "T", false}, {true, "G2"}, {false, "T", true}});

    EXPECT_EQ(4, flags("A"));
    EXPECT_EQ(-1, enabledRecord("G1", "T")) << "never recorded";
    EXPECT_EQ(1, enabledRecord("G2", "T"));
}

TEST_F(MacroTraceOperations, ChangesTheFirstOfTwoTracesOfOneName)
{
    tool.database.withComponent("A", 0, 0).withComponent("B", 0, 0);
    define(trace("T", diag("A", {"1"})) + trace("T", diag("B", {"1"})));

    configure({{true, "G"}, {false, "T", true}, {false, "T", true}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=2", "A=2"));
    EXPECT_THAT(events(), ElementsAre("10004 G - T", "10004 G - T"));
}

TEST_F(MacroTraceOperations, RecordsATraceThatTheCatalogueLacksAndTouchesNoOther)
{
    tool.database.withComponent("A", 2, 0).withComponent("B", 0, 0);
    define(trace("off", diag("A", {"1"})) + trace("on", diag("B", {"1"})));
    recorded("G", "off", 1);
    recorded("G", "gone", 1);

    configure({{true, "G"},
               {false, "off", false},
               {false, "gone", false},
               {false, "on", true},
               {false, "new", true}});

    EXPECT_THAT(disableFailures(), ElementsAre(notSet));
    EXPECT_THAT(enableFailures(), ElementsAre(notSet));
    EXPECT_EQ(0, enabledRecord("G", "gone"));
    EXPECT_EQ(1, enabledRecord("G", "new"));
    EXPECT_THAT(wordsSet(), ElementsAre("A=0", "B=2"));
}

TEST_F(MacroTraceOperations, ChangesTheTraceBeforeOneThatCannotBeLookedUpOnceMore)
{
    tool.database.withComponent("A", 2, 0).withComponent("B", 0, 0);
    define(trace("T", diag("A", {"1"})) + "<TRACE NAME=\"Caller's\">" + diag("B", {"2"}) +
           "</TRACE>");
    recorded("G", "T", 1);
    recorded("G", "Caller's", 1);

    configure({{true, "G"}, {false, "T", false}, {false, "Caller's", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=0", "A=2")) << "the element is still that of T";
    EXPECT_EQ(0, enabledRecord("G", "Caller's"));
    EXPECT_THAT(tool.failures("[mdlTraces]configureMacroTrace"),
                ElementsAre(testing::StartsWith("Err.Number = -2147467259 ")));
}

TEST_F(MacroTraceOperations, CarriesTheElementOfThePassBeforeIntoTheSecondOne)
{
    tool.database.withComponent("A", 2, 0);
    define(trace("T", diag("A", {"1"})) + "<TRACE NAME=\"Caller's\"/>");
    recorded("G", "T", 1);

    configure({{true, "G"}, {false, "Caller's", true}, {false, "T", false}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=0", "A=2")) << "T is turned on for the other";
    EXPECT_EQ(0, enabledRecord("G", "T"));
    EXPECT_EQ(1, enabledRecord("G", "Caller's"));
}

TEST_F(MacroTraceOperations, RecordsAlsoBeforeACatalogueWasBuilt)
{
    configure({{true, "G"}, {false, "T", true}});

    EXPECT_EQ(1, enabledRecord("G", "T"));
    EXPECT_THAT(tool.failures("[mdlTraces]configureMacroTrace"), ElementsAre(notSet));
}

TEST_F(MacroTraceOperations, OnlyLogsAComponentThatIsNotInTheGrid)
{
    tool.database.withComponent("A", 0, 0);
    define(trace("T", diag("Nothing", {"1"}) + diag("A", {"1"})));

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_THAT(tool.failures(), ElementsAre(notInGrid("Nothing")));
    EXPECT_EQ(2, flags("A"));
    EXPECT_EQ(1, enabledRecord("G", "T"));
}

TEST_F(MacroTraceOperations, OnlyLogsAComponentWithAQuoteInItsName)
{
    tool.database.withComponent("O'Brien", 0, 0).withComponent("A", 0, 0);
    define(trace("T", diag("O'Brien", {"1"}) + diag("A", {"1"})));

    enable("T");

    EXPECT_EQ(0, flags("O'Brien"));
    EXPECT_EQ(2, flags("A"));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("O'Brien")));
}

TEST_F(MacroTraceOperations, CountsADiagWithoutANameToTheComponentBeforeIt)
{
    tool.database.withComponent("A", 0, 0);
    define(trace("T", diag("A", {"1"}) + "<DIAG>" + flagsOf({"2"}) + "</DIAG>"));

    enable("T");

    EXPECT_THAT(wordsSet(), ElementsAre("A=2", "A=6"));
    EXPECT_THAT(enableFailures(), ElementsAre(notSet));
}

TEST_F(MacroTraceOperations, TouchesNoComponentForAFirstDiagWithoutAName)
{
    tool.database.withComponent("A", 0, 0);
    define(trace("T", "<DIAG>" + flagsOf({"2"}) + "</DIAG>" + diag("A", {"1"})));

    enable("T");

    EXPECT_THAT(wordsSet(), ElementsAre("A=2"));
    EXPECT_THAT(enableFailures(), ElementsAre(notSet));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("")));
}

TEST_F(MacroTraceOperations, TakesALevelThatCannotBeReadForTheOneBeforeIt)
{
    tool.database.withComponent("A", 8, 0).withComponent("B", 8, 0);
    define(trace("missing", "<DIAG GROUP='A'><FLAG ID='3'/><FLAG/></DIAG>") +
           trace("too far", diag("A", {"3"}) + diag("B", {"40000"})));

    disable("missing");
    EXPECT_EQ(8, flags("A")) << "toggled twice";
    disable("too far");
    EXPECT_EQ(0, flags("A"));
    EXPECT_EQ(0, flags("B")) << "also that of the component before";
    EXPECT_THAT(disableFailures(),
                ElementsAre(notSet, "Err.Number = 6 Err.Description = Overflow"));
}

TEST_F(MacroTraceOperations, TakesTheLeadingNumberOfALevelsText)
{
    struct Case {
        const char* because;
        const char* id;
        std::int32_t word;
        const char* logged;
    };
    const Case cases[] = {
        {"the highest level is negative", "31", bit31, nullptr},
        {"a number with more behind it", "7x", 128, nullptr},
        {"blanks in front", "  5", 32, nullptr},
        {"no text at all reads as 0", "", 1, nullptr},
        {"neither does a word have a number", "x", 1, nullptr},
        {"halves go to the even number", "2.5", 4, nullptr},
        {"one past the highest", "32", 0, outOfRange},
        {"below the lowest", "-1", 0, outOfRange},
        {"past 16 bits, where no level was read yet", "40000", 1,
         "Err.Number = 6 Err.Description = Overflow"},
        {"past any number", "1e999", 1, "Err.Number = 6 Err.Description = Overflow"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool before;
        MacroTraceOperations* test = this;
        test->tool.database.withComponent(c.because, 0, 0);
        define(trace("T", diag(c.because, {c.id})));
        const std::size_t logged = enableFailures().size();

        enable("T");

        EXPECT_EQ(c.word, flags(c.because));
        if (c.logged) {
            ASSERT_EQ(logged + 1, enableFailures().size());
            EXPECT_EQ(c.logged, enableFailures().back());
        } else {
            EXPECT_EQ(logged, enableFailures().size());
        }
    }
}

TEST_F(MacroTraceOperations, PassesOverALevelThatIsNoneAndSetsTheOthers)
{
    tool.database.withComponent("A", 0, 0);
    define(trace("T", "<DIAG GROUP='A'><FLAG ID='1'/><FLAG ID='32'/><FLAG/><FLAG ID='2'/></DIAG>"));

    enable("T");
    EXPECT_EQ(6, flags("A"));
    EXPECT_THAT(enableFailures(), ElementsAre(outOfRange, notSet, outOfRange))
        << "the level that is missing is still 32";

    disable("T");
    EXPECT_EQ(0, flags("A"));
    EXPECT_THAT(disableFailures(), ElementsAre(outOfRange, notSet, outOfRange));
}

TEST_F(MacroTraceOperations, LeavesATraceOnItsEleventhBadLevelWithoutAWrite)
{
    tool.database.withComponent("A", 0, 0);
    define(trace("T", diag("A", {"1"}) + diag("A", std::vector<std::string>(11, "32"))));

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_THAT(wordsSet(), ElementsAre("A=2"));
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlTraces]enableMacroTrace",
              enableFailures().back());
    EXPECT_EQ(1, enabledRecord("G", "T")) << "the whole operation goes on";
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MacroTraceOperations, LeavesAnUntickedTraceOnItsEleventhBadLevelWithoutAWrite)
{
    tool.database.withComponent("A", 8, 0);
    define(trace("T", diag("A", std::vector<std::string>(11, "32")) + diag("A", {"3"})));

    disable("T");

    EXPECT_THAT(wordsSet(), IsEmpty());
    EXPECT_EQ(12u, disableFailures().size());
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlTraces]disableMacroTrace",
              disableFailures().back());
}

TEST_F(MacroTraceOperations, EndsOnItsEleventhErrorWithoutDefaultsAndSignal)
{
    tool.database.withComponent("A", 0, 3);
    std::vector<Choice> choices = {{true, "G"}};
    for (char name = 'a'; name <= 'l'; ++name) choices.push_back({false, {name}, true});

    configure(choices);

    EXPECT_EQ(10u, events().size()) << "each failed look-up before is recorded all the same";
    EXPECT_EQ(1, enabledRecord("G", "j"));
    EXPECT_EQ(-1, enabledRecord("G", "k"));
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlTraces]configureMacroTrace",
              tool.failures().back());
    EXPECT_THAT(defaultsRestored(), IsEmpty());
    EXPECT_EQ(0, signalsSent());
    EXPECT_FALSE(tool.logged("Exiting [mdlTraces]configureMacroTrace_0"));
}

TEST_F(MacroTraceOperations, CarriesBit31BothWays)
{
    tool.database.withComponent("A", 1, 0);
    define(trace("T", diag("A", {"31"})));

    enable("T");
    EXPECT_EQ(bit31 | 1, flags("A"));
    disable("T");
    EXPECT_EQ(1, flags("A"));
}

TEST_F(MacroTraceOperations, RecordsAndSignalsAlsoWithTheDatabaseDown)
{
    tool.database.withComponent("A", 1, 0);
    define(trace("T", diag("A", {"3"})));
    tool.database.breakConnection();

    configure({{true, "G"}, {false, "T", true}});

    EXPECT_EQ(1, enabledRecord("G", "T"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_EQ(1, flags("A"));
}

TEST_F(MacroTraceOperations, EndsEachWalkWhereItsCounterOverflows)
{
    tool.database.withComponent("A", 0, 3);
    define("");
    TreeView tree;
    TreeNode& root = tree.add("G");
    for (int number = 0; number < 32766; ++number) tree.addChild(root, "filler");
    TreeNode& beyond = tree.addChild(root, "beyond");
    beyond.setChecked(true);
    ASSERT_EQ(32768, tree.count());

    mdlTraces::configureMacroTrace(tool.context, tree);

    EXPECT_EQ(-1, enabledRecord("G", "beyond"));
    EXPECT_THAT(tool.failures("[mdlTraces]configureMacroTrace"),
                ElementsAre("Err.Number = 6 Err.Description = Overflow",
                            "Err.Number = 6 Err.Description = Overflow"));
    EXPECT_EQ(3, flags("A"));
    EXPECT_EQ(1, signalsSent());
}
