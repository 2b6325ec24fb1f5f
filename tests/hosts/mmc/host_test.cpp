// A snap-in in the console of tests: what a person does in the one is an event of the other.
#include "hosts/mmc/com/interface_ids.h"
#include "hosts/mmc/console/console.h"
#include "hosts/mmc/module.h"
#include "hosts/mmc/tried_snap_in.h"
#include "platform/desktop.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace mmc {
namespace {

using stand_in::Shown;
using stand_in::Window;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class HostInConsole : public testing::Test {
protected:
    ~HostInConsole() override
    {
        console_.close();
        EXPECT_EQ(breaches_, console_.breaches());
        EXPECT_EQ(0, tried_.toolsAlive);
    }

    HRESULT make(REFIID id, void** object)
    {
        IClassFactory* factory = nullptr;
        HRESULT result = classObject(tried_.snapIn, tried_.snapIn.classId, idOf<IClassFactory>,
                                     reinterpret_cast<void**>(&factory));
        if (FAILED(result)) return result;
        result = factory->CreateInstance(nullptr, id, object);
        factory->Release();
        return result;
    }

    Window& loaded()
    {
        EXPECT_TRUE(console_.load());
        return console_.window();
    }

    /// How often the model was told something.
    long times(const std::string& what) const
    {
        return std::count(tried_.told.begin(), tried_.told.end(), what);
    }

    TriedSnapIn tried_;
    std::vector<std::string> breaches_; ///< that a test expects
    stand_in::ConsoleOptions options_;
    stand_in::Console console_{[this](REFIID id, void** object) { return make(id, object); },
                               tried_.snapIn.classId, options_};
};

class HostInConsoleOfLists : public HostInConsole {
protected:
    stand_in::Console lists_{[this](REFIID id, void** object) { return make(id, object); },
                             tried_.snapIn.classId,
                             {.prefersTaskPads = false}};
};

TEST_F(HostInConsole, SelectsAndOpensTheModelsNodesAsThePersonDoes)
{
    Window& window = loaded();
    window.select("one/one leaf");

    EXPECT_THAT(tried_.told,
                ElementsAre("initialize", "load", "expand Static Node", "show Static Node",
                            "select Static Node", "expand one", "expand one leaf",
                            "leave Static Node", "show one leaf", "select one leaf"));
    EXPECT_EQ(Shown::virtualList, window.shown());
    EXPECT_THAT(window.columnTitles(), ElementsAre("Number", "Text"));
    EXPECT_THAT(window.rows(), ElementsAre(ElementsAre("2", "caf\xC3\xA9"), ElementsAre("10", "b"),
                                           ElementsAre("1", "c")));
    EXPECT_TRUE(window.isVerbEnabled(MMC_VERB_REFRESH));
}

TEST_F(HostInConsole, FollowsASelectionThatTheToolMovesWithRowsAndVerbs)
{
    Window& window = loaded();
    window.select("one/one leaf");
    tried_.told.clear();
    tried_.work = [](Console& model) {
        model.expand(model.scopeItems().item("two"));
        model.currentView().select(model.scopeItems().item("two leaf"));
    };

    window.choose("Work");

    EXPECT_EQ("two/two leaf", window.selectedPath());
    EXPECT_EQ(3, window.rowCount());
    EXPECT_TRUE(window.isVerbEnabled(MMC_VERB_REFRESH));
    EXPECT_EQ(1, times("select two leaf"));
}

TEST_F(HostInConsole, GoesToTheParentOfANodeThatTheToolRemovesOnce)
{
    Window& window = loaded();
    window.select("one/one leaf");
    tried_.told.clear();
    tried_.work = [](Console& model) { model.scopeItems().remove("one leaf"); };

    window.choose("Work");

    EXPECT_EQ("one", window.selectedPath());
    EXPECT_THAT(console_.children("one"), IsEmpty());
    EXPECT_EQ(1, times("select one"));
    EXPECT_TRUE(window.isVerbEnabled(MMC_VERB_REFRESH));
}

TEST_F(HostInConsole, RunsACommandInATurnThatEndsWithIt)
{
    Window& window = loaded();
    std::weak_ptr<const void> turn;
    tried_.takeTurn = [&] {
        const auto taken = std::make_shared<int>(0);
        turn = taken;
        return taken;
    };
    bool held = false;
    tried_.work = [&](Console&) { held = !turn.expired(); };

    window.refresh();
    window.contextMenu();
    EXPECT_TRUE(turn.expired());
    window.choose("Work");
    EXPECT_TRUE(held);
    EXPECT_TRUE(turn.expired());
}

TEST_F(HostInConsole, LetsOthersHaveTheirTurnWhileABoxIsOnShow)
{
    Window& window = loaded();
    std::weak_ptr<const void> turn;
    tried_.takeTurn = [&] {
        const auto taken = std::make_shared<int>(0);
        turn = taken;
        return taken;
    };
    bool held = true;
    console_.contract().admits = [&](const char* method) {
        if (std::string(method) == "MessageBox") held = !turn.expired();
        return true;
    };
    tried_.work = [&](Console&) {
        EXPECT_FALSE(turn.expired());
        tried_.desktop->messageBox("text", "title", MessageIcon::none);
    };
    window.choose("Work");

    EXPECT_THAT(console_.boxes(), testing::SizeIs(1));
    EXPECT_FALSE(held);
}

TEST_F(HostInConsole, SaysThatAnotherProgramKeepsItsTurnAndRunsNothing)
{
    Window& window = loaded();
    tried_.takeTurn = []() -> std::shared_ptr<const void> {
        throw RunTimeError(runTimeErrors::permissionDenied, "another one is at it");
    };
    window.choose("Work");

    ASSERT_THAT(console_.boxes(), testing::SizeIs(1));
    EXPECT_EQ("another one is at it", console_.boxes()[0].text);
    EXPECT_EQ(0, times("click mnuWork"));
}

TEST_F(HostInConsole, RunsNoCommandWhileTheToolIsAtWork)
{
    Window& window = loaded();
    tried_.work = [&](Console&) {
        EXPECT_THAT(window.contextMenu(), IsEmpty());
        window.clickTask("First");
        window.refresh();
    };

    window.choose("Work");

    EXPECT_EQ(0, times("task 1"));
    EXPECT_EQ(0, times("refresh Static Node"));
    window.clickTask("First");
    EXPECT_EQ(1, times("task 1"));
}

TEST_F(HostInConsole, CatchesUpWithANodeThatThePersonSelectedWhileTheToolWasAtWork)
{
    Window& window = loaded();
    tried_.work = [&](Console&) {
        window.select("one");
        EXPECT_EQ(0, times("select one"));
        EXPECT_EQ(0, times("expand one"));
    };

    window.choose("Work");

    EXPECT_EQ("one", window.selectedPath());
    EXPECT_EQ(1, times("select one"));
    EXPECT_EQ(1, times("expand one"));
    EXPECT_THAT(window.rows(), ElementsAre(ElementsAre("one leaf")));
}

TEST_F(HostInConsole, CatchesUpWithTheLastOfSeveralNodesAlone)
{
    Window& window = loaded();
    tried_.work = [&](Console&) {
        window.select("one");
        window.select("two");
    };

    window.choose("Work");

    EXPECT_EQ("two", window.selectedPath());
    EXPECT_EQ(0, times("select one"));
    EXPECT_EQ(1, times("select two"));
}

TEST_F(HostInConsole, GivesHelpWhileTheToolIsAtWork)
{
    Window& window = loaded();
    tried_.work = [&](Console&) { EXPECT_TRUE(window.help()); };

    window.choose("Work");

    EXPECT_EQ(1, times("help Static Node"));
    EXPECT_TRUE(console_.helpOnSnapIn());
    EXPECT_EQ(1, times("help"));
}

TEST_F(HostInConsole, TellsThePersonWhatACommandRaises)
{
    Window& window = loaded();
    tried_.work = [](Console&) { throw RunTimeError(runTimeErrors::permissionDenied, "Not you."); };

    window.choose("Work");

    ASSERT_EQ(1U, console_.boxes().size());
    EXPECT_EQ("Tried", console_.boxes()[0].title);
    EXPECT_EQ("Not you.", console_.boxes()[0].text);
}

TEST_F(HostInConsole, TellsWhyTheToolIsLameInTheStatusBarOfTheRootOnce)
{
    tried_.complaint = "No server here.";
    Window& window = loaded();
    EXPECT_EQ("No server here.", window.statusText());
    EXPECT_THAT(console_.boxes(), IsEmpty());
}

TEST_F(HostInConsole, SortsRowsByAHeaderAndKeepsTheirOrderWhenTheyAreShownAnew)
{
    Window& window = loaded();
    window.select("one/one leaf");

    window.sort(0, false);
    EXPECT_THAT(window.rows(), ElementsAre(ElementsAre("1", "c"), ElementsAre("2", "caf\xC3\xA9"),
                                           ElementsAre("10", "b")));
    window.doubleClick(2);
    EXPECT_EQ(1, times("double click 10"));

    window.sort(0, true);
    window.select("two/two leaf");
    EXPECT_EQ("10", window.cell(0, 0));
}

TEST_F(HostInConsole, GoesToANodeThatIsDoubleClickedInAList)
{
    Window& window = loaded();
    window.select("one");
    window.doubleClick(0);
    EXPECT_EQ("one/one leaf", window.selectedPath());
    EXPECT_EQ(3, window.rowCount());
}

TEST_F(HostInConsole, GivesEachWindowASelectionAndRowsOfItsOwn)
{
    Window& first = loaded();
    first.select("one/one leaf");
    Window& second = console_.openWindow();
    second.select("two/two leaf");
    second.sort(0, false);

    EXPECT_EQ("one/one leaf", first.selectedPath());
    EXPECT_EQ("2", first.cell(0, 0));
    EXPECT_EQ("1", second.cell(0, 0));

    console_.closeWindow(0);
    EXPECT_EQ(1, times("leave one leaf"));
    EXPECT_EQ("1", console_.window().cell(0, 0));
}

TEST_F(HostInConsole, RenewsAnotherWindowOnTheNodeThatIsRefreshed)
{
    Window& first = loaded();
    first.select("one/one leaf");
    Window& second = console_.openWindow();
    second.select("one/one leaf");
    Window& third = console_.openWindow();
    third.select("two/two leaf");
    tried_.told.clear();

    first.refresh();

    EXPECT_THAT(tried_.told, ElementsAre("refresh one leaf", "show one leaf", "show one leaf"));
    EXPECT_EQ(3, second.rowCount());
}

TEST_F(HostInConsole, OffersATaskAsACommandUnlessACommandIsCalledSo)
{
    Window& window = loaded();
    std::vector<std::string> captions;
    for (const auto& item : window.contextMenu()) captions.push_back(item.caption);

    EXPECT_THAT(captions, ElementsAre("Work", "First", "Second"));
    window.choose("Second");
    EXPECT_EQ(1, times("task 2"));
}

TEST_F(HostInConsole, TellsTheSnapInOfAMenuWhenThatOneIsBuilt)
{
    Window& window = loaded();
    window.contextMenu();

    EXPECT_EQ(1, times("top menu"));
    EXPECT_EQ(1, times("task menu"));
}

TEST_F(HostInConsole, OffersTheLanguagesOfTheTool)
{
    tried_.languages = {"Select Language", {"English", "Japanese"}};
    Window& window = loaded();
    std::vector<std::string> captions;
    for (const auto& item : window.contextMenu()) captions.push_back(item.caption);

    EXPECT_THAT(captions, ElementsAre("Work", "English", "Japanese", "First", "Second"));
    window.choose("Japanese");
    EXPECT_EQ(1, times("language Japanese"));
}

TEST_F(HostInConsole, BuildsTheMenuOfANodeBeforeAnythingOfTheSnapInsIsSelected)
{
    Window& window = loaded();
    Window& second = console_.openWindow();
    EXPECT_THAT(console_.menuOf("one"), Not(IsEmpty()));
    EXPECT_EQ("", window.selectedPath());
    EXPECT_EQ(0, second.selected());
}

TEST_F(HostInConsole, LetsTheToolGoWhenTheConsoleEndsInTheMiddleOfWork)
{
    Window& window = loaded();
    tried_.work = [&](Console&) {
        console_.close();
        EXPECT_EQ(1, tried_.unloaded);
        EXPECT_EQ(1, tried_.cancelled);
        EXPECT_EQ(1, tried_.toolsAlive);
    };

    window.choose("Work");

    EXPECT_EQ(1, tried_.unloaded);
    EXPECT_EQ(0, tried_.toolsAlive);
    // The command that is under way has a reference.
    breaches_ = {"IComponentData is still referenced after the console let it go"};
}

TEST_F(HostInConsoleOfLists, ShowsTasksAsRowsThatADoubleClickRuns)
{
    ASSERT_TRUE(lists_.load());
    Window& window = lists_.window();

    EXPECT_EQ(Shown::virtualList, window.shown());
    EXPECT_THAT(window.columnTitles(), ElementsAre("All tasks", "What can be done"));
    EXPECT_THAT(window.rows(), ElementsAre(ElementsAre("First", "The first"),
                                           ElementsAre("Second", "The second")));
    window.doubleClick(1);
    EXPECT_EQ(1, times("task 2"));

    lists_.close();
    EXPECT_THAT(lists_.breaches(), IsEmpty());
}

TEST(HostAlone, TellsWhyAToolCantBeOpenedAndLetsTheConsoleGo)
{
    TriedSnapIn tried;
    tried.openingFails = runTimeErrors::fileNotFound;
    stand_in::Console console(
        [&](REFIID id, void** object) {
            IClassFactory* factory = nullptr;
            classObject(tried.snapIn, tried.snapIn.classId, idOf<IClassFactory>,
                        reinterpret_cast<void**>(&factory));
            const HRESULT made = factory->CreateInstance(nullptr, id, object);
            factory->Release();
            return made;
        },
        tried.snapIn.classId);

    EXPECT_FALSE(console.load());

    ASSERT_EQ(1U, console.boxes().size());
    EXPECT_EQ("File not found", console.boxes()[0].text);
    console.close();
    EXPECT_THAT(console.breaches(), ElementsAre("IComponentData::Initialize failed"));
}

TEST(About, TellsWhatTheSnapInIsWithoutATool)
{
    TriedSnapIn tried;
    IClassFactory* factory = nullptr;
    ASSERT_EQ(S_OK, classObject(tried.snapIn, tried.snapIn.aboutId, idOf<IClassFactory>,
                                reinterpret_cast<void**>(&factory)));
    ISnapinAbout* about = nullptr;
    ASSERT_EQ(S_OK, factory->CreateInstance(nullptr, idOf<ISnapinAbout>,
                                            reinterpret_cast<void**>(&about)));
    factory->Release();
    LPOLESTR text = nullptr;

    EXPECT_EQ(S_OK, about->GetSnapinDescription(&text));
    EXPECT_STREQ(L"What it is", text);
    CoTaskMemFree(text);
    EXPECT_EQ(S_OK, about->GetSnapinVersion(&text));
    EXPECT_STREQ(L" 1.2 Build 3", text);
    CoTaskMemFree(text);
    HICON icon = nullptr;
    EXPECT_EQ(S_FALSE, about->GetSnapinImage(&icon));
    about->Release();
    EXPECT_THAT(tried.told, IsEmpty());
    EXPECT_EQ(0, tried.toolsAlive);
}

} // namespace
} // namespace mmc
