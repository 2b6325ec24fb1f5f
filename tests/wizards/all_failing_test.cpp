#include "wizards/gather_wizard_fixture.h"
#include "wizards/macro_trace_pages.h"
#include "wizards/macro_trace_step.h"
#include "wizards/micro_trace_wizard.h"
#include "wizards/reset_wizard.h"
#include "wizards/wizards_fixture.h"

namespace {

/// A wizard on a machine where nothing works.
struct AllFailing : WizardTest {
    void failEverything()
    {
        tool.files.failingAll(70);
        tool.registry.closed("Software").closed("System");
        tool.eventReporter.failing(429);
        tool.database.unreachable().breakConnection();
    }

    /// Uses what each page has to offer, forward and back.
    void useEverything()
    {
        EXPECT_NO_THROW(sheet->show());
        for (int place = 1; place <= sheet->pageCount(); ++place) {
            SCOPED_TRACE(sheet->page(place).name());
            for (const PageControl& declared : sheet->currentPage().controls())
                if (auto* box = dynamic_cast<CheckBox*>(declared.control)) {
                    EXPECT_NO_THROW(box->click());
                }
            sheet->SetWizardButtons(true, wizardButton::nextEnabled);
            EXPECT_NO_THROW(sheet->help());
            EXPECT_NO_THROW(sheet->next());
            EXPECT_NO_THROW(sheet->back());
            sheet->SetWizardButtons(true, wizardButton::nextEnabled);
            EXPECT_NO_THROW(sheet->next());
        }
        sheet->SetWizardButtons(true, wizardButton::finishEnabled);
        EXPECT_NO_THROW(sheet->finish());
        EXPECT_TRUE(sheet->closed());
    }

    template <typename... Pages>
    void expectToGoOn()
    {
        (add<Pages>(), ...);
        failEverything();
        useEverything();
    }
};

} // namespace

TEST_F(AllFailing, TheMacroTraceWizardGoesOnPastAllErrors)
{
    expectToGoOn<ppgMacroTrace0Welcome, ppgMacroTrace1, ppgMacroTrace3Final>();
}

TEST_F(AllFailing, TheMicroTraceWizardGoesOnPastAllErrors)
{
    expectToGoOn<ppgMicroTrace00Welcome, ppgMicroTrace01Step, ppgMicroTrace99Final>();
}

TEST_F(AllFailing, TheResetWizardGoesOnPastAllErrors)
{
    expectToGoOn<ppgDisableAllTraces0>();
}

TEST_F(AllFailing, TheGatherWizardGoesOnPastAllErrors)
{
    expectToGoOn<ppgGatherLogs00Welcome, ppgGatherLogs01Step, ppgGatherLogs02Step,
                 ppgGatherLogs03Step, ppgGatherLogs99Final>();
}

TEST_F(AllFailing, AGatherRunGoesOnPastAllErrorsInEachWay)
{
    for (const int option :
         {gatherOption::standard, gatherOption::byHand, gatherOption::timeFrame}) {
        SCOPED_TRACE(option);
        sheet = std::make_shared<WizardSheet>("Gather");
        auto& options = add<ppgGatherLogs00Welcome>().optGatherLogs;
        add<ppgGatherLogs01Step>();
        add<ppgGatherLogs02Step>();
        auto& progress = add<ppgGatherLogs03Step>();
        add<ppgGatherLogs99Final>();
        failEverything();
        tool.processes.failing(53);
        EXPECT_NO_THROW(sheet->show());
        options.click(option);
        EXPECT_NO_THROW(sheet->next());
        while (sheet->currentPosition() < 4) {
            sheet->SetWizardButtons(true, wizardButton::nextEnabled);
            EXPECT_NO_THROW(sheet->next());
        }
        EXPECT_NO_THROW(sheet->tick(progress.tmrDelayStart));
        EXPECT_EQ("ppgGatherLogs99Final", sheet->currentPage().name());
    }
}

TEST_F(AllFailing, ErrorsThatBeginWithAFilledTreeAreGonePastToo)
{
    withFile("HTcalls.xml", "<GA NAME='Calls'><TRACE NAME='Ring'><DESCRIPTION/>"
                            "<DIAG GROUP='A'><FLAG ID='3'/></DIAG></TRACE></GA>");
    tool.database.withComponent("A", 0, 0);
    add<ppgMacroTrace0Welcome>();
    auto& tree = add<ppgMacroTrace1>().treeviewMacroTrace;
    add<ppgMacroTrace3Final>();
    sheet->show();
    sheet->next();
    tick(tree, "Ring");
    failEverything();
    EXPECT_NO_THROW(sheet->next());
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        Calls - Ring\r\n",
              captionOf(sheet->currentPage(), "lblSummary"))
        << "it lists what was asked for, not what succeeded";
}
