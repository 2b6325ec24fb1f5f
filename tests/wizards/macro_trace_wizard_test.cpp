#include "wizards/macro_trace_pages.h"
#include "wizards/macro_trace_step.h"

#include "traces/macro_trace_catalogue.h"
#include "wizards/wizards_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string trace(const std::string& name, const std::string& content = "")
{
    return "<TRACE NAME='" + name + "'><DESCRIPTION>about " + name + "</DESCRIPTION>" + content +
           "</TRACE>";
}

constexpr const char* filling = "[ppgMacroTrace1]populateMacroTracesTreeview";
constexpr const char* level3 = "<DIAG GROUP='A'><FLAG ID='3'/></DIAG>";
constexpr const char* level4 = "<DIAG GROUP='A'><FLAG ID='4'/></DIAG>";

struct MacroTraceWizard : WizardTest {
    ppgMacroTrace0Welcome& welcome = add<ppgMacroTrace0Welcome>();
    ppgMacroTrace1& step = add<ppgMacroTrace1>();
    ppgMacroTrace3Final& last = add<ppgMacroTrace3Final>();
    TreeView& tree = step.treeviewMacroTrace;

    MacroTraceWizard()
    {
        tool.database.withComponent("A", 0, 0);
        withFile("HTcalls.xml", "<GA NAME='Calls'><DESCRIPTION>all calls</DESCRIPTION>" +
                                    trace("Ring", level3) + trace("Busy", level4) + "</GA>");
        withFile("HTmail.xml", "<GA NAME='Mail'>" + trace("Send") + "</GA>");
    }

    void openAtStep()
    {
        sheet->show();
        ASSERT_TRUE(sheet->next());
    }

    std::string summary() { return captionOf(last, "lblSummary"); }
};

} // namespace

TEST_F(MacroTraceWizard, ShowsTheTextsOfEachPage)
{
    sheet->show();
    expectCaptions(
        {{"lblDefinitions",
          "A Macro Trace is defined as a collection of individual component trace levels "
          "that help diagnose a particular problem such as Message Waiting Indicator "
          "problems."},
         {"lblPurpose", "This wizard allows you to enable or disable Macro Traces."},
         {"lblWelcome", "Welcome to the Configure Macro Traces Wizard"}});
    sheet->next();
    expectCaptions(
        {{"lblStepDescription",
          "Select the type of problem you wish to diagnose from the list of Macro Traces "
          "below.  Clear the check from any pre-selected Macro Traces that you wish to "
          "disable."},
         {"lblStepTitle", "Configure Macro Traces"}});
    tick(tree, "Ring");
    sheet->next();
    expectCaptions({{"lblCompletionStatment", "The following Macro Traces were configured."},
                    {"lblCompletionTitle", "Completing the Configure Macro Traces Wizard."}});
}

TEST_F(MacroTraceWizard, ListsGroupsInBoldWithTheirMacroTracesBelow)
{
    sheet->show();
    EXPECT_THAT(rowsOf(tree), ElementsAre("Calls", "  Ring", "  Busy", "Mail", "  Send"));
    EXPECT_TRUE(tree.checkBoxes());
    EXPECT_TRUE(tree.item(1).bold());
    EXPECT_FALSE(tree.item(2).bold());
    EXPECT_FALSE(tree.item(1).expanded());
    EXPECT_EQ("Calls - all calls", tree.item(1).key());
    EXPECT_EQ("Ring - about Ring", tree.item(2).key());
    EXPECT_EQ("Mail", tree.item(4).key()) << "a group may do without a description";
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceWizard, ShowsEveryTickedMacroTraceInItsOpenedGroup)
{
    recorded("Mail", "Send", 1);
    sheet->show();
    EXPECT_THAT(rowsOf(tree), ElementsAre("Calls", "  Ring", "  Busy", "Mail", "  [x] Send"));
    EXPECT_FALSE(tree.item(1).expanded());
    EXPECT_TRUE(tree.item(4).expanded());
    EXPECT_EQ(&tree.item(1), tree.nodeInSight()) << "scrolled back to the top";
}

TEST_F(MacroTraceWizard, TheTicksAreThoseOfTheRecordWhenTheSheetOpens)
{
    mdlTraces::initMacroTraces(tool.context);
    recorded("Calls", "Busy", 1);
    sheet->show();
    EXPECT_TRUE(tree.item(3).checked()) << "the catalogue was built before the record changed";
}

TEST_F(MacroTraceWizard, AHiddenGroupDoesNotAppearAndItsMacroTracesStayAsRecorded)
{
    withFile("HTcalls.xml", "<GA NAME='Calls' DONTSHOW='1'>" + trace("Ring", level3) + "</GA>");
    recorded("Calls", "Ring", 1);
    openAtStep();
    EXPECT_THAT(rowsOf(tree), ElementsAre("Mail", "  Send"));

    tick(tree, "Send");
    sheet->next();
    EXPECT_EQ(1, enabledRecord("Calls", "Ring"));
    EXPECT_THAT(wordsSet(), IsEmpty());
}

TEST_F(MacroTraceWizard, ATickAppliesOnNextAndIsListed)
{
    openAtStep();
    tick(tree, "Ring");
    EXPECT_EQ(0, flags("A"));
    ASSERT_TRUE(sheet->next());

    EXPECT_EQ(8, flags("A"));
    EXPECT_EQ(1, enabledRecord("Calls", "Ring"));
    EXPECT_EQ(1, signalsSent());
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        Calls - Ring\r\n", summary());
    EXPECT_EQ(wizardButton::finishEnabled, forward());
    ASSERT_TRUE(sheet->finish());
    EXPECT_EQ(1, signalsSent());
}

TEST_F(MacroTraceWizard, ATickAndAnUntickAreListedAsDisabledEvenIfItWasNeverEnabled)
{
    openAtStep();
    tick(tree, "Ring");
    tick(tree, "Ring", false);
    sheet->next();
    EXPECT_EQ("The following Macro Traces were disabled:\r\n        Calls - Ring", summary());
    EXPECT_EQ(0, flags("A"));
}

TEST_F(MacroTraceWizard, ListsInTheOrderOfTheFirstChange)
{
    openAtStep();
    for (const char* name : {"Send", "Busy", "Ring", "Send"}) tick(tree, name);
    tick(tree, "Busy", false);
    sheet->next();
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        Mail - Send"
              "\r\n        Calls - Ring\r\n"
              "The following Macro Traces were disabled:\r\n        Calls - Busy",
              summary());
}

TEST_F(MacroTraceWizard, TickingAGroupTicksAllItsMacroTracesAndListsEach)
{
    openAtStep();
    tick(tree, "Calls");
    EXPECT_THAT(rowsOf(tree),
                ElementsAre("[x] Calls", "  [x] Ring", "  [x] Busy", "Mail", "  Send"));
    EXPECT_TRUE(tree.item(1).expanded());
    sheet->next();
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        Calls - Ring"
              "\r\n        Calls - Busy\r\n",
              summary());
    EXPECT_EQ(24, flags("A"));
}

TEST_F(MacroTraceWizard, NextStaysDisabledUntilTheTreeChanges)
{
    openAtStep();
    EXPECT_EQ(wizardButton::nextDisabled, forward());
    EXPECT_TRUE(sheet->canGoBack());
    EXPECT_FALSE(sheet->next());
    tick(tree, "Ring");
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
}

TEST_F(MacroTraceWizard, BackAndForwardDisablesNextAgainAndKeepsTheTree)
{
    openAtStep();
    tick(tree, "Ring");
    welcome.lblWelcome.setCaption("changed meanwhile");
    ASSERT_TRUE(sheet->back());
    EXPECT_EQ("Welcome to the Configure Macro Traces Wizard", welcome.lblWelcome.caption());
    EXPECT_FALSE(sheet->canGoBack());

    ASSERT_TRUE(sheet->next());
    EXPECT_EQ(wizardButton::nextDisabled, forward());
    EXPECT_TRUE(tree.item(2).checked());
}

TEST_F(MacroTraceWizard, BackFromTheLastPageAndNextAgainAppliesTheChoiceASecondTime)
{
    openAtStep();
    tick(tree, "Ring");
    sheet->next();
    ASSERT_TRUE(sheet->back());
    tick(tree, "Busy");
    ASSERT_TRUE(sheet->next());
    EXPECT_EQ(2, signalsSent());
    EXPECT_THAT(wordsSet(), ElementsAre("A=8", "A=8", "A=24"));
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        Calls - Ring"
              "\r\n        Calls - Busy\r\n",
              summary());
}

TEST_F(MacroTraceWizard, UnderTheDevelopmentHostNextIsEnabledAndTheSummaryMayBeEmpty)
{
    tool.context.g_bDebugMode = true;
    openAtStep();
    EXPECT_EQ(wizardButton::nextEnabled, forward());
    ASSERT_TRUE(sheet->next());
    EXPECT_EQ("", summary());
    EXPECT_EQ(1, signalsSent()) << "an empty choice is applied too";
}

TEST_F(MacroTraceWizard, TheSheetIsHandedOnByTheStepPage)
{
    EXPECT_EQ(424, errorOf([&] { shared->m_PropertySheet(); }));
    sheet->show();
    EXPECT_EQ(sheet.get(), &shared->m_PropertySheet());
}

TEST_F(MacroTraceWizard, RestingThePointerOnANodeShowsItsDescription)
{
    sheet->show();
    tree.hitTester = [&](int x, int) { return x == 0 ? nullptr : &tree.item(x); };
    tree.mouseMove(2, 0);
    EXPECT_EQ("Ring - about Ring", tree.toolTip());
    tree.mouseMove(0, 0);
    EXPECT_EQ("Ring - about Ring", tree.toolTip()) << "beside the nodes it stays";
}

TEST_F(MacroTraceWizard, AMacroTraceWithoutADescriptionIsLoggedAndHasNoKey)
{
    withFile("HTmail.xml", "<GA NAME='Mail'><TRACE NAME='Bare'/></GA>");
    openAtStep();
    EXPECT_THAT(tool.failures(filling), ElementsAre(notSet));
    EXPECT_EQ("Bare", tree.item(5).text());
    EXPECT_EQ("", tree.item(5).key());
    tick(tree, "Bare");
    sheet->next();
    EXPECT_EQ(1, enabledRecord("Mail", "Bare")) << "it can be chosen all the same";
}

TEST_F(MacroTraceWizard, AMacroTraceThatIsThereTwiceGivesTwoNodesAndTheSecondKeyFails)
{
    withFile("HTmail.xml", "<GA NAME='Mail'>" + trace("Send") + trace("Send") + "</GA>");
    sheet->show();
    EXPECT_THAT(rowsOf(tree), ElementsAre("Calls", "  Ring", "  Busy", "Mail", "  Send", "  Send"));
    EXPECT_EQ("", tree.item(6).key());
    ASSERT_EQ(1u, tool.failures(filling).size());
    EXPECT_THAT(tool.failures(filling).front(), testing::HasSubstr("Err.Number = 35602"));
}

TEST_F(MacroTraceWizard, TheEleventhErrorStopsTheFillingWithWhatStands)
{
    std::string bare;
    for (int number = 1; number <= 14; ++number)
        bare += "<TRACE NAME='Bare" + std::to_string(number) + "'/>";
    withFile("HTmail.xml", "<GA NAME='Mail'>" + bare + "</GA>");
    sheet->show();
    EXPECT_EQ("Bare11", tree.item(tree.count()).text());
    EXPECT_EQ(12u, tool.failures(filling).size());
    EXPECT_TRUE(tool.logged("Error count exceeded, forcing exit from " + std::string(filling)));
}

TEST_F(MacroTraceWizard, ATickOfAGroupWithoutMacroTracesRaises91)
{
    withFile("HTmail.xml", "<GA NAME='Mail'></GA>");
    openAtStep();
    EXPECT_EQ(91, errorOf([&] { tick(tree, "Mail"); }));
    EXPECT_EQ(wizardButton::nextDisabled, forward());
}

TEST_F(MacroTraceWizard, WithoutDefinitionsTheTreeIsEmptyAndTheErrorIsLogged)
{
    tool.context.g_strMacroTraceFolder = "C:\\Nowhere";
    EXPECT_NO_THROW(sheet->show());
    EXPECT_EQ(0, tree.count());
    EXPECT_EQ(1u, tool.failures(filling).size()) << "there is no first node to scroll to";
}

TEST_F(MacroTraceWizard, TracesItsRoutinesInTheToolsLog)
{
    openAtStep();
    tick(tree, "Ring");
    sheet->next();
    for (const char* routine : {filling, "[ppgMacroTrace1]IWizardPage_Next",
                                "[ppgMacroTrace3Final]IWizardPage_Activate"}) {
        EXPECT_TRUE(tool.logged("Entering " + std::string(routine))) << routine;
        EXPECT_TRUE(tool.logged("Exiting " + std::string(routine))) << routine;
    }
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceWizard, CancelChangesNothing)
{
    openAtStep();
    tick(tree, "Ring");
    EXPECT_TRUE(sheet->cancel());
    EXPECT_EQ(0, signalsSent());
    EXPECT_EQ(0, flags("A"));
}
