#include "console/property_sheet_provider.h"

#include "console/console.h"
#include "console/plain_sheet.h"
#include "console/recording_pages.h"
#include "console/recording_snap_in.h"
#include "console/shown_sheets.h"
#include "console/wizard_sheet.h"
#include "controls/recording_observer.h"

#include <gtest/gtest.h>

namespace {

SnapInDefinition definitionOfOneNode()
{
    SnapInDefinition definition;
    definition.nodeTypes.push_back({"nodeRoot", "Root", "list"});
    definition.listViews.emplace_back().name = "list";
    return definition;
}

struct PropertySheetProviderTest : testing::Test {
    SnapInDefinition definition = definitionOfOneNode();
    Console console{definition};
    RecordingSnapIn snapIn;
    ShownSheets shownSheets{console};
    PropertySheetProvider& sheets = console.currentView().propertySheetProvider();
    RecordingSheetPage* page = nullptr;
    Heard pageHeard;

    PropertySheetProviderTest()
    {
        snapIn.console = &console;
        snapIn.onCreatePages = [this](OpenSheet& sheet) {
            page = &addPage<RecordingSheetPage>(sheet, "page", pageHeard);
        };
        console.load(snapIn);
        console.currentView().select(console.root());
        console.addObserver(snapIn);
        snapIn.taken();
    }

    void open(SheetType type = SheetType::wizard)
    {
        sheets.createPropertySheet("A Sheet", type, console.scopeItems().item(rootKey));
        sheets.addPrimaryPages();
        sheets.show(1);
    }
};

TEST_F(PropertySheetProviderTest, AsksTheSnapInForPagesAndTellsObserversWhenTheSheetIsUp)
{
    open();
    EXPECT_EQ((Heard{"pages for Static Node", "sheet A Sheet"}), snapIn.taken());
    EXPECT_EQ((Heard{"page initialize", "page activate"}), pageHeard);
    ASSERT_NE(nullptr, sheets.lastSheet());
    EXPECT_NE(nullptr, sheets.lastSheet()->wizard());
    EXPECT_EQ(nullptr, sheets.lastSheet()->plainSheet());
    EXPECT_EQ(1u, shownSheets.open().size());
}

TEST_F(PropertySheetProviderTest, MakesAPlainSheetWhereItIsAskedFor)
{
    open(SheetType::propertySheet);
    EXPECT_NE(nullptr, sheets.lastSheet()->plainSheet());
    EXPECT_EQ(nullptr, sheets.lastSheet()->wizard());
}

TEST_F(PropertySheetProviderTest, RaisesWithoutASheetThatWaits)
{
    EXPECT_EQ(91, errorNumberOf([&] { sheets.addPrimaryPages(); }));
    EXPECT_EQ(91, errorNumberOf([&] { sheets.show(1); }));
    EXPECT_EQ(nullptr, sheets.lastSheet());
    open();
    EXPECT_EQ(91, errorNumberOf([&] { sheets.show(1); }));
}

TEST_F(PropertySheetProviderTest, RaisesForAPlaceWithoutAPageAndTheSheetGoesOnWaiting)
{
    sheets.createPropertySheet("", SheetType::wizard, console.scopeItems().item(rootKey));
    sheets.addPrimaryPages();
    EXPECT_EQ(9, errorNumberOf([&] { sheets.show(2); }));
    EXPECT_EQ(nullptr, sheets.lastSheet());
    sheets.show(1);
    EXPECT_EQ(1u, shownSheets.open().size());
}

TEST_F(PropertySheetProviderTest, TellsObserversWhatAPageRaises)
{
    snapIn.onCreatePages = [this](OpenSheet& sheet) {
        addPage<RecordingSheetPage>(sheet, "page", pageHeard).onInitialize = [] {
            throw RunTimeError(424);
        };
    };
    open();
    EXPECT_EQ((Heard{"pages for Static Node", "failed 424", "sheet A Sheet"}), snapIn.taken());
}

TEST_F(PropertySheetProviderTest, ASheetWithoutPagesIsNotShown)
{
    snapIn.onCreatePages = [](OpenSheet&) {};
    open();
    EXPECT_EQ(Heard{"pages for Static Node"}, snapIn.taken());
    EXPECT_TRUE(shownSheets.open().empty());
    EXPECT_TRUE(sheets.lastSheet()->closed());
}

TEST_F(PropertySheetProviderTest, TwoSheetsMayBeOpenAtTheSameTime)
{
    open();
    open(SheetType::propertySheet);
    ASSERT_EQ(2u, shownSheets.open().size());
    shownSheets.open().front()->cancel();
    ASSERT_EQ(1u, shownSheets.open().size());
    EXPECT_EQ(sheets.lastSheet(), shownSheets.open().front());
}

TEST_F(PropertySheetProviderTest, AClosedSheetStaysWhileAnotherOneIsOpen)
{
    open();
    open();
    const std::weak_ptr<OpenSheet> second = sheets.lastSheet();
    second.lock()->cancel();
    open(SheetType::propertySheet);
    EXPECT_FALSE(second.expired()) << "the first one's pages may know it as the wizard's sheet";
    for (const auto& sheet : shownSheets.open()) sheet->cancel();
    open();
    EXPECT_TRUE(second.expired());
}

TEST_F(PropertySheetProviderTest, AClosedSheetGoesWithTheNextButNotWhileAnyIsAtWork)
{
    open();
    const std::weak_ptr<OpenSheet> first = sheets.lastSheet();
    RecordingSheetPage& working = *page;
    working.timer.setEnabled(true);
    working.timer.onTick = [&] {
        open();
        const std::weak_ptr<OpenSheet> second = sheets.lastSheet();
        second.lock()->cancel();
        open();
        EXPECT_FALSE(second.expired());
    };
    first.lock()->tick(working.timer);
    for (const auto& sheet : shownSheets.open()) sheet->cancel();
    EXPECT_FALSE(first.expired());
    open();
    EXPECT_TRUE(first.expired());
}

TEST_F(PropertySheetProviderTest, KeepsTheConsoleBusyWhileAPageOfAnySheetIsAtWork)
{
    open();
    RecordingSheetPage& working = *page;
    const std::shared_ptr<OpenSheet> first = sheets.lastSheet();
    open(SheetType::propertySheet);
    Busy inTick = Busy::no;
    working.timer.setEnabled(true);
    working.timer.onTick = [&] {
        first->cancel();
        inTick = console.busy();
    };
    EXPECT_EQ(Busy::no, console.busy()) << "sheets on show wait for the person";

    first->tick(working.timer);

    EXPECT_EQ(Busy::sheet, inTick) << "closed already, and not the one that was shown last";
    EXPECT_EQ(Busy::no, console.busy());
}

} // namespace
