#include "server/diagnostic_grid.h"

#include "runtime/text.h"
#include "server/diagnostic_grid_catalogue.h"
#include "support/test_tool.h"
#include "support/traced_pairs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace mdlOrvanDatabase;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

constexpr std::int32_t bit31 = std::numeric_limits<std::int32_t>::min();

struct DiagnosticGrid : testing::Test {
    TestTool tool;

    /// Whatever a test does, each traced routine that was entered was left.
    void TearDown() override { EXPECT_EQ(std::vector<std::string>{}, tracesOutOfPairs(tool)); }

    DiagnosticGrid() { tool.database.opened(); }

    std::int32_t flags(const std::string& name, std::int32_t kind = flagKind::current)
    {
        return getFlags(tool.context, name, kind);
    }

    void withCatalogue(const std::string& components)
    {
        const std::string path = "C:\\Orvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml";
        tool.registry.withText("Software\\Kelma Systems\\Kelma Orvan", "InstalledFolderPath",
                               "C:\\Orvan");
        tool.files.with(path, "<DiagnosticGrids>" + components + "</DiagnosticGrids>");
        mdlDiagnosticGrids::openDiagGrids(tool.context);
    }

    std::vector<std::string> listed(const std::string& column)
    {
        MemoryRecordset components = EnumComponents(tool.context);
        std::vector<std::string> texts;
        for (components.moveFirst(); !components.atEnd(); components.moveNext())
            texts.emplace_back(trimEnd(components.field(column)));
        return texts;
    }
};

std::string notInGrid(const std::string& name)
{
    return "Could not find the component: " + name +
           " in vw_LoggerDiagnosticGrid.  Diagnostics will not be set for this non-existent "
           "component.";
}

} // namespace

TEST_F(DiagnosticGrid, ReadsCurrentAndDefaultFlags)
{
    tool.database.withComponent("CallFlow", 7, 3);

    EXPECT_EQ(7, flags("CallFlow", 0));
    EXPECT_EQ(3, flags("CallFlow", 1));
    EXPECT_EQ(3, flags("CallFlow", -5)) << "any number but 0 asks for the default ones";
    EXPECT_THAT(
        tool.database.queries(),
        ElementsAre("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = 'CallFlow'",
                    "SELECT DefaultFlags As Flags FROM vw_LoggerDiagnosticGrid WHERE Name = "
                    "'CallFlow'",
                    "SELECT DefaultFlags As Flags FROM vw_LoggerDiagnosticGrid WHERE Name = "
                    "'CallFlow'"));
    EXPECT_EQ(0, tool.database.openRecordsets());
}

TEST_F(DiagnosticGrid, WritesNoEntryOrExitLinesOfItsReads)
{
    tool.database.withComponent("CallFlow", 7, 3);

    flags("CallFlow");
    getComponentsObjectId(tool.context, "CallFlow");

    EXPECT_THAT(tool.logLines(), IsEmpty());
}

TEST_F(DiagnosticGrid, ReadsAnUnknownComponentAsNoFlagsOfEitherKind)
{
    tool.database.withComponent("CallFlow", 7, 3);

    EXPECT_EQ(0, flags("Nothing", 0));
    EXPECT_EQ(0, flags("Nothing", 1));
    EXPECT_EQ("", getComponentsObjectId(tool.context, "Nothing"));
    EXPECT_EQ(0, tool.database.openRecordsets());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagnosticGrid, ReadsAFailingQueryAsNoFlags)
{
    tool.database.withComponent("CallFlow", 7, 3).failing("SELECT Flags", 5);

    EXPECT_EQ(0, flags("CallFlow"));

    EXPECT_EQ("Err.Number = 5 Err.Description = Invalid procedure call or argument",
              tool.failures("[mdlOrvanDatabase]getFlags").front());
}

TEST_F(DiagnosticGrid, OpensNoClosedConnection)
{
    tool.database.withComponent("CallFlow", 7, 3);
    tool.database.breakConnection();

    EXPECT_EQ(0, flags("CallFlow"));
    EXPECT_EQ("", getComponentsObjectId(tool.context, "CallFlow"));
    SetFlags(tool.context, "CallFlow", 1);
    EXPECT_THAT(listed("name"), IsEmpty());

    EXPECT_THAT(tool.database.connectionStrings(), IsEmpty());
    EXPECT_THAT(tool.database.calls(), IsEmpty());
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("CallFlow")));
}

TEST_F(DiagnosticGrid, CarriesBit31Unchanged)
{
    tool.database.withComponent("PortControl", bit31 | 3, bit31);

    EXPECT_EQ(bit31 | 3, flags("PortControl", 0));
    EXPECT_EQ(bit31, flags("PortControl", 1));
    SetFlags(tool.context, "PortControl", bit31 | 64);
    EXPECT_EQ(bit31 | 64, flags("PortControl"));
    SetFlags(tool.context, "PortControl", -1);
    EXPECT_EQ(-1, flags("PortControl"));
}

TEST_F(DiagnosticGrid, WritesTheWholeWordWithTheRowsIdentity)
{
    tool.database.withComponent("CallFlow", 7, 3);

    SetFlags(tool.context, "CallFlow", 64);

    ASSERT_EQ(1u, tool.database.calls().size());
    EXPECT_EQ("csp_LoggerDiagnosticGridModify", tool.database.calls()[0].procedure);
    EXPECT_THAT(
        tool.database.calls()[0].parameters,
        UnorderedElementsAre(Pair("@AuditAlias", Value(std::string("support"))),
                             Pair("@AuditComponent", Value(std::string("OrvanDiagnosticTool"))),
                             Pair("@Name", Value(std::string("CallFlow"))),
                             Pair("@ObjectId", Value(std::string("id-CallFlow"))),
                             Pair("@Flags", Value(64))));
    EXPECT_TRUE(tool.logged("Entering [mdlOrvanDatabase]SetFlags_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvanDatabase]SetFlags_0"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagnosticGrid, LogsAnUnknownComponentAndCallsNoProcedure)
{
    tool.database.withComponent("CallFlow", 7, 3);

    SetFlags(tool.context, "Nothing", 64);

    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("Nothing")));
    EXPECT_THAT(tool.database.calls(), IsEmpty());
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvanDatabase]SetFlags_0"));
}

TEST_F(DiagnosticGrid, OnlyLogsAWriteThatTheServerRefuses)
{
    tool.database.withComponent("CallFlow", 7, 3)
        .withProcedure("csp_LoggerDiagnosticGridModify",
                       {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"},
                       [](const FakeDatabase::Call&) { throw RunTimeError(-2147217900, "No."); });

    SetFlags(tool.context, "CallFlow", 64);

    EXPECT_THAT(tool.failures(), ElementsAre("Err.Number = -2147217900 Err.Description = No."));
    EXPECT_EQ(7, flags("CallFlow"));
}

TEST_F(DiagnosticGrid, DoesNotEscapeAQuoteInAName)
{
    tool.database.withComponent("O'Brien", 7, 3);

    EXPECT_EQ(0, flags("O'Brien"));
    SetFlags(tool.context, "O'Brien", 1);

    EXPECT_EQ("Err.Number = -2147217900 Err.Description = Incorrect syntax",
              tool.failures("[mdlOrvanDatabase]getFlags").front());
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]SetFlags"), ElementsAre(notInGrid("O'Brien")));
    EXPECT_EQ(7, tool.database.flagsOf("O'Brien"));
}

TEST_F(DiagnosticGrid, ListsComponentsByWhatAPersonReads)
{
    tool.database.withComponent("Zulu", 0, 0)
        .withComponent("Alpha", 0, 0)
        .withComponent("Mike", 0, 0);
    withCatalogue("<DiagnosticGrid name='Zulu' text='a first one'/>"
                  "<DiagnosticGrid name='Alpha' text='Something last'/>");

    EXPECT_THAT(listed("fullName"),
                ElementsAre("a first one (Zulu)", "Mike (Mike)", "Something last (Alpha)"));
    EXPECT_THAT(listed("name"), ElementsAre("Zulu", "Mike", "Alpha"));
    EXPECT_EQ("SELECT Name FROM vw_LoggerDiagnosticGrid ORDER BY Name",
              tool.database.queries().front());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagnosticGrid, KeepsComponentsOfOneTextInTheOrderOfTheirNames)
{
    tool.database.withComponent("b", 0, 0).withComponent("a", 0, 0);
    withCatalogue("<DiagnosticGrid name='a' text='SAME'/><DiagnosticGrid name='b' text='same'/>");

    EXPECT_THAT(listed("name"), ElementsAre("a", "b"));
}

TEST_F(DiagnosticGrid, ListsTheOneComponentOfAGrid)
{
    tool.database.withComponent("CallFlow", 0, 0);

    EXPECT_THAT(listed("name"), ElementsAre("CallFlow"));
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]EnumComponents"), IsEmpty());
}

TEST_F(DiagnosticGrid, PadsBothColumnsOfTheListTo255Characters)
{
    tool.database.withComponent("CallFlow", 0, 0).withComponent(std::string(300, 'x'), 0, 0);

    MemoryRecordset components = EnumComponents(tool.context);
    components.moveFirst();

    EXPECT_EQ("CallFlow" + std::string(247, ' '), components.field("name"));
    EXPECT_EQ(255u, components.field("fullName").size());
    components.moveNext();
    EXPECT_EQ(std::string(255, 'x'), components.field("name")) << "more is cut";
}

TEST_F(DiagnosticGrid, CutsTheListsTextsBetweenCharacters)
{
    std::string name;
    for (int number = 0; number < 300; ++number) name += "\xC3\xA9";
    tool.database.withComponent(name, 0, 0).withComponent("\xC3\xA9t\xC3\xA9", 0, 0);

    MemoryRecordset components = EnumComponents(tool.context);
    components.moveFirst();

    EXPECT_EQ("\xC3\xA9t\xC3\xA9" + std::string(252, ' '), components.field("name"));
    components.moveNext();
    EXPECT_EQ(name.substr(0, 2 * 255), components.field("name"));
}

TEST_F(DiagnosticGrid, ListsAnEmptyViewWithOneErrorAlongTheWay)
{
    tool.database.withEmptyGrid();

    MemoryRecordset components = EnumComponents(tool.context);
    components.moveFirst();

    EXPECT_TRUE(components.atEnd());
    EXPECT_THAT(tool.failures("[mdlOrvanDatabase]EnumComponents"),
                ElementsAre("Err.Number = 9 Err.Description = Subscript out of range"));
}

TEST_F(DiagnosticGrid, GivesAnEmptyListWhenTheViewIsMissing)
{
    EXPECT_THAT(listed("fullName"), IsEmpty());
    EXPECT_FALSE(tool.failures("[mdlOrvanDatabase]EnumComponents").empty());
}

TEST_F(DiagnosticGrid, LeavesAListOnItsEleventhErrorWithWhatItHolds)
{
    for (int number = 0; number < 20; ++number)
        tool.database.withRow("vw_LoggerDiagnosticGrid", {{"Name", Null{}}});

    const MemoryRecordset components = EnumComponents(tool.context);

    EXPECT_EQ(3, components.recordCount()) << "each row fails three statements";
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlOrvanDatabase]EnumComponents",
              tool.failures().back());
}

TEST_F(DiagnosticGrid, ListsARowWithoutANameUnderNoOtherName)
{
    tool.database.withComponent("A", 0, 0).withRow("vw_LoggerDiagnosticGrid", {{"Name", Null{}}});
    tool.database.withComponent("B", 0, 0);

    EXPECT_THAT(listed("name"), testing::UnorderedElementsAre("A", "", "B"));
    EXPECT_THAT(listed("fullName"), testing::UnorderedElementsAre("A (A)", "", "B (B)"));
    EXPECT_THAT(tool.failures(),
                testing::AllOf(testing::SizeIs(6),
                               testing::Each("Err.Number = 94 Err.Description = Invalid use of "
                                             "Null")))
        << "three statements read the name, each time that the components are listed";
}

TEST_F(DiagnosticGrid, ReadsForwardOnlyAndListsByAKeyset)
{
    tool.database.withComponent("A", 0, 0);

    flags("A");
    getComponentsObjectId(tool.context, "A");
    EnumComponents(tool.context);

    EXPECT_THAT(tool.database.cursors(),
                ElementsAre(Pair(CursorKind::forwardOnly, LockKind::optimistic),
                            Pair(CursorKind::forwardOnly, LockKind::optimistic),
                            Pair(CursorKind::keyset, LockKind::optimistic)));
}

TEST_F(DiagnosticGrid, LeavesEachRoutineOnItsEleventhErrorInTheDevelopmentHost)
{
    struct Case {
        const char* routine;
        std::function<void(ToolContext&)> run;
    };
    const Case cases[] = {
        {"getFlags", [](ToolContext& context) { EXPECT_EQ(0, getFlags(context, "A", 0)); }},
        {"getComponentsObjectId",
         [](ToolContext& context) { EXPECT_EQ("", getComponentsObjectId(context, "A")); }},
        {"EnumComponents",
         [](ToolContext& context) { EXPECT_EQ(0, EnumComponents(context).recordCount()); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.routine);
        TestTool fresh;
        fresh.module.developmentHost = true;

        c.run(fresh.context);

        EXPECT_EQ(11u, fresh.database.queries().size()) << "the closed connection's query";
        EXPECT_EQ("Error count exceeded, forcing exit from [mdlOrvanDatabase]" +
                      std::string(c.routine),
                  fresh.failures().back());
    }
}

TEST_F(DiagnosticGrid, LeavesAWriteOnItsEleventhRefusalInTheDevelopmentHost)
{
    tool.module.developmentHost = true;
    tool.database.withComponent("A", 7, 3).withProcedure(
        "csp_LoggerDiagnosticGridModify",
        {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"},
        [](const FakeDatabase::Call&) { throw RunTimeError(-2147217900, "No."); });

    SetFlags(tool.context, "A", 64);

    EXPECT_EQ(11u, tool.database.calls().size());
    EXPECT_EQ("Error count exceeded, forcing exit from [mdlOrvanDatabase]SetFlags",
              tool.failures().back());
    EXPECT_FALSE(tool.logged("Exiting [mdlOrvanDatabase]SetFlags_0"));
}
