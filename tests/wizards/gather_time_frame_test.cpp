#include "controls/recording_observer.h"
#include "wizards/gather_wizard_fixture.h"

#include <algorithm>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const Date now = dateOf(2005, 10, 8, 15, 23, 7);

struct GatherTimeFrame : GatherWizardTest {
    TextBox& duration = frame->txtDuration;
    SpinControl& spin = frame->updownDuration;

    void open() { start(gatherOption::timeFrame); }

    void pick(Date moment)
    {
        frame->dtpickerDate.setByPerson(moment);
        frame->dtpickerTime.setByPerson(moment);
    }
};

} // namespace

TEST_F(GatherTimeFrame, ShowsItsTextsAndLeavesNextEnabled)
{
    open();
    expectCaptions(
        {{"lblStepTitle", "Select Starting Time and Duration"},
         {"lblStepDescription", "Specify the starting date and time and select the duration."},
         {"Frame2", "Current Time:"},
         {"lblStartTime", "Start Time:"},
         {"lblDuration", "Duration (Hours):"},
         {"chkWindowsEventLogs_Application", "Include Windows Application Event Log"},
         {"chkWindowsEventLogs_System", "Include Windows System Event Log"}});
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
}

TEST_F(GatherTimeFrame, StartsAnHourAgoForOneHourWithBothEventLogs)
{
    open();
    EXPECT_EQ(dateOf(2005, 10, 8, 14, 23, 7), frame->dtpickerDate.value());
    EXPECT_EQ(dateOf(2005, 10, 8, 14, 23, 7), frame->dtpickerTime.value());
    EXPECT_EQ("1", duration.text());
    EXPECT_EQ(1, spin.minimum());
    EXPECT_EQ(999, spin.maximum());
    EXPECT_TRUE(frame->chkWindowsEventLogs_Application.checked());
    EXPECT_TRUE(frame->chkWindowsEventLogs_System.checked());
}

TEST_F(GatherTimeFrame, GivesTheLanguagesFontToEightControlsAndNoOther)
{
    tool.context.language.g_lngCurrentLanguage = 1041;
    open();
    const Control* given[] = {&frame->lblStepTitle, &frame->lblStepDescription,
                              &frame->lblStartTime, &frame->lblDuration,
                              &frame->dtpickerDate, &frame->dtpickerTime,
                              &frame->Frame2,       &frame->lblCurrentTime};
    for (const PageControl& declared : frame->controls()) {
        const bool expected =
            std::find(std::begin(given), std::end(given), declared.control) != std::end(given);
        EXPECT_EQ(expected ? 128 : 1, declared.control->font().charset) << declared.name;
    }
    EXPECT_EQ(1, frame->font().charset) << "nor to the page itself";
}

TEST_F(GatherTimeFrame, TheClockShowsLongDateAndMediumTimeEverySecond)
{
    open();
    EXPECT_EQ(1000, frame->timerUpdateTime.interval());
    EXPECT_EQ("", frame->lblCurrentTime.caption()) << "before the first tick";
    sheet->tick(frame->timerUpdateTime);
    EXPECT_EQ("Saturday, October 8, 2005 03:23 PM", frame->lblCurrentTime.caption());
    tool.clock.advance(60);
    sheet->tick(frame->timerUpdateTime);
    EXPECT_EQ("Saturday, October 8, 2005 03:24 PM", frame->lblCurrentTime.caption());
}

TEST_F(GatherTimeFrame, TheClockIsShownAtOnceAlsoByABusyTool)
{
    open();
    RecordingObserver observer;
    frame->lblCurrentTime.observe(&observer);
    sheet->tick(frame->timerUpdateTime);
    EXPECT_EQ(1, observer.refreshes);
    frame->lblCurrentTime.observe(nullptr);
}

TEST_F(GatherTimeFrame, BackLeadsToTheWelcomePage)
{
    open();
    ASSERT_TRUE(sheet->back());
    EXPECT_EQ("ppgGatherLogs00Welcome", onShow());
}

TEST_F(GatherTimeFrame, NextFillsTheJobAndLeadsToTheProgressPage)
{
    withLog("diag_A_1.txt", dateOf(2005, 10, 8, 14, 30), dateOf(2005, 10, 8, 15));
    open();
    ASSERT_TRUE(sheet->next());
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
    EXPECT_EQ(dateOf(2005, 10, 8, 14, 23), shared->m_dateStart) << "without the seconds";
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23), shared->m_dateEnd);
    EXPECT_THAT(serverLogs(), ElementsAre("diag_A_1.txt"));
    EXPECT_THAT(eventLogs(), ElementsAre("Application", "System"));
    EXPECT_TRUE(tool.logged("Gathering logs with data between: 10/8/2005 2:23:00 PM - 10/8/2005 "
                            "3:23:00 PM"));
}

TEST_F(GatherTimeFrame, TakesTheDayOfOnePickerAndTheTimeOfTheOther)
{
    open();
    frame->dtpickerDate.setByPerson(dateOf(2005, 10, 6, 23, 59, 59));
    frame->dtpickerTime.setByPerson(dateOf(2001, 1, 1, 8, 15, 42));
    sheet->next();
    EXPECT_EQ(dateOf(2005, 10, 6, 8, 15), shared->m_dateStart);
}

TEST_F(GatherTimeFrame, AFileBelongsToTheFrameByItsDates)
{
    struct Case {
        const char* because;
        Date created;
        Date modified;
        bool taken;
    };
    const auto at = [](int hour, int minute, int second = 0) {
        return dateOf(2005, 10, 8, hour, minute, second);
    };
    const Case cases[] = {
        {"made before, last written inside", at(9, 0), at(11, 0), true},
        {"made inside, written after", at(11, 0), at(14, 0), true},
        {"spans the frame", at(9, 0), at(14, 0), true},
        {"ends before it", at(8, 0), at(9, 59, 59), false},
        {"starts after it", at(12, 0, 1), at(14, 0), false},
        {"ends on its first second", at(8, 0), at(10, 0), true},
        {"starts on its last second", at(12, 0), at(14, 0), true},
    };
    open();
    pick(at(10, 0));
    duration.setByPerson("2");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        withLog("diag_A_1.txt", c.created, c.modified);
        sheet->next();
        EXPECT_THAT(serverLogs(), ElementsAre(c.taken ? "diag_A_1.txt" : ""));
        sheet->back();
    }
}

TEST_F(GatherTimeFrame, DiagnosticLogsComeBeforeDataFilesAndCopiesNeverCount)
{
    const Date inside = dateOf(2005, 10, 8, 15);
    for (const char* name :
         {"data_B_1.txt", "diag_C_1.txt", "diag_A_1.txt", "diag_A_1_FMTD.txt", "other.txt"})
        withLog(name, inside, inside);
    open();
    sheet->next();
    EXPECT_THAT(serverLogs(), ElementsAre("diag_A_1.txt", "diag_C_1.txt", "data_B_1.txt"));
}

TEST_F(GatherTimeFrame, EventLogsAreLeftOutByTheirBoxes)
{
    open();
    frame->chkWindowsEventLogs_Application.click();
    sheet->next();
    EXPECT_THAT(eventLogs(), ElementsAre("System"));
    sheet->back();
    frame->chkWindowsEventLogs_System.click();
    sheet->next();
    EXPECT_THAT(eventLogs(), ElementsAre(""));
}

TEST_F(GatherTimeFrame, AFrameWithoutAFileStillRunsAndIsPacked)
{
    tool.files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank");
    open();
    sheet->next();
    EXPECT_THAT(rowsOf(progress->treeviewSteps),
                ElementsAre("Orvan Logs", "  ", "Windows Event Logs", "  Application", "  System"));
    runStarts();
    EXPECT_EQ("ppgGatherLogs99Final", onShow());
    EXPECT_NE("", tool.context.g_strTraceDatabase);
    ASSERT_EQ(1u, tool.processes.commandLines().size());
    EXPECT_THAT(tool.processes.commandLines()[0], HasSubstr("cabmaker"));
}

TEST_F(GatherTimeFrame, AChangedDurationAloneTakesEffectAtNext)
{
    open();
    spin.stepUp();
    EXPECT_EQ("2", duration.text());
    sheet->next();
    EXPECT_EQ(dateOf(2005, 10, 8, 16, 23), shared->m_dateEnd) << "the end may lie in the future";
}

TEST_F(GatherTimeFrame, ALongDurationHasNoOtherLimit)
{
    open();
    duration.setByPerson("999");
    sheet->next();
    EXPECT_EQ(addHours(dateOf(2005, 10, 8, 14, 23), 999), shared->m_dateEnd);
}

TEST_F(GatherTimeFrame, OnlyDigitsAreKeysOfTheDurationNotEvenBackspace)
{
    open();
    for (int code = 1; code < 256; ++code) {
        const bool digit = code >= 48 && code <= 57;
        EXPECT_EQ(digit ? code : 0, duration.filterKey(code)) << code;
    }
    duration.typeByPerson("2\b.x5");
    EXPECT_EQ("125", duration.text());
    EXPECT_EQ(125, spin.value());
}

TEST_F(GatherTimeFrame, AnEntryOutOfRangePutsTheLastAcceptedOneBack)
{
    struct Case {
        const char* because;
        const char* typed;
        const char* left;
        int spin;
    };
    const Case cases[] = {
        {"a duration in the range is accepted", "12", "12", 12},
        {"too long", "1000", "12", 12},
        {"too short", "0", "12", 12},
        {"emptied, which counts as 0", "", "12", 12},
        {"the longest", "999", "999", 999},
        {"pasted, and below the range", "-5", "999", 999},
        {"pasted with more behind the digits: the spin control has the number", "7x", "7", 7},
        {"a number the spin control has already stays as typed", "7x", "7x", 7},
        {"pasted with leading blanks", "  8", "8", 8},
    };
    open();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        duration.setByPerson(c.typed);
        EXPECT_EQ(c.left, duration.text());
        EXPECT_EQ(c.spin, spin.value());
    }
}

TEST_F(GatherTimeFrame, TheFirstEntryOutOfRangeEmptiesTheField)
{
    for (const char* typed : {"0", "1000", ""}) {
        SCOPED_TRACE(typed);
        makeSheet();
        start(gatherOption::timeFrame);
        frame->txtDuration.setByPerson(typed);
        EXPECT_EQ("", frame->txtDuration.text());
        EXPECT_EQ(1, frame->updownDuration.value());
    }
}

TEST_F(GatherTimeFrame, WithAnEmptyDurationTheEndStaysAsItWas)
{
    open();
    duration.setByPerson("");
    ASSERT_EQ("", duration.text());
    tool.clock.advance(3600);
    frame->dtpickerTime.setValue(dateOf(2005, 10, 8, 15, 0));
    sheet->next();
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 0), shared->m_dateStart);
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23), shared->m_dateEnd);
    EXPECT_THAT(tool.failures(), Contains("Err.Number = 13 Err.Description = Type mismatch"));
    EXPECT_EQ("ppgGatherLogs03Step", onShow());
}

TEST_F(GatherTimeFrame, WithAnEmptyDurationAPickersChangeRaisesToItsCaller)
{
    open();
    duration.setByPerson("");
    EXPECT_EQ(13, errorOf([&] { frame->dtpickerTime.setByPerson(dateOf(2005, 10, 8, 1, 0)); }));
    EXPECT_EQ(13, errorOf([&] { frame->dtpickerDate.setByPerson(dateOf(2005, 10, 7)); }));
}

TEST_F(GatherTimeFrame, ATimeInTheFutureMovesToNowAndTheDateStays)
{
    open();
    frame->dtpickerTime.setByPerson(dateOf(2005, 10, 8, 15, 24));
    EXPECT_EQ(now, frame->dtpickerTime.value());
    EXPECT_EQ(dateOf(2005, 10, 8, 14, 23, 7), frame->dtpickerDate.value());
}

TEST_F(GatherTimeFrame, ADateInTheFutureMovesBothPickersToNow)
{
    open();
    frame->dtpickerDate.setByPerson(dateOf(2005, 10, 9));
    EXPECT_EQ(now, frame->dtpickerDate.value());
    EXPECT_EQ(now, frame->dtpickerTime.value());
}

TEST_F(GatherTimeFrame, TheSecondsOfThePresentMinuteAreNoFuture)
{
    open();
    const Date typed = dateOf(2005, 10, 8, 15, 23, 59);
    frame->dtpickerTime.setByPerson(typed);
    EXPECT_EQ(typed, frame->dtpickerTime.value()) << "a frame starts on a whole minute";
}

TEST_F(GatherTimeFrame, ChoicesStayWhenThePageIsLeftAndShownAgain)
{
    open();
    pick(dateOf(2005, 10, 1, 8, 0));
    duration.setByPerson("5");
    frame->chkWindowsEventLogs_System.click();
    sheet->back();
    tool.clock.advance(7200);
    sheet->next();
    EXPECT_EQ(dateOf(2005, 10, 1, 8, 0), frame->dtpickerDate.value());
    EXPECT_EQ("5", duration.text());
    EXPECT_FALSE(frame->chkWindowsEventLogs_System.checked());
}
