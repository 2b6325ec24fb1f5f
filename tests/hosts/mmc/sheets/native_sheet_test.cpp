#include "hosts/mmc/sheets/native_sheet.h"

#include "console/plain_sheet.h"
#include "console/recording_pages.h"
#include "console/wizard_sheet.h"
#include "controls/label.h"
#include "hosts/mmc/sheets/sheet_on_show.h"
#include "runtime/run_time_error.h"

#include <gmock/gmock.h>

namespace mmc {

namespace {

using testing::Contains;
using testing::ElementsAre;

/// A wizard of three pages, the one in the middle with a say.
struct WizardWindowsTest : testing::Test {
    void show(int position = 1)
    {
        sheet->show(position);
        heard.clear();
        shown = std::make_unique<SheetOnShow>(tool, sheet);
    }

    void press(int button)
    {
        shown->frame().press(button);
        settle();
    }

    /// The page that the system shows, from 1; 0 when it shows none.
    int onShow() const
    {
        const HWND page = shown->frame().page();
        return static_cast<int>(SendMessageW(shown->frame().window(), PSM_HWNDTOINDEX,
                                             reinterpret_cast<WPARAM>(page), 0)) +
               1;
    }

    bool enabled(int button) const { return IsWindowEnabled(shown->frame().button(button)); }
    bool visible(int button) const { return IsWindowVisible(shown->frame().button(button)); }

    Heard heard; // pages write into it until the tool's thread has let go of them
    ToolSide tool;
    std::shared_ptr<WizardSheet> sheet = std::make_shared<WizardSheet>("Title");
    RecordingPage& welcome = addPage<RecordingPage>(*sheet, "welcome", heard);
    RecordingSheetPage& step = addPage<RecordingSheetPage>(*sheet, "step", heard);
    RecordingPage& last = addPage<RecordingPage>(*sheet, "last", heard);
    std::unique_ptr<SheetOnShow> shown;
};

TEST_F(WizardWindowsTest, GoesThroughItsPagesByEachButton)
{
    show();
    EXPECT_EQ(L"Title of welcome", shownText(shown->frame().window()));
    EXPECT_EQ(1, onShow());
    EXPECT_FALSE(enabled(Frame::back));
    EXPECT_TRUE(enabled(Frame::next));
    press(PSBTN_NEXT);
    EXPECT_EQ(2, onShow());
    EXPECT_TRUE(enabled(Frame::back));
    press(PSBTN_BACK);
    EXPECT_EQ(1, onShow());
    press(PSBTN_NEXT);
    press(PSBTN_NEXT);
    EXPECT_EQ(3, onShow());
    EXPECT_TRUE(visible(Frame::finish));
    EXPECT_TRUE(enabled(Frame::finish));
    EXPECT_FALSE(visible(Frame::next));
    press(PSBTN_FINISH);
    EXPECT_TRUE(shown->gone());
    EXPECT_TRUE(sheet->closed());
    EXPECT_THAT(heard, ElementsAre("welcome next", "step activate", "step back", "welcome activate",
                                   "welcome next", "step activate", "step next", "last activate",
                                   "last finish", "step close"));
}

TEST_F(WizardWindowsTest, ButtonsAreAsThePageSetsThem)
{
    step.onActivate = [](bool& back, int& forward, std::string& text) {
        back = false;
        forward = wizardButton::finishDisabled;
        text = "&Reset now";
    };
    show(2);
    EXPECT_FALSE(enabled(Frame::back));
    EXPECT_TRUE(visible(Frame::finish));
    EXPECT_FALSE(enabled(Frame::finish));
    EXPECT_EQ(L"&Reset now", shownText(shown->frame().button(Frame::finish)));
    sheet->SetWizardButtons(true, wizardButton::nextDisabled);
    settle();
    EXPECT_TRUE(enabled(Frame::back));
    EXPECT_TRUE(visible(Frame::next));
    EXPECT_FALSE(enabled(Frame::next));
    sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    settle();
    EXPECT_TRUE(enabled(Frame::next));
}

TEST_F(WizardWindowsTest, APageThatRaisesKeepsThePersonWhereSheIs)
{
    welcome.onNext = [](int&) { throw RunTimeError(runTimeErrors::permissionDenied); };
    show();
    press(PSBTN_NEXT);
    EXPECT_EQ(1, onShow());
    EXPECT_EQ(1U, tool.told.size());
    EXPECT_THAT(heard, ElementsAre("welcome next"));
}

TEST_F(WizardWindowsTest, ThePageThatAHandlerNamesIsShown)
{
    welcome.onNext = [](int& page) { page = 3; };
    last.onBack = [](int& page) { page = 1; };
    show();
    press(PSBTN_NEXT);
    EXPECT_EQ(3, onShow());
    press(PSBTN_BACK);
    EXPECT_EQ(1, onShow());
    EXPECT_THAT(heard,
                ElementsAre("welcome next", "last activate", "last back", "welcome activate"));
}

TEST_F(WizardWindowsTest, TheModelGoesOnByATimerAndTheWindowsFollow)
{
    step.timer.setInterval(10);
    step.timer.onTick = [&] {
        step.timer.setEnabled(false);
        sheet->pressNext();
    };
    show();
    press(PSBTN_NEXT);
    step.timer.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return onShow() == 3; }));
}

TEST_F(WizardWindowsTest, TimersRunOnThePageOnShowAlone)
{
    int ticks = 0;
    step.timer.setInterval(10);
    step.timer.setEnabled(true);
    step.timer.onTick = [&] { ++ticks; };
    show();
    const auto fallAsleep = [] {
        const DWORD start = GetTickCount();
        waitFor([&] { return GetTickCount() - start > 100; });
    };
    fallAsleep();
    EXPECT_EQ(0, ticks);
    press(PSBTN_NEXT);
    EXPECT_TRUE(waitFor([&] { return ticks > 2; }));
    tool.busy = true;
    const int before = ticks;
    fallAsleep();
    EXPECT_EQ(before, ticks);
    tool.busy = false;
    press(PSBTN_NEXT);
    const int after = ticks;
    fallAsleep();
    EXPECT_EQ(after, ticks);
}

TEST_F(WizardWindowsTest, ABusyToolTakesNoButtonsButCancel)
{
    show(2);
    tool.busy = true;
    press(PSBTN_NEXT);
    press(PSBTN_BACK);
    EXPECT_EQ(2, onShow());
    EXPECT_THAT(heard, ElementsAre());
    press(PSBTN_CANCEL);
    EXPECT_TRUE(sheet->closed());
    EXPECT_TRUE(shown->gone());
}

TEST_F(WizardWindowsTest, APageMayRefuseTheCancel)
{
    step.onQueryCancel = [](bool& allow) { allow = false; };
    show(2);
    press(PSBTN_CANCEL);
    EXPECT_FALSE(shown->gone());
    EXPECT_FALSE(sheet->closed());
    EXPECT_THAT(heard, ElementsAre("step query cancel"));
    SendMessageW(shown->frame().window(), WM_CLOSE, 0, 0);
    settle();
    EXPECT_FALSE(shown->gone());
    step.onQueryCancel = [](bool&) {};
    SendMessageW(shown->frame().window(), WM_CLOSE, 0, 0);
    settle();
    EXPECT_TRUE(shown->gone());
    EXPECT_TRUE(sheet->closed());
}

TEST_F(WizardWindowsTest, AModelThatClosesClosesTheWindows)
{
    step.timer.setInterval(10);
    step.timer.setEnabled(true);
    step.timer.onTick = [&] { sheet->cancel(); };
    show(2);
    EXPECT_TRUE(waitFor([&] { return shown->gone(); }));
    EXPECT_THAT(heard, ElementsAre("step query cancel", "step cancel", "step close"));
}

TEST_F(WizardWindowsTest, CancelReachesTheModelWhileAPageIsAtWork)
{
    bool closedAtWork = false;
    bool visibleAtWork = true;
    step.timer.setInterval(10);
    step.timer.onTick = [&] {
        step.timer.setEnabled(false);
        PostMessageW(shown->frame().window(), WM_COMMAND, Frame::cancel, 0);
        settle();
        closedAtWork = sheet->closed();
        visibleAtWork = IsWindowVisible(shown->frame().window());
        heard.push_back("work over");
    };
    show(2);
    step.timer.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return shown->gone(); }));
    EXPECT_TRUE(closedAtWork);
    EXPECT_THAT(heard, ElementsAre("step query cancel", "step cancel", "step close", "work over"));
    EXPECT_FALSE(visibleAtWork);
}

TEST_F(WizardWindowsTest, WhatIsRefreshedIsDrawnWithoutAMessage)
{
    Label label;
    struct Page final : SheetPage, IWizardPage {
        explicit Page(Label& of) : SheetPage("shown") { declare("lbl", ControlRole::body, of); }
        IWizardPage* wizardPage() override { return this; }
    };
    auto other = std::make_shared<WizardSheet>("Other");
    other->addPage(std::make_unique<Page>(label), "Other", false);
    other->show();
    SheetOnShow second(tool, other);
    label.setCaption("now");
    EXPECT_NE(L"now", shownText(second.find(WC_STATICW)));
    label.refresh();
    EXPECT_EQ(L"now", shownText(second.find(WC_STATICW)));
}

TEST_F(WizardWindowsTest, AnAbandonedSheetGoesWhateverItsPageSays)
{
    step.onQueryCancel = [](bool& allow) { allow = false; };
    show(2);
    shown->native().abandon();
    settle();
    EXPECT_TRUE(sheet->closed());
    EXPECT_TRUE(shown->gone());
}

TEST_F(WizardWindowsTest, WindowsThatGoWithoutAWordCloseTheModel)
{
    show(2);
    DestroyWindow(shown->frame().window());
    settle();
    EXPECT_TRUE(sheet->closed());
}

TEST_F(WizardWindowsTest, PagesKeepTheSheetUntilTheyAreDestroyedShownOrNot)
{
    sheet->show();
    auto native = NativeSheet::make(tool.thread, tool.around(), sheet);
    const auto pages = native->makePages();
    const std::weak_ptr<NativeSheet> kept = native;
    native.reset();
    EXPECT_FALSE(kept.expired());
    for (const HPROPSHEETPAGE page : pages) {
        EXPECT_FALSE(kept.expired());
        DestroyPropertySheetPage(page);
    }
    EXPECT_TRUE(kept.expired());
    EXPECT_TRUE(sheet->closed());
}

TEST_F(WizardWindowsTest, PagesThatWereNeverVisitedGoWithTheOthers)
{
    sheet->show();
    heard.clear();
    std::weak_ptr<NativeSheet> kept;
    {
        auto native = NativeSheet::make(tool.thread, tool.around(), sheet);
        kept = native;
        Frame frame(*native, native->makePages(), true);
        native.reset();
        settle();
        frame.press(PSBTN_CANCEL);
        settle();
        EXPECT_TRUE(frame.over());
    }
    settle();
    EXPECT_TRUE(kept.expired());
}

/// A plain sheet of two pages.
struct PlainWindowsTest : testing::Test {
    void show()
    {
        sheet->show();
        heard.clear();
        shown = std::make_unique<SheetOnShow>(tool, sheet);
    }

    void press(int button)
    {
        shown->frame().press(button);
        settle();
    }

    bool canApply() const { return IsWindowEnabled(shown->frame().button(Frame::apply)); }

    Heard heard; // pages write into it until the tool's thread has let go of them
    ToolSide tool;
    std::shared_ptr<PlainSheet> sheet = std::make_shared<PlainSheet>("Title");
    RecordingSheetPage& first = addPage<RecordingSheetPage>(*sheet, "first", heard);
    RecordingPage& second = addPage<RecordingPage>(*sheet, "second", heard);
    std::unique_ptr<SheetOnShow> shown;
};

TEST_F(PlainWindowsTest, ApplyIsThereForWhatChangedAndIsDeliveredAsTheModelDoes)
{
    show();
    EXPECT_FALSE(canApply());
    first.Changed(true);
    settle();
    EXPECT_TRUE(canApply());
    press(PSBTN_APPLYNOW);
    EXPECT_THAT(heard, ElementsAre("first apply", "first apply"));
    EXPECT_FALSE(canApply());
    EXPECT_FALSE(shown->gone());
    first.Changed(true);
    settle();
    EXPECT_TRUE(canApply());
    press(PSBTN_APPLYNOW);
    EXPECT_EQ(4U, heard.size());
}

TEST_F(PlainWindowsTest, OkAppliesAndCloses)
{
    show();
    first.Changed(true);
    settle();
    press(PSBTN_OK);
    EXPECT_TRUE(shown->gone());
    EXPECT_TRUE(sheet->closed());
    EXPECT_THAT(heard, ElementsAre("first apply", "first apply", "first close"));
}

TEST_F(PlainWindowsTest, AFailureKeepsTheSheetOpen)
{
    first.onApply = [] { throw RunTimeError(runTimeErrors::permissionDenied); };
    show();
    first.Changed(true);
    settle();
    press(PSBTN_OK);
    EXPECT_FALSE(shown->gone());
    EXPECT_FALSE(sheet->closed());
    EXPECT_EQ(1U, tool.told.size());
}

TEST_F(PlainWindowsTest, CancelAppliesNothing)
{
    show();
    first.Changed(true);
    settle();
    press(PSBTN_CANCEL);
    EXPECT_TRUE(shown->gone());
    EXPECT_THAT(heard, ElementsAre("first query cancel", "first cancel", "first close"));
}

TEST_F(PlainWindowsTest, ATabThatThePersonPicksIsTheModelsPage)
{
    show();
    SendMessageW(shown->frame().window(), PSM_SETCURSEL, 1, 0);
    settle();
    EXPECT_EQ(2, sheet->currentPosition());
    tool.busy = true;
    EXPECT_FALSE(SendMessageW(shown->frame().window(), PSM_SETCURSEL, 0, 0));
    settle();
    EXPECT_EQ(2, sheet->currentPosition());
}

} // namespace

} // namespace mmc
