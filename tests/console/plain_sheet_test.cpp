#include "console/plain_sheet.h"

#include "console/recording_pages.h"
#include "controls/recording_observer.h"

#include <gtest/gtest.h>

namespace {

struct PlainSheetTest : testing::Test {
    Heard heard;
    RecordingSheetObserver observer{heard};
    std::shared_ptr<PlainSheet> sheet = std::make_shared<PlainSheet>("Sheet");
    RecordingSheetPage& first = addPage<RecordingSheetPage>(*sheet, "first", heard);
    RecordingSheetPage& second = addPage<RecordingSheetPage>(*sheet, "second", heard);

    PlainSheetTest()
    {
        sheet->observe(&observer);
        sheet->show();
    }
};

TEST_F(PlainSheetTest, InitialisesItsPagesAndActivatesNone)
{
    EXPECT_EQ((Heard{"first initialize", "second initialize", "shows first"}), heard);
}

TEST_F(PlainSheetTest, ShowsTheTabThatThePersonPicks)
{
    sheet->selectPage(2);
    EXPECT_EQ(2, sheet->currentPosition());
    EXPECT_EQ("shows second", heard.back());
    EXPECT_EQ(9, errorNumberOf([&] { sheet->selectPage(3); }));
    EXPECT_EQ(2, sheet->currentPosition());
}

TEST_F(PlainSheetTest, OffersApplyOnceAPageHasChanged)
{
    heard.clear();
    EXPECT_FALSE(sheet->canApply());
    second.Changed(true);
    EXPECT_TRUE(sheet->canApply());
    second.Changed(true);
    EXPECT_EQ(Heard{"shows buttons"}, heard);
}

TEST_F(PlainSheetTest, DeliversOneApplyTwiceToThePagesThatHaveChanged)
{
    second.Changed(true);
    heard.clear();
    sheet->apply();
    EXPECT_EQ((Heard{"second apply", "second apply", "shows buttons"}), heard);
    EXPECT_FALSE(sheet->canApply());
    EXPECT_FALSE(sheet->closed());
}

TEST_F(PlainSheetTest, APageThatClearsItsChangeAtTheFirstDeliveryGetsTheSecondAllTheSame)
{
    first.onApply = [&] { first.Changed(false); };
    first.Changed(true);
    heard.clear();
    sheet->apply();
    EXPECT_EQ((Heard{"first apply", "shows buttons", "first apply"}), heard);
}

TEST_F(PlainSheetTest, OkAppliesAndCloses)
{
    first.Changed(true);
    heard.clear();
    sheet->ok();
    EXPECT_EQ((Heard{"first apply", "first apply", "shows buttons", "first close", "second close",
                     "closed"}),
              heard);
}

TEST_F(PlainSheetTest, OkWithoutAChangeClosesAlone)
{
    heard.clear();
    sheet->ok();
    EXPECT_EQ((Heard{"first close", "second close", "closed"}), heard);
}

TEST_F(PlainSheetTest, CancelAppliesNothing)
{
    first.Changed(true);
    heard.clear();
    sheet->cancel();
    EXPECT_EQ((Heard{"first query cancel", "first cancel", "second cancel", "first close",
                     "second close", "closed"}),
              heard);
}

TEST_F(PlainSheetTest, AnApplyThatRaisesKeepsTheSheetOpenWithItsChanges)
{
    first.onApply = [] { throw RunTimeError(3709); };
    first.Changed(true);
    second.Changed(true);
    heard.clear();
    EXPECT_EQ(3709, errorNumberOf([&] { sheet->ok(); }));
    EXPECT_EQ((Heard{"first apply", "second apply", "first apply", "second apply"}), heard);
    EXPECT_TRUE(sheet->canApply());
    EXPECT_FALSE(sheet->closed());
}

TEST_F(PlainSheetTest, AClosedSheetIgnoresEverything)
{
    sheet->cancel();
    first.Changed(true);
    heard.clear();
    sheet->ok();
    sheet->apply();
    sheet->selectPage(2);
    sheet->SetWizardButtons(true, wizardButton::finishEnabled);
    EXPECT_FALSE(sheet->canApply());
    EXPECT_EQ(Heard{}, heard);
}

TEST_F(PlainSheetTest, AFontReachesThePageItselfAndGoesAgain)
{
    first.setFont({128, "Gothic"});
    EXPECT_EQ("Gothic", first.font().name);
    first.setFont({1, ""});
    EXPECT_EQ((ControlFont{1, ""}), first.font());
}

} // namespace
