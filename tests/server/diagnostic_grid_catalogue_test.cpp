#include "server/diagnostic_grid_catalogue.h"

#include "core/registry_store.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace mdlDiagnosticGrids;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* outOfRange = "Err.Number = 9 Err.Description = Subscript out of range";
constexpr const char* notSet =
    "Err.Number = 91 Err.Description = Object variable or With block variable not set";

struct DiagnosticGridCatalogue : testing::Test {
    TestTool tool;

    DiagnosticGridCatalogue()
    {
        tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
    }

    void withFile(const std::string& language, const std::string& content)
    {
        tool.files.with("C:\\Orvan\\GuiResources\\Resources\\" + language + "\\DiagnosticGrids_" +
                            language + ".xml",
                        content);
    }

    void open(const std::string& components)
    {
        withFile("ENU", "<DiagnosticGrids>" + components + "</DiagnosticGrids>");
        openDiagGrids(tool.context);
    }

    std::vector<std::string> levels(const std::string& name)
    {
        return EnumDiagnosticLevels(tool.context, name);
    }
    std::string text(const std::string& name) { return GetDiagnosticLevelText(tool.context, name); }
};

std::string levelsOf(const std::string& levels)
{
    return "<DiagnosticGrid name='A' text='Alpha'><DiagnosticLevels>" + levels +
           "</DiagnosticLevels></DiagnosticGrid>";
}

std::string cannotFind(const std::string& name)
{
    return "Cannot find " + name +
           " in GuidResources\\Resources\\Enu\\DiagnosticGrids_ENU.xml, skipping this component.  "
           "Check for case mismatch between this file and tbl_LoggerDiagnosticGrid.";
}

} // namespace

TEST_F(DiagnosticGridCatalogue, GivesTheTextsOfComponentsAndLevels)
{
    open(levelsOf(
        "<DiagnosticLevel level='1' text='one'/><DiagnosticLevel level='0' text='zero'/>"));

    EXPECT_EQ("Alpha", text("A"));
    EXPECT_THAT(levels("A"), ElementsAre("zero", "one"));
    EXPECT_THAT(tool.failures(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [mdlDiagnosticGrids]openDiagGrids_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlDiagnosticGrids]openDiagGrids_0"));
}

TEST_F(DiagnosticGridCatalogue, PrefersTheUsersLanguage)
{
    tool.languages.userDefault = 1036;
    withFile("FRA", "<DiagnosticGrids><DiagnosticGrid name='A' text='Un'/></DiagnosticGrids>");
    open("<DiagnosticGrid name='A' text='One'/>");

    EXPECT_EQ("Un", text("A"));
}

TEST_F(DiagnosticGridCatalogue, FallsBackToEnglishForALanguageWithoutAFile)
{
    tool.languages.userDefault = 1036;
    open("<DiagnosticGrid name='A' text='One'/>");

    EXPECT_EQ("One", text("A"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagnosticGridCatalogue, FallsBackToEnglishForALanguageThatTheTableLacks)
{
    tool.languages.userDefault = 1028;
    open("<DiagnosticGrid name='A' text='One'/>");

    EXPECT_EQ("One", text("A"));
    EXPECT_THAT(tool.files.asked(), testing::Contains(cataloguePath("C:\\Orvan", "ERROR")));
}

TEST_F(DiagnosticGridCatalogue, DoesNotFallBackFromAMalformedFileOfTheUsersLanguage)
{
    tool.languages.userDefault = 1036;
    withFile("FRA", "<DiagnosticGrids><DiagnosticGrid name='A' text='Un'");
    open("<DiagnosticGrid name='A' text='One'/>");

    EXPECT_EQ("A", text("A"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagnosticGridCatalogue, TakesAMissingOrMalformedFileForAnEmptyCatalogueInSilence)
{
    struct Case {
        const char* because;
        const char* content;
    };
    const Case cases[] = {
        {"no file", nullptr},
        {"an empty file", ""},
        {"no XML", "\x01\x02 not xml <<<"},
        {"cut off in the middle", "<DiagnosticGrids><DiagnosticGrid name='A' text='Al"},
        {"another document", "<Other><DiagnosticGrid name='A' text='Alpha'/></Other>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        fresh.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
        if (c.content)
            fresh.files.with("C:\\Orvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml",
                             c.content);

        openDiagGrids(fresh.context);

        EXPECT_THAT(fresh.failures(), IsEmpty());
        EXPECT_EQ("A", GetDiagnosticLevelText(fresh.context, "A"));
        EXPECT_THAT(EnumDiagnosticLevels(fresh.context, "A"), ElementsAre("", ""));
        EXPECT_THAT(fresh.failures("[mdlDiagnosticGrids]EnumDiagnosticLevels"),
                    ElementsAre(cannotFind("A")));
    }
}

TEST_F(DiagnosticGridCatalogue, AnswersBeforeItIsOpened)
{
    EXPECT_EQ("A", text("A"));
    EXPECT_THAT(levels("A"), ElementsAre("", ""));
}

TEST_F(DiagnosticGridCatalogue, FindsNoComponentWhoseNameDiffersInCase)
{
    open(levelsOf("<DiagnosticLevel level='0' text='zero'/>"));

    EXPECT_EQ("a", text("a"));
    EXPECT_THAT(levels("a"), ElementsAre("", ""));
    EXPECT_THAT(tool.failures(), ElementsAre(cannotFind("a")));
}

TEST_F(DiagnosticGridCatalogue, SizesTheLevelsByTheirCountAndSkipsOneBeyond)
{
    open(levelsOf("<DiagnosticLevel level='0' text='zero'/><DiagnosticLevel level='1' text='one'/>"
                  "<DiagnosticLevel level='5' text='five'/>"));

    EXPECT_THAT(levels("A"), ElementsAre("zero", "one", ""));
    EXPECT_THAT(tool.failures("[mdlDiagnosticGrids]EnumDiagnosticLevels"), ElementsAre(outOfRange));
}

TEST_F(DiagnosticGridCatalogue, TakesALevelWhoseNumberCannotBeReadForTheOneBeforeIt)
{
    struct Case {
        const char* because;
        const char* level;
        const char* zero;
        const char* logged;
    };
    const Case cases[] = {
        {"below the array, which is skipped", "level='-1'", "zero", outOfRange},
        {"past 16 bits", "level='40000'", "bad", "Err.Number = 6 Err.Description = Overflow"},
        {"a word", "level='x'", "bad", "Err.Number = 13 Err.Description = Type mismatch"},
        {"empty", "level=''", "bad", "Err.Number = 13 Err.Description = Type mismatch"},
        {"missing", "", "bad", notSet},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool fresh;
        fresh.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan");
        fresh.files.with("C:\\Orvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml",
                         "<DiagnosticGrids>" +
                             levelsOf("<DiagnosticLevel level='0' text='zero'/><DiagnosticLevel " +
                                      std::string(c.level) + " text='bad'/>") +
                             "</DiagnosticGrids>");
        openDiagGrids(fresh.context);

        EXPECT_THAT(EnumDiagnosticLevels(fresh.context, "A"), ElementsAre(c.zero, ""));
        EXPECT_THAT(fresh.failures(), ElementsAre(c.logged));
    }
}

TEST_F(DiagnosticGridCatalogue, GivesALevelWithoutATextThatOfTheOneBeforeIt)
{
    open(levelsOf("<DiagnosticLevel level='0'/><DiagnosticLevel level='1' text='one'/>"
                  "<DiagnosticLevel level='2'/>"));

    EXPECT_THAT(levels("A"), ElementsAre("", "one", "one"));
    EXPECT_THAT(tool.failures("[mdlDiagnosticGrids]EnumDiagnosticLevels"),
                ElementsAre(notSet, notSet));
}

TEST_F(DiagnosticGridCatalogue, GoesOnPastAnyNumberOfBadLevels)
{
    std::string many;
    for (int number = 0; number < 15; ++number) many += "<DiagnosticLevel level='99' text='bad'/>";
    open(levelsOf(many + "<DiagnosticLevel level='0' text='zero'/>"));

    EXPECT_EQ("zero", levels("A").front());
    EXPECT_EQ(15u, tool.failures().size());
}

TEST_F(DiagnosticGridCatalogue, HasNoBoundsForAComponentWithoutLevels)
{
    open("<DiagnosticGrid name='A' text='Alpha'/>");

    EXPECT_THAT(levels("A"), IsEmpty());
    EXPECT_THAT(tool.failures(), ElementsAre(outOfRange));
}

TEST_F(DiagnosticGridCatalogue, LogsAComponentWithoutATextAndGivesTheEmptyText)
{
    open("<DiagnosticGrid name='A'/>");

    EXPECT_EQ("", text("A"));
    EXPECT_THAT(tool.failures("[mdlDiagnosticGrids]GetDiagnosticLevelText"), ElementsAre(notSet));
}

TEST_F(DiagnosticGridCatalogue, LogsANameWithAQuoteAndGivesTheName)
{
    open("<DiagnosticGrid name='A' text='Alpha'/>");

    EXPECT_EQ("O'Brien", text("O'Brien"));
    EXPECT_EQ(1u, tool.failures().size());
    EXPECT_THAT(levels("O'Brien"), ElementsAre("", ""));
}

TEST_F(DiagnosticGridCatalogue, TakesTheFirstOfTwoComponentsOfOneName)
{
    open("<DiagnosticGrid name='A' text='first'/><DiagnosticGrid name='A' text='second'/>");

    EXPECT_EQ("first", text("A"));
}
