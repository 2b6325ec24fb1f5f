#include "console/view.h"

#include "console/console_fixture.h"
#include "controls/recording_observer.h"

namespace {

/// A console with two windows, the first of which shows the root.
struct TwoViews : ConsoleTest {
    TwoViews() { load(); }

    View& second = console.addView();
    ScopeItem& machines() { return console.scopeItems().item(2); }

    static std::string shownIn(View& shown) { return shown.selectedScopePaneItem().key(); }
    static ListView& listIn(View& shown)
    {
        return shown.selectedScopePaneItem().resultView().list();
    }

    /// Lists are filled with their node's key.
    void fillLists()
    {
        snapIn.onInitialize = [](ResultView& shown) {
            if (shown.type() == ResultViewType::list)
                shown.list().addItem(1, shown.scopePaneItem().key());
        };
    }
};

} // namespace

TEST_F(TwoViews, HaveASelectionAndRowsOfTheirOwn)
{
    fillLists();
    view().select(add("one", root()));
    EXPECT_EQ(91, errorNumberOf([&] { second.selectedScopePaneItem(); }));

    second.select(add("two", root()));

    EXPECT_EQ("one", shownIn(view()));
    EXPECT_EQ("two", shownIn(second));
    EXPECT_EQ("one", listIn(view()).item(1).text());
    EXPECT_EQ("two", listIn(second).item(1).text());

    second.select(console.scopeItems().item("one"));
    second.select(root());
    EXPECT_EQ(1, listIn(view()).itemCount()) << "the other window's rows of the node are its own";
    EXPECT_EQ(&second, &second.selectedScopePaneItem().view());
}

TEST_F(TwoViews, AreTheCurrentOneWhileTheyAreWorkedOn)
{
    View& first = view();
    std::vector<View*> worked;
    snapIn.onInitialize = [&](ResultView&) { worked.push_back(&console.currentView()); };

    second.select(machines());
    second.display("machines", ResultViewType::list);
    EXPECT_EQ((std::vector<View*>{&second, &second}), worked);
    EXPECT_EQ(&first, &console.currentView());
    EXPECT_EQ("Static Node", console.currentScopeItem().key());
}

TEST_F(TwoViews, TheOneThePersonGoesToIsAskedForMenusAndHelp)
{
    second.select(machines());
    console.activate(second);
    snapIn.heard.clear();

    console.taskMenu();
    console.helpOnScopeItem();
    console.refresh();

    EXPECT_EQ((Texts{"task menu for Machines", "help on Machines", "refresh Machines"}),
              snapIn.taken());
}

TEST_F(TwoViews, StayWithTheOneThatThePersonGoesToWhileAnotherIsWorkedOn)
{
    View& third = console.addView();
    snapIn.onInitialize = [&](ResultView&) { console.activate(third); };

    second.select(machines());

    EXPECT_EQ(&third, &console.currentView());
}

TEST_F(TwoViews, TellTheirStatusByThemselves)
{
    second.statusBarText("Working");

    EXPECT_EQ((Texts{"status Working"}), snapIn.taken());
    EXPECT_EQ("", view().statusBarText());
}

TEST_F(TwoViews, BothGoToTheParentWhenWhatTheyShowGoes)
{
    ScopeItem& one = add("one", root());
    view().select(one);
    second.select(add("below", one));

    console.scopeItems().remove("one");

    EXPECT_EQ("Static Node", shownIn(view()));
    EXPECT_EQ("Static Node", shownIn(second));
    EXPECT_EQ(1, second.scopePaneItemCount());
}

TEST_F(TwoViews, AClosedOneLeavesItsSelectionAndIsNotWorkedOnAnyMore)
{
    second.select(add("one", root()));
    console.activate(second);
    snapIn.heard.clear();

    const Console::Work around{console}; // so that the closed one can still be asked
    console.closeView(second);

    EXPECT_EQ((Texts{"deselect one"}), snapIn.taken());
    EXPECT_EQ((std::vector<View*>{&view()}), console.views());
    EXPECT_NE(&second, &console.currentView());
    EXPECT_EQ(5, errorNumberOf([&] { second.select(root()); }));
    EXPECT_EQ(5, errorNumberOf([&] { console.activate(second); }));
    EXPECT_EQ(5, errorNumberOf([&] { console.closeView(second); }));

    console.scopeItems().remove("one");
    EXPECT_EQ((Texts{"- one"}), snapIn.taken()) << "nothing shows it any more";
}

TEST_F(TwoViews, OneMayBeClosedWhileItIsFilled)
{
    snapIn.onInitialize = [&](ResultView& shown) {
        console.closeView(second);
        shown.list().addItem(1, shown.scopePaneItem().key());
    };
    snapIn.heard.clear();

    second.select(add("one", root()));

    EXPECT_EQ(
        (Texts{"+ one", "expand one", "> one", "reset files", "fill files of one", "deselect one"}),
        snapIn.taken())
        << "it is neither filled nor selected";
    EXPECT_EQ(1u, console.views().size());
}

TEST_F(TwoViews, TheLastOneIsNotClosed)
{
    console.closeView(view());
    EXPECT_EQ(&second, &console.currentView());

    EXPECT_EQ(5, errorNumberOf([&] { console.closeView(second); }));
}

TEST_F(TwoViews, ASheetOutlivesTheOneItWasOpenedIn)
{
    second.select(root());
    console.activate(second);
    struct Page final : SheetPage {
        Page() : SheetPage("page") {}
    };
    snapIn.onCreatePages = [](OpenSheet& sheet) {
        sheet.addPage(std::make_unique<Page>(), "Page", false);
    };
    PropertySheetProvider& sheets = second.propertySheetProvider();
    sheets.createPropertySheet("sheet", SheetType::propertySheet, root());
    sheets.addPrimaryPages();
    sheets.show(1);

    console.closeView(second);

    ASSERT_NE(nullptr, view().propertySheetProvider().lastSheet());
    EXPECT_FALSE(view().propertySheetProvider().lastSheet()->closed());
}

TEST_F(TwoViews, AnOrderThatWasChosenGoesOnToListsOfTheSameKindInTheSameWindow)
{
    ScopeItem& one = add("one", root());
    ScopeItem& two = add("two", root());
    second.select(one);
    view().select(one);
    listIn(view()).chooseOrder({1, false});

    view().select(machines());
    EXPECT_EQ(RowOrder{}, listIn(view()).chosenOrder()) << "a list of another kind";
    view().select(two);
    EXPECT_EQ((RowOrder{1, false}), listIn(view()).chosenOrder());
    listIn(view()).chooseOrder({1, true});
    view().display("files", ResultViewType::list);
    EXPECT_EQ((RowOrder{1, true}), listIn(view()).chosenOrder()) << "shown anew";
    view().select(one);
    EXPECT_EQ((RowOrder{1, true}), listIn(view()).chosenOrder()) << "what was chosen last";

    second.select(two);
    EXPECT_EQ(RowOrder{}, listIn(second).chosenOrder()) << "another window";
}

TEST_F(TwoViews, AnOrderIsNotForAListThatHasOtherColumnsMeanwhile)
{
    ScopeItem& one = add("one", root());
    view().select(one);
    listIn(view()).chooseOrder({1, false});
    snapIn.onInitialize = [](ResultView& shown) { shown.list().addColumn(); };

    view().select(one);

    EXPECT_EQ(RowOrder{}, listIn(view()).chosenOrder());
}
