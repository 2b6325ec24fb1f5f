#include "console/console.h"

#include "console/console_fixture.h"
#include "controls/recording_observer.h"

TEST_F(ConsoleTest, HasTheRootFirstAndItsAutomaticChildrenBehindIt)
{
    ASSERT_EQ(2, console.scopeItems().count());
    EXPECT_EQ("Static Node", root().key());
    EXPECT_EQ("Static Node", root().name());
    EXPECT_EQ("Tool", root().displayName());
    EXPECT_EQ("", root().kind());

    ScopeItem& machines = console.scopeItems().item(2);
    EXPECT_EQ("Machines*", machines.displayName());
    EXPECT_EQ("Machines", machines.kind());
    EXPECT_EQ(&root(), machines.parent());
}

TEST_F(ConsoleTest, InitialisesThenLoadsAndShowsNothingYet)
{
    console.load(snapIn);

    EXPECT_EQ((Texts{"initialize", "load"}), snapIn.taken());
    EXPECT_EQ(91, errorNumberOf([&] { console.currentScopeItem(); }));
}

TEST_F(ConsoleTest, TellsThatTheSelectionStandsAfterRowsAndVerbs)
{
    console.load(snapIn);
    snapIn.heard.clear();

    view().select(root());

    EXPECT_EQ((Texts{"expand Static Node", "> Static Node", "reset pad", "fill pad of Static Node",
                     "filled pad", "select Static Node", "selected Static Node"}),
              snapIn.taken());
}

TEST_F(ConsoleTest, TakesTheSnapInsNameForItsRoot)
{
    console.displayName("Diagnostics");

    EXPECT_EQ("Diagnostics", root().displayName());
    EXPECT_EQ("Provider", console.identity().provider);
}

TEST_F(ConsoleTest, OpensANodeOnce)
{
    load();
    ScopeItem& machines = console.scopeItems().item(2);

    console.expand(machines);
    console.expand(machines);

    EXPECT_TRUE(machines.expanded());
    EXPECT_EQ((Texts{"expand Machines"}), snapIn.taken());
}

TEST_F(ConsoleTest, OpensANodeBeforeItsViewIsShown)
{
    load();

    view().select(console.scopeItems().item(2));

    EXPECT_EQ((Texts{"expand Machines", "deselect Static Node", "> Machines", "reset machines",
                     "fill machines of Machines", "filled machines", "select Machines",
                     "selected Machines"}),
              snapIn.taken());
}

TEST_F(ConsoleTest, ShowsAnewWhatIsSelectedAlready)
{
    load();

    view().select(root());

    EXPECT_EQ((Texts{"deselect Static Node", "reset pad", "fill pad of Static Node", "filled pad",
                     "select Static Node", "selected Static Node"}),
              snapIn.taken());
}

TEST_F(ConsoleTest, KeepsPaneItemsInTheOrderOfTheirFirstSelection)
{
    load();
    ScopeItem& machines = console.scopeItems().item(2);
    ScopeItem& one = add("one", machines);
    view().select(one);
    view().select(machines);
    view().select(one);

    ASSERT_EQ(3, view().scopePaneItemCount());
    EXPECT_EQ("Static Node", view().scopePaneItem(1).key());
    EXPECT_EQ("one", view().scopePaneItem(2).key());
    EXPECT_EQ("Machines", view().scopePaneItem(3).key());
    EXPECT_EQ(&view().scopePaneItem(2), &view().selectedScopePaneItem());
    EXPECT_EQ(9, errorNumberOf([&] { view().scopePaneItem(4); }));
}

TEST_F(ConsoleTest, KeepsTheColumnsOfAViewAndFillsItsRowsAnew)
{
    snapIn.onInitialize = [](ResultView& shown) {
        if (shown.type() != ResultViewType::list) return;
        if (shown.list().columnCount() == 1) shown.list().addColumn();
        EXPECT_EQ(0, shown.list().itemCount());
        shown.list().addItem(1, "row");
    };
    load();
    ScopeItem& machines = console.scopeItems().item(2);
    view().select(machines);
    ListView& list = view().selectedScopePaneItem().resultView().list();
    ASSERT_EQ(1, list.itemCount());

    view().select(root());
    EXPECT_EQ(0, list.itemCount()) << "rows behind another view are let go";

    view().select(machines);
    EXPECT_EQ(2, list.columnCount());
    EXPECT_EQ(1, list.itemCount());
}

TEST_F(ConsoleTest, SortsAListWhenItIsFilled)
{
    snapIn.onInitialize = [](ResultView& shown) {
        if (shown.displayString() != "files") return;
        shown.list().addItem(1, "older").addSubItem(1, "2005");
        shown.list().addItem(2, "newer").addSubItem(1, "2006");
    };
    load();
    view().select(add("one", root()));

    ListView& list = view().selectedScopePaneItem().resultView().list();
    EXPECT_EQ("newer", list.shown(1).text());

    snapIn.heard.clear();
    console.doubleClickRow(1);
    EXPECT_EQ((Texts{"double click newer"}), snapIn.taken());
}

TEST_F(ConsoleTest, ShowsADeclaredViewOfTheSelectedItemAnew)
{
    load();
    view().select(console.scopeItems().item(2));
    snapIn.heard.clear();

    view().display("machines", ResultViewType::list);

    EXPECT_EQ((Texts{"reset machines", "fill machines of Machines", "filled machines"}),
              snapIn.taken());
    EXPECT_EQ(5, errorNumberOf([&] { view().display("machines", ResultViewType::taskPad); }));
    EXPECT_EQ(5, errorNumberOf([&] { view().display("none", ResultViewType::list); }));
}

TEST_F(ConsoleTest, OpensATaskPadWhoseBackgroundNamesNothing)
{
    load();

    TaskPad& pad = view().selectedScopePaneItem().resultView().taskPad();
    EXPECT_EQ("#2/nothing", pad.background);
    EXPECT_EQ("Two", pad.task(2).text);
    EXPECT_EQ(9, errorNumberOf([&] { pad.task(3); }));
    EXPECT_EQ(91, errorNumberOf([&] { view().selectedScopePaneItem().resultView().list(); }));
}

TEST_F(ConsoleTest, MovesTheSelectionToTheParentWhenWhatIsSelectedGoes)
{
    load();
    ScopeItem& one = add("one", root());
    view().select(add("below", one));
    snapIn.heard.clear();

    console.scopeItems().remove("one");

    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ(1, view().scopePaneItemCount());
    EXPECT_EQ(
        (Texts{"deselect below", "> Static Node", "reset pad", "fill pad of Static Node",
               "filled pad", "select Static Node", "selected Static Node", "- below", "- one"}),
        snapIn.taken());
}

TEST_F(ConsoleTest, LeavesTheSelectionWhenAnotherItemGoes)
{
    load();
    add("one", root());
    view().select(add("two", root()));
    snapIn.heard.clear();

    console.scopeItems().remove("one");

    EXPECT_EQ("two", selected());
    EXPECT_EQ((Texts{"- one"}), snapIn.taken());
}

TEST_F(ConsoleTest, SurvivesASnapInThatRemovesTheItemWhoseViewItFills)
{
    load();
    ScopeItem& one = add("one", root());
    snapIn.onInitialize = [&](ResultView& shown) {
        if (shown.scopePaneItem().key() != "one") return;
        console.scopeItems().remove("one");
        shown.list().addItem(1, shown.scopePaneItem().key());
    };
    snapIn.heard.clear();

    view().select(one);

    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ("selected Static Node", snapIn.heard[snapIn.heard.size() - 2]);
    EXPECT_EQ("- one", snapIn.heard.back()) << "the removed item is neither filled nor selected";
}

TEST_F(ConsoleTest, RefusesAnItemThatIsOutOfTheTree)
{
    load();
    const auto kept = add("one", root()).shared_from_this();
    console.scopeItems().remove("one");

    EXPECT_EQ(5, errorNumberOf([&] { view().select(*kept); }));
    EXPECT_EQ(5, errorNumberOf([&] { console.expand(*kept); }));
    EXPECT_EQ("Static Node", selected());
}

TEST_F(ConsoleTest, RefusesToSelectAnItemThatGoesWhileItIsOpened)
{
    load();
    ScopeItem& one = add("one", root());
    snapIn.onExpand = [&](ScopeItem&) { console.scopeItems().remove("one"); };

    EXPECT_EQ(5, errorNumberOf([&] { view().select(one); }));
    EXPECT_EQ("Static Node", selected());
}

TEST_F(ConsoleTest, BuildsAMenuForTheSelectionFromTheMenusAsTheyStand)
{
    load();
    console.menu("mnuTask").item("mnuOne").caption = "First";

    const ContextMenu menu = console.taskMenu();

    EXPECT_EQ((Texts{"task menu for Static Node"}), snapIn.taken());
    ASSERT_EQ(2u, menu.entries().size());
    EXPECT_EQ("First", menu.entries()[0].caption);
    EXPECT_EQ("does one", menu.entries()[0].statusBarText);
    EXPECT_TRUE(menu.entries()[0].visible);
    EXPECT_TRUE(menu.entries()[0].enabled);
    EXPECT_EQ(35601, errorNumberOf([&] { console.menu("mnuNone"); }));
}

TEST_F(ConsoleTest, PassesOnThePersonsWishForHelp)
{
    EXPECT_EQ(91, errorNumberOf([&] { console.helpOnSnapIn(); })) << "nothing is loaded";
    EXPECT_EQ(91, errorNumberOf([&] { console.helpOnResultView(); }));
    load();
    view().select(add("one", root()));
    snapIn.heard.clear();

    console.helpOnSnapIn();
    console.helpOnScopeItem();
    console.helpOnResultView();
    EXPECT_EQ((Texts{"help", "help on one", "help on files"}), snapIn.taken());
}

TEST_F(ConsoleTest, PassesOnClicksOnWhatCanBeClicked)
{
    load();

    console.clickMenuItem("mnuTwo");
    console.clickTask("2");
    EXPECT_EQ((Texts{"menu mnuTwo", "task 2"}), snapIn.taken());

    console.menu("mnuTask").item("mnuTwo").enabled = false;
    EXPECT_EQ(5, errorNumberOf([&] { console.clickMenuItem("mnuTwo"); }));
    EXPECT_EQ(35601, errorNumberOf([&] { console.clickMenuItem("mnuThree"); }));
    EXPECT_EQ(35601, errorNumberOf([&] { console.clickTask("3"); }));
    EXPECT_EQ(91, errorNumberOf([&] { console.doubleClickRow(1); }));
    EXPECT_TRUE(snapIn.taken().empty());

    view().select(console.scopeItems().item(2));
    EXPECT_EQ(91, errorNumberOf([&] { console.clickTask("1"); }));
}

TEST_F(ConsoleTest, OffersNoVerbUntilTheSnapInEnablesIt)
{
    snapIn.offersRefresh = false;
    load();
    console.refresh();
    EXPECT_TRUE(snapIn.taken().empty());

    snapIn.offersRefresh = true;
    view().select(root());
    snapIn.heard.clear();
    console.refresh();
    EXPECT_EQ((Texts{"refresh Static Node"}), snapIn.taken());
    EXPECT_FALSE(view().verbs().enabled(consoleVerb::properties));
    EXPECT_EQ(9, errorNumberOf([&] { view().verbs().verb(0x9000); }));
}

TEST_F(ConsoleTest, ShowsTheStatusBarTextAtOnce)
{
    view().statusBarText("Working");

    EXPECT_EQ("Working", view().statusBarText());
    EXPECT_EQ((Texts{"status Working"}), snapIn.taken());
}

TEST_F(ConsoleTest, LetsTheSnapInGoEvenIfItRaises)
{
    load();
    snapIn.onUnload = [] { throw RunTimeError(429); };

    EXPECT_EQ(429, errorNumberOf([&] { console.unload(); }));
    EXPECT_EQ(91, errorNumberOf([&] { console.unload(); }));
    EXPECT_EQ((Texts{"unload"}), snapIn.taken());
}

TEST_F(ConsoleTest, AsksForNothingBeforeASnapInIsLoaded)
{
    EXPECT_EQ(91, errorNumberOf([&] { console.currentScopeItem(); }));
    EXPECT_EQ(91, errorNumberOf([&] { console.expand(root()); }));
    EXPECT_FALSE(root().expanded());
    EXPECT_EQ(91, errorNumberOf([&] { console.taskMenu(); }));
    EXPECT_EQ(91, errorNumberOf([&] { console.clickTask("1"); }));
}

TEST_F(ConsoleTest, TellsAnObserverNothingMoreOnceItLeft)
{
    console.removeObserver(snapIn);

    view().statusBarText("Working");

    EXPECT_TRUE(snapIn.taken().empty());
}

TEST_F(ConsoleTest, TellsNothingToWhoLeavesWhileOthersAreTold)
{
    struct Leaving final : RecordingSnapIn {
        std::function<void()> leave;
        void statusBarChanged(View& view) override
        {
            RecordingSnapIn::statusBarChanged(view);
            leave();
        }
    };
    Leaving first;
    RecordingSnapIn second;
    RecordingSnapIn last;
    first.leave = [&] {
        console.removeObserver(first);
        console.removeObserver(second);
    };
    console.addObserver(first);
    console.addObserver(second);
    console.addObserver(last);

    view().statusBarText("Working");
    EXPECT_EQ((Texts{"status Working"}), first.taken());
    EXPECT_EQ(Texts{}, second.taken()) << "it left before its turn";
    EXPECT_EQ((Texts{"status Working"}), last.taken()) << "nobody is passed over";

    view().statusBarText("Done");
    EXPECT_EQ(Texts{}, first.taken());
    EXPECT_EQ((Texts{"status Done"}), last.taken());
}

TEST_F(ConsoleTest, TellsWhoJoinsWhileOthersAreToldFromTheNextTimeOn)
{
    struct Joining final : RecordingSnapIn {
        std::function<void()> join;
        void statusBarChanged(View&) override { join(); }
    };
    Joining first;
    RecordingSnapIn joined;
    first.join = [&] {
        console.addObserver(joined);
        first.join = [] {};
    };
    console.addObserver(first);

    view().statusBarText("Working");
    EXPECT_EQ(Texts{}, joined.taken());
    view().statusBarText("Done");
    EXPECT_EQ((Texts{"status Done"}), joined.taken());
}

TEST_F(ConsoleTest, KnowsTheViewOfAnItemBeforeItIsShown)
{
    const ViewChoice pad = console.defaultView(root());
    EXPECT_EQ("pad", pad.displayString);
    EXPECT_EQ(ResultViewType::taskPad, pad.type);

    const ViewChoice machines = console.defaultView(console.scopeItems().item(2));
    EXPECT_EQ("machines", machines.displayString);
    EXPECT_EQ(ResultViewType::list, machines.type);
    EXPECT_EQ(ListRows::childNodes, machines.rows);
    EXPECT_EQ(ListRows::own, console.defaultView(add("one", root())).rows);

    ScopeItem& unknown = console.scopeItems().addChild("no such type", "two", root());
    EXPECT_EQ(5, errorNumberOf([&] { console.defaultView(unknown); }));
    EXPECT_TRUE(snapIn.taken() == (Texts{"+ one", "+ two"})) << "nothing was shown for it";
}

TEST_F(ConsoleTest, GivesANodeThePictureOfItsTypeBeforeObserversHearOfIt)
{
    struct Watching final : RecordingSnapIn {
        void scopeItemAdded(ScopeItem& item) override { heard.push_back(item.image()); }
        void scopeItemChanged(ScopeItem& item) override { heard.push_back("now " + item.image()); }
    };
    Watching watching;
    console.addObserver(watching);
    EXPECT_EQ("house", root().image());

    ScopeItem& one = add("one", root());
    one.image("open box");
    console.scopeItems().addChild("no such type", "two", root());

    EXPECT_EQ((Texts{"box", "now open box", ""}), watching.taken());
}

TEST_F(ConsoleTest, OffersToOpenANodeUntilItProvesEmptyAndNeverOneOfATypeWithoutNodes)
{
    load();
    ScopeItem& machine = add("one", root());
    ScopeItem& file = console.scopeItems().addChild("nodeFile", "file", machine);
    EXPECT_TRUE(machine.hasChildren());
    EXPECT_FALSE(file.hasChildren());

    console.scopeItems().remove("file");
    EXPECT_TRUE(machine.hasChildren()) << "it was never opened";
    console.expand(machine);
    EXPECT_FALSE(machine.hasChildren());
    add("below", machine);
    EXPECT_TRUE(machine.hasChildren());
}

TEST_F(ConsoleTest, IsBusyWhileACallIsUnderWay)
{
    EXPECT_EQ(Busy::no, console.busy());
    load();
    Busy inCall = Busy::no;
    snapIn.onInitialize = [&](ResultView&) { inCall = console.busy(); };

    view().select(root());
    EXPECT_EQ(Busy::call, inCall);
    EXPECT_EQ(Busy::no, console.busy());

    snapIn.onExpand = [](ScopeItem&) { throw RunTimeError(5); };
    EXPECT_EQ(5, errorNumberOf([&] { console.expand(add("one", root())); }));
    EXPECT_EQ(Busy::no, console.busy()) << "a call that raises is over, too";

    const Console::Work around{console};
    view().select(root());
    EXPECT_EQ(Busy::call, console.busy()) << "a host keeps it busy around its calls";
}
