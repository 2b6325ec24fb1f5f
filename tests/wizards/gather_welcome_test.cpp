#include "wizards/gather_wizard_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct GatherWelcome : GatherWizardTest {
    OptionButtonGroup& options = welcome->optGatherLogs;
    Button& browse = welcome->cmdChangeDestinationDirectory;

    std::string destination() const { return captionOf(*welcome, "lblDestinationDirectory"); }
};

} // namespace

TEST_F(GatherWelcome, ShowsItsTextsAndTheThreeWays)
{
    sheet->show();
    expectCaptions(
        {{"lblWelcomeTitle", "Welcome to the Gather Logs Wizard"},
         {"lblPurpose",
          "his wizard allows you to quickly gather the logs required to troubleshoot problems."},
         {"lblWarnings",
          "Depending on the size of the logs this wizard can take several minutes to complete."},
         {"cmdChangeDestinationDirectory", "&Browse..."},
         {"lblDestinationDirectory", "Destination Directory\r\nC:\\Out"}});
    struct Option {
        int option;
        const char* caption;
        const char* toolTip;
    };
    const Option shown[] = {
        {0, "Gather standard logs",
         "The standard logs are the current RoCSMgr log, Windows Application Event log and Windows "
         "System Event log."},
        {1, "Select logs", "Use this option to hand select the logs to gather."},
        {2, "Process logs over specified time frame",
         "Use this option to gather all the logs over the selected time frame."},
    };
    for (const auto& option : shown) {
        EXPECT_EQ(option.caption, options.caption(option.option));
        EXPECT_EQ(option.toolTip, options.optionToolTip(option.option));
    }
    EXPECT_TRUE(options.isSelected(0)) << "the standard gather is selected when the page shows";
    EXPECT_EQ((WizardButtons{false, wizardButton::nextEnabled, ""}), sheet->buttons());
    EXPECT_EQ(nullptr, welcome->propertyPage());
}

TEST_F(GatherWelcome, WritesTheStandardLogsToTheRegistryWhenItShows)
{
    sheet->show();
    EXPECT_EQ("orvan_RoCsMgr, event_Application, event_System",
              tool.registry.text(toolKey, "Standard Logs"));
}

TEST_F(GatherWelcome, MakesADestinationOfThePresentSecondWhenTheJobHasNone)
{
    shared->m_LogDestinationDirectory = "";
    sheet->show();
    EXPECT_THAT(shared->m_LogDestinationDirectory, HasSubstr("\\LogsFrom20051008_152307"));
    EXPECT_EQ("Destination Directory\r\n" + shared->m_LogDestinationDirectory, destination());
    EXPECT_FALSE(tool.files.folderExists(shared->m_LogDestinationDirectory))
        << "the run makes it, not the page";
}

TEST_F(GatherWelcome, KeepsTheDestinationOfTheJobWhenItIsShownAgain)
{
    start(gatherOption::standard);
    runStarts();
    ASSERT_EQ("ppgGatherLogs99Final", onShow());
    tool.clock.advance(60);
    sheet->back();
    EXPECT_EQ("Destination Directory\r\nC:\\Out", destination());
}

TEST_F(GatherWelcome, ASecondRunOfTheWizardUsesTheFolderOfTheFirst)
{
    shared->m_LogDestinationDirectory = "";
    start(gatherOption::standard);
    const std::string folder = shared->m_LogDestinationDirectory;
    runStarts();
    ASSERT_EQ("ppgGatherLogs99Final", onShow());
    tool.clock.advance(60);
    sheet->back();
    ASSERT_EQ("ppgGatherLogs00Welcome", onShow());
    tool.eventLogExporter.with("System", "as it is a minute later");
    ASSERT_TRUE(sheet->next());
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_EQ(folder, shared->m_LogDestinationDirectory);
    EXPECT_THAT(tool.files.content(folder + "\\System.csv"), HasSubstr("as it is a minute later"));
}

TEST_F(GatherWelcome, ShowsThePickedFolder)
{
    sheet->show();
    tool.desktop.picks("C:\\Case");
    browse.click();
    EXPECT_EQ("C:\\Case", shared->m_LogDestinationDirectory);
    EXPECT_EQ("Destination Directory\r\nC:\\Case", destination());
}

TEST_F(GatherWelcome, ACancelledPickerDropsTheFolderAndMakesANewDefault)
{
    sheet->show();
    tool.desktop.picks("C:\\Case").picks("");
    browse.click();
    tool.clock.advance(1);
    browse.click();
    EXPECT_THAT(shared->m_LogDestinationDirectory, HasSubstr("\\LogsFrom20051008_152308"));
    EXPECT_THAT(destination(), HasSubstr("\r\n" + shared->m_LogDestinationDirectory));
}

TEST_F(GatherWelcome, APickedFolderIsTakenAsItIsWithoutALook)
{
    sheet->show();
    tool.desktop.picks("Q:\\not there");
    browse.click();
    EXPECT_EQ("Destination Directory\r\nQ:\\not there", destination());
}

TEST_F(GatherWelcome, StandardTakesTheCurrentLogAndTwoEventLogsAndGoesToTheProgressPage)
{
    withCurrentLog("KoCSMgr", "diag_KoCSMgr_20051008_120000.txt");
    tool.registry.withText(toolKey, "Standard Logs", "orvan_Other, event_Security");
    start(gatherOption::standard);
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
    EXPECT_TRUE(shared->m_bStandardLogs);
    EXPECT_FALSE(shared->m_bTimeFrameLogs);
    EXPECT_THAT(serverLogs(), ElementsAre("diag_KoCSMgr_20051008_120000.txt"));
    EXPECT_THAT(eventLogs(), ElementsAre("Application", "System"))
        << "whatever the registry calls standard";
}

TEST_F(GatherWelcome, WithoutACurrentLogTheFirstStepIsEmptyAndTheEventLogsAreGathered)
{
    start(gatherOption::standard);
    EXPECT_THAT(serverLogs(), ElementsAre(""));
    EXPECT_THAT(rowsOf(progress->treeviewSteps),
                ElementsAre("Orvan Logs", "  ", "Windows Event Logs", "  Application", "  System"));
    runStarts();
    EXPECT_EQ(2u, tool.eventLogExporter.exports().size());
    EXPECT_THAT(tool.desktop.messages(), IsEmpty());
}

TEST_F(GatherWelcome, TheCurrentLogIsReadAsItStandsWhenTheRunReachesIt)
{
    withCurrentLog("KoCSMgr", "diag_KoCSMgr_20051008_120000.txt", rawLog(1));
    start(gatherOption::standard);
    withLog("diag_KoCSMgr_20051008_120000.txt", rawLog(2));
    runStarts();
    const std::string copy = tool.files.content("C:\\Out\\diag_KoCSMgr_20051008_120000_fmtd.txt");
    EXPECT_EQ(2, std::count(copy.begin(), copy.end(), '\n'));
}

TEST_F(GatherWelcome, EachWayHasItsPageAndItsFlags)
{
    struct Way {
        int option;
        const char* page;
        bool standard;
        bool timeFrame;
    };
    const Way ways[] = {
        {gatherOption::standard, "ppgGatherLogs03Step", true, false},
        {gatherOption::byHand, "ppgGatherLogs01Step", false, false},
        {gatherOption::timeFrame, "ppgGatherLogs02Step", false, true},
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(way.page);
        shared->m_bStandardLogs = !way.standard;
        shared->m_bTimeFrameLogs = !way.timeFrame;
        makeSheet();
        start(way.option);
        EXPECT_EQ(way.page, onShow());
        EXPECT_EQ(way.standard, shared->m_bStandardLogs);
        EXPECT_EQ(way.timeFrame, shared->m_bTimeFrameLogs);
    }
}

TEST_F(GatherWelcome, AnotherWayAfterGoingBackStartsFromEmptyLists)
{
    withCurrentLog("KoCSMgr", "diag_KoCSMgr_20051008_120000.txt");
    start(gatherOption::standard);
    ASSERT_TRUE(sheet->back());
    EXPECT_EQ("ppgGatherLogs00Welcome", onShow());
    options.click(gatherOption::byHand);
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre(""));
    EXPECT_THAT(eventLogs(), ElementsAre(""));
    sheet->back();
    options.click(gatherOption::standard);
    sheet->next();
    EXPECT_THAT(eventLogs(), ElementsAre("Application", "System"));
}

TEST_F(GatherWelcome, NextIsInTheToolsLog)
{
    start(gatherOption::byHand);
    EXPECT_TRUE(tool.logged("Entering [ppgGatherLogs00Welcome]IWizardPage_Next"));
}
