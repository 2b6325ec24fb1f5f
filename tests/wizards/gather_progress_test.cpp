#include "gather/cancel.h"
#include "wizards/gather_wizard_fixture.h"

#include <functional>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A standard gather whose current log is long enough to let events in while it is read.
struct GatherProgressPage : GatherWizardTest {
    const std::string log = "diag_KoCSMgr_20051008_120000.txt";
    const std::string copy = "C:\\Out\\diag_KoCSMgr_20051008_120000_fmtd.txt";
    TreeView& steps = progress->treeviewSteps;

    GatherProgressPage()
    {
        withCurrentLog("KoCSMgr", log, rawLog(2500));
        withEventLog("Application");
    }

    void arrive() { start(gatherOption::standard); }

    /// Does something once, at the first moment that a run lets events in.
    void duringTheRun(std::function<void()> event)
    {
        tool.desktop.onPump([this, event = std::move(event)] {
            if (tool.desktop.pumps() == 1) event();
        });
    }

    /// The sheet as a page sees it while the person works in another program: the keystroke that
    /// is to press Next goes astray.
    struct SheetInTheBackground final : PageSheet {
        explicit SheetInTheBackground(PageSheet& behind) : sheet(behind) {}
        void SetWizardButtons(bool enableBack, int nextOrFinish) override
        {
            sheet.SetWizardButtons(enableBack, nextOrFinish);
        }
        void pressNext() override { ++keystrokes; }

        PageSheet& sheet;
        int keystrokes = 0;
    };

    std::size_t eventLogsCaptured() const { return tool.eventLogExporter.exports().size(); }
};

} // namespace

TEST_F(GatherProgressPage, ShowsItsTextsAndTheJobAsATreeOfSteps)
{
    arrive();
    expectCaptions({{"lblStepTitle", "Gathering logs"},
                    {"lblStepDescription", "The following logs are being gathered for you."},
                    {"lblCurrentProcess", "Processing"},
                    {"lblOverallProgress", "Overall progress..."}});
    EXPECT_EQ((WizardButtons{true, wizardButton::nextDisabled, ""}), sheet->buttons());
    EXPECT_THAT(rowsOf(steps), ElementsAre("Orvan Logs", "  " + log, "Windows Event Logs",
                                           "  Application", "  System"));
    EXPECT_FALSE(steps.checkBoxes());
    EXPECT_TRUE(steps.item(1).expanded());
    EXPECT_TRUE(steps.item(3).expanded());
}

TEST_F(GatherProgressPage, TheServersBranchIsNotTranslatedAndTheOtherIs)
{
    tool.languages.with("C:\\fr.dll", {{1127, "Journaux Windows"}});
    tool.context.language.g_hResourceLibrary = tool.languages.loadLibrary("C:\\fr.dll");
    arrive();
    EXPECT_EQ("Orvan Logs", steps.roots()[0]->text());
    EXPECT_EQ("Journaux Windows", steps.roots()[1]->text());
}

TEST_F(GatherProgressPage, WaitsHalfASecondBeforeTheRunAndRunsOnce)
{
    arrive();
    EXPECT_EQ(500, progress->tmrDelayStart.interval());
    EXPECT_TRUE(progress->tmrDelayStart.running());
    EXPECT_EQ(1000, progress->timerCheckForCancel.interval());
    EXPECT_EQ(0u, eventLogsCaptured());
    runStarts();
    EXPECT_EQ(2u, eventLogsCaptured());
    EXPECT_FALSE(progress->tmrDelayStart.running());
    runStarts();
    EXPECT_EQ(2u, eventLogsCaptured());
}

TEST_F(GatherProgressPage, GoesOnByItselfWhenTheRunHasReturned)
{
    arrive();
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_TRUE(tool.files.fileExists(copy));
    EXPECT_EQ(3.0F, progress->progressbarOverall.value());
    EXPECT_EQ(0, progress->timerCheckForCancel.interval());
}

TEST_F(GatherProgressPage, StaysWithNextEnabledWhenTheKeystrokeReachesAnotherProgram)
{
    arrive();
    SheetInTheBackground background(*sheet);
    progress->IMMCPropertyPage_Initialize(nullptr, background);
    ASSERT_EQ(wizardButton::nextDisabled, forward());

    runStarts();

    EXPECT_EQ(1, background.keystrokes);
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
    EXPECT_EQ(wizardButton::nextEnabled, forward());
    EXPECT_TRUE(sheet->next()) << "the person can click it";
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
}

TEST_F(GatherProgressPage, UnderTheDevelopmentHostNextIsEnabledThroughoutAndItGoesOnToo)
{
    tool.context.g_bDebugMode = true;
    arrive();
    EXPECT_EQ(wizardButton::nextEnabled, forward());
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
}

TEST_F(GatherProgressPage, AJobWithoutAFrameRunsWithoutDates)
{
    shared->m_dateStart = dateOf(2005, 10, 8);
    shared->m_dateEnd = dateOf(2005, 10, 9);
    arrive();
    runStarts();
    EXPECT_EQ("", tool.context.g_strTraceDatabase);
    EXPECT_TRUE(tool.files.fileExists(copy));
}

TEST_F(GatherProgressPage, ATimeFrameMakesADatabase)
{
    tool.files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank");
    start(gatherOption::timeFrame);
    sheet->next();
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_NE("", tool.context.g_strTraceDatabase);
    EXPECT_FALSE(tool.files.fileExists(copy));
}

TEST_F(GatherProgressPage, StoresTheFolderThatTheRunMade)
{
    shared->m_LogDestinationDirectory = "C:\\Out\\new";
    arrive();
    EXPECT_FALSE(tool.files.folderExists("C:\\Out\\new"));
    runStarts();
    EXPECT_TRUE(tool.files.folderExists("C:\\Out\\new"));
    EXPECT_EQ("C:\\Out\\new", shared->m_LogDestinationDirectory);
}

TEST_F(GatherProgressPage, ShowsItsTreeInTheLanguagesFont)
{
    tool.context.language.g_lngCurrentLanguage = 1041;
    arrive();
    EXPECT_EQ(&progress->treeviewSteps, progress->control("treeviewSteps"));
    EXPECT_EQ(128, progress->font().charset);
}

TEST_F(GatherProgressPage, BackLeadsToThePageOfTheWayWhateverComesBeforeIt)
{
    shared->m_bTimeFrameLogs = true;
    int nextPage = 0;
    progress->IWizardPage_Back(nextPage);
    EXPECT_EQ(3, nextPage);
}

TEST_F(GatherProgressPage, BackLeadsToThePageOfTheWay)
{
    struct Case {
        int option;
        const char* page;
    };
    const Case cases[] = {{gatherOption::standard, "ppgGatherLogs00Welcome"},
                          {gatherOption::timeFrame, "ppgGatherLogs02Step"},
                          {gatherOption::byHand, "ppgGatherLogs01Step"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.page);
        makeSheet();
        start(c.option);
        if (c.option == gatherOption::byHand) tick(selection->treeviewLogsToGather, "Orvan Logs");
        if (c.option != gatherOption::standard) {
            ASSERT_TRUE(sheet->next());
        }
        ASSERT_TRUE(sheet->back());
        EXPECT_EQ(c.page, onShow());
        EXPECT_EQ(0, progress->timerCheckForCancel.interval());
    }
}

TEST_F(GatherProgressPage, EachArrivalBuildsTheStepsAnewAndStartsARun)
{
    arrive();
    runStarts();
    sheet->back();
    sheet->next();
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
    EXPECT_EQ(5, steps.count());
    EXPECT_EQ(1000, progress->timerCheckForCancel.interval());
    runStarts();
    EXPECT_EQ(4u, eventLogsCaptured());
}

TEST_F(GatherProgressPage, TheTimerForCancelsAsksAndDoesNothingElse)
{
    arrive();
    sheet->tick(progress->timerCheckForCancel);
    EXPECT_FALSE(mdlLogs::cancelCurrentProcess(tool.context));
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
}

TEST_F(GatherProgressPage, ACancelDuringTheRunClosesTheSheetAtOnceAndEndsTheRunAfterItsLog)
{
    arrive();
    duringTheRun([this] {
        EXPECT_TRUE(sheet->cancel());
        EXPECT_TRUE(sheet->closed()) << "while the run is still below on the stack";
        EXPECT_TRUE(tool.context.cancelRequested);
    });
    runStarts();
    EXPECT_TRUE(tool.files.fileExists(copy)) << "what was read until then is kept";
    EXPECT_EQ(0u, eventLogsCaptured());
    EXPECT_FALSE(tool.context.cancelRequested) << "the run has taken note";
    EXPECT_EQ(0, progress->timerCheckForCancel.interval());
    EXPECT_EQ("ppgGatherLogs03Step", onShow()) << "a closed sheet goes nowhere";
}

TEST_F(GatherProgressPage, TheControlsLiveUntilTheRunReturnsWhoeverLetsGoOfTheSheet)
{
    arrive();
    const std::weak_ptr<WizardSheet> watched = sheet;
    duringTheRun([this, &watched] {
        sheet->cancel();
        sheet.reset();
        EXPECT_FALSE(watched.expired());
    });
    WizardSheet& shown = *sheet;
    shown.tick(progress->tmrDelayStart);
    EXPECT_TRUE(watched.expired()) << "and no longer";
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(GatherProgressPage, ATimeFrameThatIsCancelledIsPackedAllTheSame)
{
    tool.files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank");
    tool.files.created("C:\\Logs\\" + log, dateOf(2005, 10, 8, 15));
    start(gatherOption::timeFrame);
    sheet->next();
    duringTheRun([this] { sheet->cancel(); });
    runStarts();
    EXPECT_EQ(0u, eventLogsCaptured());
    EXPECT_EQ(1u, tool.processes.commandLines().size());
}

TEST_F(GatherProgressPage, ACancelBeforeTheRunHoldsForTheNextGatherOfTheTool)
{
    arrive();
    sheet->cancel();
    EXPECT_TRUE(tool.context.cancelRequested);
    runStarts();
    EXPECT_EQ(0u, eventLogsCaptured()) << "the timer went with the sheet";
    makeSheet();
    arrive();
    runStarts();
    EXPECT_EQ(0u, eventLogsCaptured());
    EXPECT_FALSE(tool.context.cancelRequested);
}

TEST_F(GatherProgressPage, AfterBackDuringARunItsEndPressesNextOnThePageInFront)
{
    arrive();
    duringTheRun([this] {
        EXPECT_TRUE(sheet->back());
        EXPECT_EQ("ppgGatherLogs00Welcome", onShow());
        welcome->optGatherLogs.click(gatherOption::timeFrame);
    });
    runStarts();
    EXPECT_EQ(2u, eventLogsCaptured()) << "the run went on";
    EXPECT_EQ("ppgGatherLogs02Step", onShow());
}

TEST_F(GatherProgressPage, ASecondRunMayBeginWithinTheFirst)
{
    arrive();
    duringTheRun([this] {
        sheet->back();
        sheet->next();
        runStarts();
        EXPECT_EQ("ppgGatherLogs99Final", onShow());
    });
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_GE(eventLogsCaptured(), 2u);
    EXPECT_TRUE(progress->treeviewSteps.count() > 0);
}

TEST_F(GatherProgressPage, TheEndOfARunDoesNotPressNextInAnotherSheet)
{
    arrive();
    const auto running = sheet;
    ppgGatherLogs03Step& page = *progress;
    duringTheRun([this, &running] {
        running->cancel();
        makeSheet();
        sheet->show();
    });
    running->tick(page.tmrDelayStart);
    EXPECT_EQ("ppgGatherLogs00Welcome", onShow());
}
