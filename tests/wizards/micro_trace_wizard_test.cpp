#include "wizards/micro_trace_wizard.h"

#include "server/diagnostic_grid_catalogue.h"
#include "wizards/wizards_fixture.h"

#include <limits>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string component(const std::string& name, const std::string& text,
                      const std::vector<std::string>& levels)
{
    std::string content;
    for (std::size_t level = 0; level < levels.size(); ++level)
        content +=
            "<DiagnosticLevel level='" + std::to_string(level) + "' text='" + levels[level] + "'/>";
    return "<DiagnosticGrid name='" + name + "' text='" + text + "'><DiagnosticLevels>" + content +
           "</DiagnosticLevels></DiagnosticGrid>";
}

std::vector<std::string> numbered(int count)
{
    std::vector<std::string> levels;
    for (int level = 0; level < count; ++level) levels.push_back("level" + std::to_string(level));
    return levels;
}

struct MicroTraceWizard : WizardTest {
    ppgMicroTrace00Welcome& welcome = add<ppgMicroTrace00Welcome>();
    ppgMicroTrace01Step& step = add<ppgMicroTrace01Step>();
    ppgMicroTrace99Final& last = add<ppgMicroTrace99Final>();
    TreeView& tree = step.treeviewMicroTraces;

    MicroTraceWizard() { tool.registry.withText(baseKey, "InstalledFolderPath", "C:\\Orvan"); }

    void openWith(const std::string& components)
    {
        tool.files.with("C:\\Orvan\\GuiResources\\Resources\\ENU\\DiagnosticGrids_ENU.xml",
                        "<DiagnosticGrids>" + components + "</DiagnosticGrids>");
        mdlDiagnosticGrids::openDiagGrids(tool.context);
        sheet->show();
        ASSERT_TRUE(sheet->next());
    }
};

} // namespace

TEST_F(MicroTraceWizard, ShowsTheTextsOfEachPage)
{
    tool.database.withComponent("A", 0, 0);
    sheet->show();
    expectCaptions(
        {{"lblDefinitions",
          "A Micro Trace is defined as an individual component level trace.  Each "
          "component of the system has up to 32 trace levels.  Each trace level provides "
          "a certain type of tracing information for that component."},
         {"lblPurpose", "This wizard allows you to enable or disable Micro Traces."},
         {"lblWelcome", "Welcome to the Configure Micro Traces Wizard"}});
    EXPECT_EQ((WizardButtons{false, wizardButton::nextEnabled, ""}), sheet->buttons());
    sheet->next();
    expectCaptions(
        {{"lblStepDescription",
          "Select any components and levels from the list below that you want to enable. "
          " Clear the check from any levels that you no longer want."},
         {"lblStepTitle", "Configure Micro Traces"}});
    tree.checkByPerson(tree.item(2), true);
    sheet->next();
    expectCaptions(
        {{"lblCompletionStatment", "The system now reflects the Micro Traces you configured."},
         {"lblCompletionTitle", "Completing the Configure Micro Traces Wizard"}});
    EXPECT_EQ((WizardButtons{true, wizardButton::finishEnabled, ""}), sheet->buttons());
}

TEST_F(MicroTraceWizard, ListsComponentsWithTheirLevelsTickedAsTheGridHasThem)
{
    tool.database.withComponent("B", 2, 0).withComponent("A", 1, 0);
    openWith(component("A", "Zeta", {"first", "second"}) + component("B", "Beta", {"one", "two"}));
    EXPECT_THAT(rowsOf(tree), ElementsAre("Beta (B)", "  00  one", "  [x] 01  two", "Zeta (A)",
                                          "  [x] 00  first", "  01  second"));
    EXPECT_EQ("B", tree.item(1).key());
    EXPECT_EQ("B - 01  two", tree.item(3).key());
    EXPECT_TRUE(tree.item(1).expanded()) << "a ticked level is in sight";
    EXPECT_FALSE(tree.item(1).checked()) << "a component's own box is never ticked at filling";
    EXPECT_EQ(&tree.item(1), tree.nodeInSight());
    EXPECT_TRUE(tree.visible());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MicroTraceWizard, LevelsBelow10HaveALeadingZero)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", numbered(12)));
    EXPECT_EQ("09  level9", tree.item(11).text());
    EXPECT_EQ("10  level10", tree.item(12).text());
}

TEST_F(MicroTraceWizard, Level31IsShownButNeverTicked)
{
    tool.database.withComponent("A", std::numeric_limits<std::int32_t>::min() | 1, 0);
    openWith(component("A", "Alpha", numbered(32)));
    EXPECT_TRUE(tree.item(2).checked());
    EXPECT_EQ("31  level31", tree.item(33).text());
    EXPECT_FALSE(tree.item(33).checked());
}

TEST(PlaceholderLevel, IsToldByItsTextInAnyCase)
{
    struct Case {
        const char* because;
        const char* text;
        bool placeholder;
    };
    const Case cases[] = {
        {"the whole text", "reserved", true},
        {"in any mix of case", "ReSeRvEd", true},
        {"with more words behind it is a level", "Reserved for calls", false},
        {"with a blank behind it too", "reserved ", false},
        {"the first 13 characters", "Not Available", true},
        {"whatever follows", "NOT AVAILABLEness of calls", true},
        {"not from the middle", "is not available", false},
        {"the first 11 characters", "not defined", true},
        {"whatever follows", "Not Defined yet", true},
        {"less than the word", "not define", false},
        {"an empty text is a level", "", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.text) + ": " + c.because);
        EXPECT_EQ(c.placeholder, isPlaceholderLevel(c.text));
    }
}

TEST_F(MicroTraceWizard, PlaceholderLevelsAreLeftOutAndTheOthersKeepTheirNumbers)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"Reserved", "calls", "not available here", "mail"}));
    EXPECT_THAT(rowsOf(tree), ElementsAre("Alpha (A)", "  01  calls", "  03  mail"));
}

TEST_F(MicroTraceWizard, AComponentThatTheCatalogueDoesNotKnowShowsTwoNamelessLevels)
{
    tool.database.withComponent("New", 2, 0);
    openWith("");
    EXPECT_THAT(rowsOf(tree), ElementsAre("New (New)", "  00  ", "  [x] 01  "));
    tree.checkByPerson(tree.item(2), true);
    sheet->next();
    EXPECT_EQ(3, flags("New")) << "their ticks work as for any level";
}

TEST_F(MicroTraceWizard, ATickedComponentTicksAllItsShownLevels)
{
    tool.database.withComponent("A", 0, 0).withComponent("B", 0, 0);
    openWith(component("A", "Alpha", {"a", "reserved", "c"}) + component("B", "Beta", {"b"}));
    tick(tree, "Alpha (A)");
    EXPECT_THAT(rowsOf(tree),
                ElementsAre("[x] Alpha (A)", "  [x] 00  a", "  [x] 02  c", "Beta (B)", "  00  b"));
    EXPECT_TRUE(tree.item(1).expanded());
    sheet->next();
    EXPECT_EQ(5, flags("A"));
}

TEST_F(MicroTraceWizard, NextAppliesTheWholeTreeAndClearsHiddenLevels)
{
    tool.database.withComponent("A", 7, 4);
    openWith(component("A", "Alpha", {"a", "reserved", "reserved"}));
    tick(tree, "00  a", false);
    sheet->next();
    EXPECT_EQ(4, flags("A")) << "level 1 is cleared, and level 2 is held by the default flags";
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MicroTraceWizard, EachNextAppliesTheTreeAgain)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"a", "b"}));
    tick(tree, "00  a");
    sheet->next();
    sheet->back();
    EXPECT_EQ(wizardButton::nextDisabled, forward());
    EXPECT_TRUE(tree.item(2).checked());
    tick(tree, "01  b");
    sheet->next();
    EXPECT_EQ(2, signalsSent());
    EXPECT_EQ(3, flags("A"));
}

TEST_F(MicroTraceWizard, NextWaitsForATickOutsideTheDevelopmentHost)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"a"}));
    EXPECT_EQ((WizardButtons{true, wizardButton::nextDisabled, ""}), sheet->buttons());
    tick(tree, "00  a");
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
}

TEST_F(MicroTraceWizard, UnderTheDevelopmentHostNextIsEnabledFromTheStart)
{
    tool.context.g_bDebugMode = true;
    tool.database.withComponent("A", 1, 0);
    openWith(component("A", "Alpha", {"a"}));
    EXPECT_EQ(wizardButton::nextEnabled, forward());
    ASSERT_TRUE(sheet->next());
    EXPECT_EQ(1, flags("A"));
}

TEST_F(MicroTraceWizard, AnErrorInTheFillingLeavesTheTreeIncompleteAndHidden)
{
    tool.database.withComponent("A", 0, 0).withComponent("B", 0, 0);
    openWith(component("A", "Alpha", {"a"}) + "<DiagnosticGrid name='B' text='Beta'/>");
    EXPECT_THAT(rowsOf(tree), ElementsAre("Alpha (A)", "  00  a", "Beta (B)"));
    EXPECT_FALSE(tree.visible());
    EXPECT_THAT(tool.failures("[ppgMicroTrace01Step]IMMCPropertyPage_Initialize"),
                ElementsAre(outOfRange));

    tree.checkByPerson(tree.item(2), true);
    EXPECT_EQ(wizardButton::nextDisabled, forward()) << "a hidden tree takes no tick";
    EXPECT_TRUE(sheet->cancel());
}

TEST_F(MicroTraceWizard, WithoutComponentsTheTreeStaysHidden)
{
    sheet->show();
    EXPECT_EQ(0, tree.count());
    EXPECT_FALSE(tree.visible());
    EXPECT_THAT(tool.failures("[ppgMicroTrace01Step]IMMCPropertyPage_Initialize"),
                Contains(testing::HasSubstr("Err.Number = 35600")));
}

TEST_F(MicroTraceWizard, TheFillingIsLeftInTheLogThoughItWasNotEntered)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"a"}));
    EXPECT_TRUE(tool.logged("Exiting [ppgMicroTrace01Step]populateMicroTracesTreeview"));
    EXPECT_FALSE(tool.logged("Entering [ppgMicroTrace01Step]populateMicroTracesTreeview"));
}

TEST_F(MicroTraceWizard, TheTreeIsFilledOnceForTheLifeOfTheSheet)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"a"}));
    tool.database.withComponent("B", 0, 0);
    sheet->back();
    sheet->next();
    EXPECT_THAT(rowsOf(tree), ElementsAre("Alpha (A)", "  00  a"));
}

TEST_F(MicroTraceWizard, CancelChangesNothing)
{
    tool.database.withComponent("A", 0, 0);
    openWith(component("A", "Alpha", {"a"}));
    tick(tree, "00  a");
    EXPECT_TRUE(sheet->cancel());
    EXPECT_EQ(0, flags("A"));
    EXPECT_EQ(0, signalsSent());
}
