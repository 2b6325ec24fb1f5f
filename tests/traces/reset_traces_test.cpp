#include "traces/reset_traces.h"

#include "traces/traces_fixture.h"

#include <algorithm>
#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

constexpr std::int32_t bit31 = std::numeric_limits<std::int32_t>::min();

struct ResetTraces : TracesTest {
    void restore() { mdlTraces::enableStandardTraces(tool.context); }
    void reset() { mdlTraces::disableAllTraces(tool.context); }
};

} // namespace

TEST_F(ResetTraces, AddsTheDefaultFlagsAndRemovesNone)
{
    struct Case {
        const char* because;
        std::int32_t flags;
        std::int32_t defaults;
        std::int32_t expected;
    };
    const Case cases[] = {
        {"nothing was on", 0, 5, 5},
        {"other levels stay on", 2, 5, 7},
        {"a negative word keeps its bit 31", bit31 | 2, 5, bit31 | 7},
        {"default flags may hold bit 31", 2, bit31, bit31 | 2},
        {"all levels", -1, 5, -1},
        {"none at all", 0, 0, 0},
    };
    for (const auto& c : cases) tool.database.withComponent(c.because, c.flags, c.defaults);

    restore();

    for (const auto& c : cases) EXPECT_EQ(c.expected, flags(c.because)) << c.because;
    EXPECT_THAT(tool.failures(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [mdlTraces]enableStandardTraces_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlTraces]enableStandardTraces_0"));
}

TEST_F(ResetTraces, WritesEveryComponentOnceInTheOrderOfTheirNamesAlsoWithoutAChange)
{
    tool.database.withComponent("B", 3, 3).withComponent("A", 7, 3);

    restore();

    EXPECT_THAT(tool.database.queries(),
                ElementsAre("SELECT Name, ObjectId, DefaultFlags, Flags FROM "
                            "vw_LoggerDiagnosticGrid ORDER BY Name"));
    EXPECT_THAT(tool.database.cursors(),
                ElementsAre(Pair(CursorKind::keyset, LockKind::optimistic)));
    ASSERT_EQ(2u, tool.database.calls().size());
    EXPECT_THAT(tool.database.calls()[0].parameters,
                UnorderedElementsAre(
                    Pair("@AuditAlias", Value(std::string("support"))),
                    Pair("@AuditComponent", Value(std::string("OrvanDiagnosticTool"))),
                    Pair("@ObjectId", Value(std::string("id-A"))), Pair("@Flags", Value(7))))
        << "without @Name";
    EXPECT_EQ("csp_LoggerDiagnosticGridModify", tool.database.calls()[1].procedure);
}

TEST_F(ResetTraces, KeepsWhatAnotherProgramChangedWhileTheRowsWereWalked)
{
    tool.database.withComponent("A", 0, 1).withComponent("B", 0, 1);
    tool.database.withProcedure("csp_LoggerDiagnosticGridModify",
                                {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"},
                                [this, others = true](const FakeDatabase::Call& call) mutable {
                                    tool.database.setFlags(
                                        valueAsText(call.parameters.at("@ObjectId")).substr(3),
                                        valueAsInteger32(call.parameters.at("@Flags")));
                                    if (std::exchange(others, false))
                                        tool.database.setFlags("B", 64);
                                });

    restore();

    EXPECT_EQ(1, flags("A"));
    EXPECT_EQ(65, flags("B"));
}

TEST_F(ResetTraces, ReadsFlagWordsByWayOfTheirText)
{
    tool.database.withComponent("A", 0, 0).withRow("vw_LoggerDiagnosticGrid",
                                                   {{"Name", std::string("B")},
                                                    {"ObjectId", std::string("id-B")},
                                                    {"Flags", std::string("-2147483648")},
                                                    {"DefaultFlags", 5.0}});

    restore();

    EXPECT_EQ(bit31 | 5, flags("B"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ResetTraces, TakesAWordThatCannotBeReadForThatOfTheRowBefore)
{
    tool.database.withComponent("A", 64, 1)
        .withRow("vw_LoggerDiagnosticGrid", {{"Name", std::string("B")},
                                             {"ObjectId", std::string("id-B")},
                                             {"Flags", Null{}},
                                             {"DefaultFlags", 5}})
        .withRow("vw_LoggerDiagnosticGrid", {{"Name", std::string("C")},
                                             {"ObjectId", std::string("id-C")},
                                             {"Flags", 2},
                                             {"DefaultFlags", std::string("many")}});

    restore();

    EXPECT_EQ(64 | 5, flags("B"));
    EXPECT_EQ(2 | 5, flags("C"));
    EXPECT_THAT(tool.failures("[mdlTraces]enableStandardTraces"),
                ElementsAre("Err.Number = 94 Err.Description = Invalid use of Null",
                            "Err.Number = 13 Err.Description = Type mismatch"));
}

TEST_F(ResetTraces, TakesAWordOfTheFirstRowThatCannotBeReadForZero)
{
    tool.database.withComponent("B", 0, 0).withRow("vw_LoggerDiagnosticGrid",
                                                   {{"Name", std::string("A")},
                                                    {"ObjectId", std::string("id-A")},
                                                    {"Flags", Null{}},
                                                    {"DefaultFlags", 4}});

    restore();

    EXPECT_EQ(4, flags("A"));
}

TEST_F(ResetTraces, GoesOnPastAComponentThatTheServerRefuses)
{
    tool.database.withComponent("A", 0, 1).withComponent("B", 0, 1);
    const auto refuse = [](const FakeDatabase::Call& call) {
        if (call.parameters.at("@ObjectId") == Value(std::string("id-A")))
            throw RunTimeError(-2147217900, "No.");
    };
    tool.database.withProcedure("csp_LoggerDiagnosticGridModify",
                                {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"},
                                refuse);

    restore();

    EXPECT_EQ(2u, tool.database.calls().size());
    EXPECT_THAT(tool.failures(), ElementsAre("Err.Number = -2147217900 Err.Description = No."));
}

TEST_F(ResetTraces, LeavesOnTheEleventhError)
{
    for (char name = 'a'; name <= 'z'; ++name)
        tool.database.withComponent(std::string(1, name), 0, 1);
    tool.database.withProcedure("csp_LoggerDiagnosticGridModify",
                                {"@AuditAlias", "@AuditComponent", "@ObjectId", "@Flags"},
                                [](const FakeDatabase::Call&) { throw RunTimeError(5); });

    restore();

    EXPECT_EQ(11u, tool.database.calls().size());
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlTraces]enableStandardTraces",
              tool.failures().back());
}

TEST_F(ResetTraces, LeavesEveryComponentWithExactlyItsDefaultFlags)
{
    tool.database.withComponent("A", 0x77, 3)
        .withComponent("B", bit31, 1)
        .withComponent("C", 0, bit31)
        .withComponent("D", 5, 0);

    reset();

    EXPECT_EQ(3, flags("A"));
    EXPECT_EQ(1, flags("B"));
    EXPECT_EQ(bit31, flags("C"));
    EXPECT_EQ(0, flags("D"));
    EXPECT_THAT(wordsSet(), ElementsAre("A=0", "B=0", "C=0", "D=0"));
    EXPECT_THAT(defaultsRestored(), ElementsAre("id-A", "id-B", "id-C", "id-D"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_TRUE(tool.logged("Entering [mdlTraces]disableAllTraces_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlTraces]disableAllTraces_0"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ResetTraces, RecordsEveryMacroTraceOfTheRegistryAsOff)
{
    tool.database.withComponent("A", 0, 0);
    recorded("G", "on", 1);
    recorded("G", "off", 0);
    recorded("H", "no longer defined", 1);
    tool.clock.advance(3600);

    reset();

    EXPECT_EQ(0, enabledRecord("G", "on"));
    EXPECT_EQ(0, enabledRecord("G", "off"));
    EXPECT_EQ(0, enabledRecord("H", "no longer defined"));
    EXPECT_EQ("10/8/2005 4:23:07 PM", tool.registry.text(recordKey("G", "off"), "Date"));
    EXPECT_THAT(events(),
                ElementsAre("10005 G - on", "10005 G - off", "10005 H - no longer defined"));
}

TEST_F(ResetTraces, SkipsTheRecordsWhenNoMacroTraceWasEverRecorded)
{
    tool.database.withComponent("A", 1, 0);
    ASSERT_FALSE(registryKeyExists(tool.context, registryRoot::localMachine, toolKey));

    reset();

    EXPECT_THAT(events(), IsEmpty());
    EXPECT_FALSE(registryKeyExists(tool.context, registryRoot::localMachine, toolKey));
    EXPECT_EQ(1, signalsSent());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ResetTraces, DoesNothingForAKeyWithoutSubkeys)
{
    tool.database.withComponent("A", 1, 0);
    tool.registry.withText(toolKey, "Standard Logs", "a,b");

    reset();
    EXPECT_THAT(events(), IsEmpty()) << "the tool's own key without groups";

    tool.registry.withKey(std::string(toolKey) + "\\Empty");
    recorded("Full", "T", 1);
    reset();
    EXPECT_THAT(events(), ElementsAre("10005 Full - T"));
    EXPECT_THAT(
        *tool.registry.subkeys(registryRoot::localMachine, std::string(toolKey) + "\\Empty"),
        IsEmpty());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(ResetTraces, GoesOnPastAGroupThatMayNotBeRead)
{
    tool.database.withComponent("A", 1, 0);
    recorded("Closed", "T", 1);
    recorded("Open", "T", 1);
    tool.registry.closed(std::string(toolKey) + "\\Closed");

    reset();

    EXPECT_THAT(events(), ElementsAre("10005 Open - T"));
    EXPECT_EQ(1, signalsSent());
}

TEST_F(ResetTraces, WritesNothingForAnEmptyViewAndStillSignals)
{
    reset();

    EXPECT_THAT(tool.database.calls(), IsEmpty());
    EXPECT_EQ(1, signalsSent());
    EXPECT_THAT(tool.failures(), ElementsAre(outOfRange)) << "that of the empty list";
}

TEST_F(ResetTraces, RecordsAndSignalsAlsoWithTheDatabaseDown)
{
    tool.database.withComponent("A", 1, 0);
    recorded("G", "T", 1);
    tool.database.breakConnection();

    reset();

    EXPECT_EQ(0, enabledRecord("G", "T"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_EQ(1, flags("A"));
}

TEST_F(ResetTraces, OnlyLogsAComponentWithAQuoteInItsName)
{
    tool.database.withComponent("O'Brien", 64, 1).withComponent("A", 64, 1);

    reset();

    EXPECT_EQ(65, flags("O'Brien")) << "its defaults come back by its identity";
    EXPECT_EQ(1, flags("A"));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("O'Brien")));
}
