#include "console/wizard_sheet.h"

#include "console/recording_pages.h"
#include "controls/recording_observer.h"

#include <gtest/gtest.h>

namespace {

/// A wizard of a welcome page, two steps that ask for the sheet, and a last page.
struct FourPageWizard {
    Heard heard;
    RecordingSheetObserver observer{heard};
    std::shared_ptr<WizardSheet> sheet = std::make_shared<WizardSheet>("Wizard");
    RecordingPage& welcome = addPage<RecordingPage>(*sheet, "welcome", heard);
    RecordingSheetPage& first = addPage<RecordingSheetPage>(*sheet, "first", heard);
    RecordingSheetPage& second = addPage<RecordingSheetPage>(*sheet, "second", heard);
    RecordingPage& last = addPage<RecordingPage>(*sheet, "last", heard);

    FourPageWizard() { sheet->observe(&observer); }

    void showAt(int place)
    {
        sheet->show(place);
        heard.clear();
    }

    static void fail(int number) { throw RunTimeError(number); }
};

struct WizardSheetTest : testing::Test, FourPageWizard {};

TEST_F(WizardSheetTest, ActivatesTheFirstPageAndThenInitialisesThoseThatAskForIt)
{
    sheet->show();
    EXPECT_EQ((Heard{"welcome activate", "first initialize", "second initialize", "shows welcome"}),
              heard);
    EXPECT_EQ(sheet.get(), first.sheet);
}

TEST_F(WizardSheetTest, InitialisesAPageBeforeItsFirstActivation)
{
    sheet->show(2);
    EXPECT_EQ((Heard{"first initialize", "first activate", "second initialize", "shows first"}),
              heard);
}

TEST_F(WizardSheetTest, InitialisesAPageOnceAndActivatesItAtEachArrival)
{
    showAt(1);
    sheet->next();
    sheet->back();
    sheet->next();
    EXPECT_EQ(
        (Heard{"welcome next", "first activate", "shows first", "first back", "welcome activate",
               "shows welcome", "welcome next", "first activate", "shows first"}),
        heard);
}

TEST_F(WizardSheetTest, OffersBackAndNextOrFinishByThePlaceOfAPage)
{
    sheet->show();
    EXPECT_EQ((WizardButtons{false, wizardButton::nextEnabled, ""}), sheet->buttons());
    sheet->next();
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
    sheet->next();
    sheet->next();
    EXPECT_EQ((WizardButtons{true, wizardButton::finishEnabled, ""}), sheet->buttons());
}

TEST_F(WizardSheetTest, TakesThePagesOwnChoiceOfButtons)
{
    first.onActivate = [](bool& back, int& next, std::string& text) {
        back = false;
        next = wizardButton::finishDisabled;
        text = "Done";
    };
    sheet->show(2);
    EXPECT_EQ((WizardButtons{false, wizardButton::finishDisabled, "Done"}), sheet->buttons());
    EXPECT_FALSE(sheet->canFinish());
}

TEST_F(WizardSheetTest, AButtonThatIsDisabledOrNotThereDoesNothing)
{
    struct Case {
        const char* because;
        bool back;
        int nextOrFinish;
        bool (WizardSheet::*press)();
    };
    const Case cases[] = {
        {"Back is disabled", false, wizardButton::nextEnabled, &WizardSheet::back},
        {"Next is disabled", true, wizardButton::nextDisabled, &WizardSheet::next},
        {"Finish stands in Next's place", true, wizardButton::finishEnabled, &WizardSheet::next},
        {"Next stands in Finish's place", true, wizardButton::nextEnabled, &WizardSheet::finish},
        {"Finish is disabled", true, wizardButton::finishDisabled, &WizardSheet::finish},
    };
    showAt(2);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        sheet->SetWizardButtons(c.back, c.nextOrFinish);
        heard.clear();
        EXPECT_FALSE((*sheet.*c.press)());
        EXPECT_EQ(Heard{}, heard);
        EXPECT_EQ(2, sheet->currentPosition());
    }
}

TEST_F(WizardSheetTest, APageMayNameThePageToShow)
{
    welcome.onNext = [](int& page) { page = 4; };
    last.onBack = [](int& page) { page = 2; };
    showAt(1);
    sheet->next();
    EXPECT_EQ(4, sheet->currentPosition());
    sheet->back();
    EXPECT_EQ(2, sheet->currentPosition());
}

TEST_F(WizardSheetTest, APageThatNamesItselfIsActivatedAnew)
{
    welcome.onNext = [](int& page) { page = 1; };
    showAt(1);
    sheet->next();
    EXPECT_EQ((Heard{"welcome next", "welcome activate", "shows welcome"}), heard);
}

TEST_F(WizardSheetTest, APlaceWithoutAPageRaises9AndTheWizardStays)
{
    for (const int place : {-1, 5, 32767}) {
        SCOPED_TRACE(place);
        welcome.onNext = [place](int& page) { page = place; };
        sheet->show();
        EXPECT_EQ(9, errorNumberOf([&] { sheet->next(); }));
        EXPECT_EQ(1, sheet->currentPosition());
    }
}

TEST_F(WizardSheetTest, BackOnTheFirstPageAndNextOnTheLastStayWhereTheyAre)
{
    showAt(1);
    sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    heard.clear();
    EXPECT_TRUE(sheet->back());
    EXPECT_EQ(Heard{"welcome back"}, heard);

    last.onActivate = [](bool&, int& next, std::string&) { next = wizardButton::nextEnabled; };
    showAt(4);
    EXPECT_TRUE(sheet->next());
    EXPECT_EQ(Heard{"last next"}, heard);
    EXPECT_EQ(4, sheet->currentPosition());
}

TEST_F(WizardSheetTest, FinishEndsTheSheetBehindThePagesWork)
{
    showAt(4);
    EXPECT_TRUE(sheet->finish());
    EXPECT_EQ((Heard{"last finish", "first close", "second close", "closed"}), heard);
    EXPECT_TRUE(sheet->closed());
}

TEST_F(WizardSheetTest, CancelAsksThePageOnShowAndTellsAll)
{
    showAt(2);
    EXPECT_TRUE(sheet->cancel());
    EXPECT_EQ((Heard{"first query cancel", "first cancel", "second cancel", "first close",
                     "second close", "closed"}),
              heard);
}

TEST_F(WizardSheetTest, CancelOfAPageWithoutASayClosesTheSheet)
{
    showAt(1);
    EXPECT_TRUE(sheet->cancel());
    EXPECT_EQ((Heard{"first cancel", "second cancel", "first close", "second close", "closed"}),
              heard);
}

TEST_F(WizardSheetTest, APageMayRefuseTheCancel)
{
    first.onQueryCancel = [](bool& allow) { allow = false; };
    showAt(2);
    EXPECT_FALSE(sheet->cancel());
    EXPECT_EQ(Heard{"first query cancel"}, heard);
    EXPECT_FALSE(sheet->closed());
}

TEST_F(WizardSheetTest, ASheetThatIsAbandonedAsksItsPageAndClosesWhateverThatAnswers)
{
    first.onQueryCancel = [](bool& allow) { allow = false; };
    showAt(2);
    sheet->abandon();
    EXPECT_EQ((Heard{"first query cancel", "first cancel", "second cancel", "first close",
                     "second close", "closed"}),
              heard);
    EXPECT_TRUE(sheet->closed());
    heard.clear();
    sheet->abandon();
    EXPECT_EQ(Heard{}, heard);
}

TEST_F(WizardSheetTest, AClosedSheetIgnoresEverything)
{
    showAt(2);
    first.timer.setEnabled(true);
    first.timer.onTick = [&] { heard.push_back("tick"); };
    sheet->cancel();
    heard.clear();

    EXPECT_FALSE(sheet->next());
    EXPECT_FALSE(sheet->back());
    EXPECT_FALSE(sheet->finish());
    EXPECT_TRUE(sheet->cancel());
    sheet->help();
    sheet->SetWizardButtons(true, wizardButton::finishEnabled);
    sheet->pressNext();
    sheet->tick(first.timer);
    EXPECT_TRUE(sheet->timers().empty());
    EXPECT_EQ(Heard{}, heard);
}

TEST_F(WizardSheetTest, HelpGoesToThePageOnShow)
{
    showAt(2);
    sheet->help();
    EXPECT_EQ(Heard{"first help"}, heard);
    showAt(1);
    sheet->help();
    EXPECT_EQ(Heard{}, heard);
}

TEST_F(WizardSheetTest, ListsTheTimersOfThePageOnShowAndTicksThoseAlone)
{
    showAt(2);
    ASSERT_EQ((std::vector<Timer*>{&first.timer}), sheet->timers());
    for (RecordingSheetPage* page : {&first, &second}) {
        page->timer.setEnabled(true);
        page->timer.onTick = [this, page] { heard.push_back(page->name() + " tick"); };
        sheet->tick(page->timer);
    }
    EXPECT_EQ(Heard{"first tick"}, heard);
}

TEST_F(WizardSheetTest, PressNextPressesNextWhereItIsEnabled)
{
    showAt(2);
    sheet->SetWizardButtons(true, wizardButton::nextDisabled);
    first.sheet->pressNext();
    EXPECT_EQ(2, sheet->currentPosition());
    sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    first.sheet->pressNext();
    EXPECT_EQ(3, sheet->currentPosition());
    sheet->SetWizardButtons(true, wizardButton::finishEnabled);
    first.sheet->pressNext();
    EXPECT_EQ(3, sheet->currentPosition());
}

TEST_F(WizardSheetTest, BackDuringAPagesWorkShowsThePageBeforeAndTheWorkGoesOn)
{
    showAt(3);
    second.timer.setEnabled(true);
    second.timer.onTick = [&] {
        sheet->back();
        heard.push_back("work goes on");
        sheet->pressNext();
    };
    sheet->tick(second.timer);
    EXPECT_EQ((Heard{"second back", "first activate", "shows first", "work goes on", "first next",
                     "second activate", "shows second"}),
              heard);
}

TEST_F(WizardSheetTest, ACancelDuringAPagesWorkClosesAtOnceAndAllLivesUntilTheWorkReturns)
{
    showAt(3);
    std::weak_ptr<OpenSheet> alive = sheet;
    observer.onClosed = [&] { sheet.reset(); };
    second.timer.setEnabled(true);
    second.timer.onTick = [&] {
        OpenSheet& atWork = *sheet;
        atWork.cancel();
        ASSERT_FALSE(alive.expired());
        EXPECT_TRUE(atWork.closed());
        EXPECT_TRUE(atWork.atWork());
        second.sheet->SetWizardButtons(true, wizardButton::nextEnabled);
        second.sheet->pressNext();
        heard.push_back("work is done");
    };
    sheet->tick(second.timer);
    EXPECT_EQ((Heard{"second query cancel", "first cancel", "second cancel", "first close",
                     "second close", "closed", "work is done"}),
              heard);
    EXPECT_TRUE(alive.expired());
}

TEST_F(WizardSheetTest, TellsTheHostOfButtonsThatChangeAlone)
{
    showAt(2);
    sheet->SetWizardButtons(true, wizardButton::nextEnabled);
    EXPECT_EQ(Heard{}, heard);
    sheet->SetWizardButtons(true, wizardButton::nextDisabled);
    EXPECT_EQ(Heard{"shows buttons"}, heard);
}

TEST_F(WizardSheetTest, AnErrorOfAHandlerComesOutAndTheSheetStaysUsable)
{
    struct Case {
        const char* because;
        std::function<void(FourPageWizard&)> arrange;
        std::function<void(WizardSheet&)> act;
        int place;
        bool closed;
    };
    const Case cases[] = {
        {"Next raises: the page stays", [](auto& t) { t.first.onNext = [](int&) { fail(5); }; },
         [](auto& s) { s.next(); }, 2, false},
        {"Back raises: the page stays", [](auto& t) { t.first.onBack = [](int&) { fail(5); }; },
         [](auto& s) { s.back(); }, 2, false},
        {"the other page's activation raises: it is on show all the same",
         [](auto& t) { t.second.onActivate = [](bool&, int&, std::string&) { fail(5); }; },
         [](auto& s) { s.next(); }, 3, false},
        {"the question of cancelling raises: nothing is cancelled",
         [](auto& t) { t.first.onQueryCancel = [](bool&) { fail(5); }; },
         [](auto& s) { s.cancel(); }, 2, false},
        {"the cancel of one page raises: all are told, and the sheet closes",
         [](auto& t) { t.first.onCancel = [] { fail(5); }; }, [](auto& s) { s.cancel(); }, 2, true},
        {"the question raises as the sheet is abandoned: it closes all the same",
         [](auto& t) { t.first.onQueryCancel = [](bool&) { fail(5); }; },
         [](auto& s) { s.abandon(); }, 2, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        FourPageWizard fresh;
        c.arrange(fresh);
        fresh.showAt(2);
        EXPECT_EQ(5, errorNumberOf([&] { c.act(*fresh.sheet); }));
        EXPECT_EQ(c.place, fresh.sheet->currentPosition());
        EXPECT_EQ(c.closed, fresh.sheet->closed());
        EXPECT_FALSE(fresh.sheet->atWork());
    }
}

TEST_F(WizardSheetTest, APageThatFailsToInitialiseKeepsNoOtherPageFromIt)
{
    first.onInitialize = [] { fail(3709); };
    EXPECT_EQ(3709, errorNumberOf([&] { sheet->show(); }));
    EXPECT_EQ((Heard{"welcome activate", "first initialize", "second initialize", "shows welcome"}),
              heard);
}

TEST_F(WizardSheetTest, ASheetWithoutPagesClosesAtOnce)
{
    WizardSheet empty("Empty");
    empty.observe(&observer);
    empty.show();
    EXPECT_EQ(Heard{"closed"}, heard);
    EXPECT_TRUE(empty.closed());
}

TEST_F(WizardSheetTest, RaisesForPlacesWithoutAPage)
{
    for (const int place : {-1, 0, 5}) {
        SCOPED_TRACE(place);
        EXPECT_EQ(9, errorNumberOf([&] { sheet->show(place); }));
        EXPECT_EQ(9, errorNumberOf([&] { sheet->page(place); }));
    }
    EXPECT_EQ("Title of first", sheet->pageTitle(2));
    EXPECT_FALSE(sheet->hasHelpButton(2));
    EXPECT_EQ("Wizard", sheet->title());
}

TEST(APageWithoutHandlers, LeavesEveryArgumentAsItIs)
{
    struct Silent final : SheetPage, IWizardPage, IMMCPropertyPage {
        Silent() : SheetPage("silent") {}
    } page;
    bool back = true;
    bool allow = true;
    int number = 7;
    int height = 100;
    int width = 200;
    std::string text = "Finish";
    WizardSheet sheet("");

    page.IWizardPage_Activate(back, number, text);
    page.IWizardPage_Next(number);
    page.IWizardPage_Back(number);
    page.IWizardPage_Finish();
    page.IMMCPropertyPage_Initialize(nullptr, sheet);
    page.IMMCPropertyPage_GetDialogUnitSize(height, width);
    page.IMMCPropertyPage_QueryCancel(allow);
    page.IMMCPropertyPage_Help();
    page.IMMCPropertyPage_Cancel();
    page.IMMCPropertyPage_Close();

    EXPECT_TRUE(back);
    EXPECT_TRUE(allow);
    EXPECT_EQ(7, number);
    EXPECT_EQ(100, height);
    EXPECT_EQ(200, width);
    EXPECT_EQ("Finish", text);
    EXPECT_EQ(nullptr, static_cast<SheetPage&>(page).wizardPage());
    EXPECT_EQ(nullptr, page.control("none"));
}

} // namespace
