#include "hosts/mmc/console/console.h"
#include "hosts/mmc/console/handle_count.h"
#include "hosts/mmc/obeying_snap_in.h"

#include <gmock/gmock.h>

using obeying::Fault;
using testing::ElementsAre;
using testing::IsEmpty;

namespace stand_in {

namespace {

Console::Maker maker(Fault fault)
{
    return [fault](REFIID id, void** object) { return obeying::make(fault, id, object); };
}

/// All that a person can do with the small snap-in; gives what it did wrong.
std::vector<std::string> breachesOf(Fault fault)
{
    Console console(maker(fault), obeying::classId);
    if (console.load()) {
        Window& window = console.window();
        console.outline();
        window.rows();
        window.select("List");
        window.rows();
        window.select("Pad");
        window.tasks();
        window.contextMenu();
        window.refresh();
        if (fault == Fault::sheetWithoutPages) window.choose("Show a sheet");
        console.sendWhatIsNotHandled();
    }
    console.close();
    return console.breaches();
}

/// Goes on behind a fault that was raised for the test: a true one tells what was accessed.
LONG CALLBACK goOn(EXCEPTION_POINTERS* fault)
{
    return fault->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION &&
                   fault->ExceptionRecord->NumberParameters == 0
               ? EXCEPTION_CONTINUE_EXECUTION
               : EXCEPTION_CONTINUE_SEARCH;
}

TEST(StandInConsole, FindsNothingWrongWithASnapInThatObeys)
{
    EXPECT_THAT(breachesOf(Fault::none), IsEmpty());
}

TEST(StandInConsole, NamesWhatASnapInDoesWrong)
{
    struct Case {
        Fault fault;
        const char* breach;
    };
    const Case cases[] = {
        {Fault::unknownParent, "a relative that is not in the tree"},
        {Fault::unopenedParent, "a parent that was never opened"},
        {Fault::nodeWithoutCookie, "without a cookie"},
        {Fault::sameCookie, "two items of the tree have one cookie"},
        {Fault::unknownNodeImage, "an image that was never added"},
        {Fault::staticNodeDeleted, "the static node, which is the console's"},
        {Fault::imagesInShow, "ImageListSetIcon is called outside of MMCN_ADD_IMAGES"},
        {Fault::imagesKept, "the images of MMCN_ADD_IMAGES are kept"},
        {Fault::verbInShow, "SetVerbState is called outside of MMCN_SELECT"},
        {Fault::nodeTextFreed, "of a node did not last"},
        {Fault::rowTextFreed, "of a row did not last"},
        {Fault::rowInVirtualList, "InsertItem is called for a virtual list"},
        {Fault::countBeforeColumns, "SetItemCount is called before there is a column"},
        {Fault::columnPastLast, "a position past the last column"},
        {Fault::menuNotAllowed, "is inserted where it is not allowed"},
        {Fault::menuSameNumber, "has the number of another"},
        {Fault::menuReservedNumber, "has a number that is reserved"},
        {Fault::menuKept, "a context menu is kept after AddMenuItems"},
        {Fault::viewTypeOfOwnMemory, "is not of the task's memory"},
        {Fault::formatMissing, "lacks one of the formats"},
        {Fault::formatInvented, "a format that it cannot know"},
        {Fault::otherThread, "on another thread than the console's"},
        {Fault::consoleKept, "a component keeps its console after IComponent::Destroy"},
        {Fault::componentKept, "a component is still referenced"},
        {Fault::exceptionLeaves, "an exception left IComponent::GetDisplayInfo"},
        {Fault::accessViolation, "a fault C0000005 happened"},
        {Fault::everythingTaken, "the snap-in takes MMCN_PASTE"},
        {Fault::unknownSelected, "SelectScopeItem is given an item that is not in the tree"},
        {Fault::sheetWithoutPages, "a sheet without pages"},
        {Fault::pageOutside, "without CreatePropertySheet"},
        {Fault::taskWithoutText, "a task has no text"},
        {Fault::nameSpaceOfWindow, "a component asks its console for the name space"},
    };
    void* const handler = AddVectoredExceptionHandler(0, goOn);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.breach);
        EXPECT_THAT(breachesOf(c.fault), testing::Contains(testing::HasSubstr(c.breach)));
    }
    RemoveVectoredExceptionHandler(handler);
}

TEST(StandInConsole, ShowsTreeListsAndTaskPadsAsAPersonSeesThem)
{
    Console console(maker(Fault::none), obeying::classId);
    ASSERT_TRUE(console.load());
    Window& window = console.window();

    EXPECT_THAT(console.outline(), ElementsAre("Root", "  List", "  Pad"));
    EXPECT_EQ(Shown::virtualList, window.shown());
    EXPECT_THAT(window.columnTitles(), ElementsAre("First", "Second"));
    EXPECT_EQ(3, window.rowCount());
    EXPECT_THAT(window.row(2), ElementsAre("row 2, column 0", "row 2, column 1"));
    EXPECT_TRUE(window.isVerbEnabled(MMC_VERB_REFRESH));
    EXPECT_FALSE(window.isVerbEnabled(MMC_VERB_DELETE));

    window.select("Pad");
    EXPECT_EQ(Shown::taskPad, window.shown());
    EXPECT_EQ("Pad title", window.taskPadTitle());
    window.clickTask("Do it");
    EXPECT_EQ("task 7", window.statusText());
    console.close();
    EXPECT_THAT(console.breaches(), IsEmpty());
}

TEST(StandInConsole, RefreshesAllWindows)
{
    Console console(maker(Fault::none), obeying::classId);
    ASSERT_TRUE(console.load());
    console.openWindow().select("List");

    EXPECT_TRUE(console.window(0).refresh());

    EXPECT_EQ(1, console.window(0).viewChanges());
    EXPECT_EQ(1, console.window(1).viewChanges());
    EXPECT_EQ("List", console.window(1).selectedPath());
}

TEST(StandInConsole, CountsEachHandleThatIsHeld)
{
    const HandleCount before = countHandles();
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HandleCount held = countHandles();
    CloseHandle(event);
    DestroyWindow(window);
    DeleteObject(brush);

    EXPECT_EQ((HandleCount{before.kernel + 1, before.windows + 1, before.gdi + 1}), held);
    EXPECT_EQ(before, countHandles());
}

TEST(StandInConsole, LetsAPersonActOnASheetOnAThreadOfItsOwn)
{
    Console console(maker(Fault::none), obeying::classId);
    ASSERT_TRUE(console.load());
    std::string typed;
    bool ticked = false;
    console.withSheet([&] { console.window().choose("Show a sheet"); },
                      [&](Sheet& sheet) {
                          sheet.type("other");
                          sheet.click("Tick");
                          typed = sheet.edit();
                          ticked = sheet.isTicked("Tick");
                          EXPECT_FALSE(sheet.isEnabled(Sheet::Button::apply));
                          EXPECT_THROW(sheet.click("Nothing"), std::runtime_error);
                          sheet.press(Sheet::Button::ok);
                      });
    EXPECT_EQ("other", typed);
    EXPECT_TRUE(ticked);
    console.close();
    EXPECT_THAT(console.breaches(), IsEmpty());
}

TEST(StandInConsole, SaysWhenASheetStaysOpenAfterItsEnd)
{
    Console console(maker(Fault::none), obeying::classId);
    ASSERT_TRUE(console.load());
    console.window().choose("Show a sheet");
    ASSERT_TRUE(console.pumpUntil([&] { return !console.openSheets().empty(); }));
    const HWND sheet = console.openSheets().front();

    console.close();

    EXPECT_THAT(console.breaches(),
                testing::Contains("a sheet is open after the end of its console"));
    PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    EXPECT_TRUE(console.pumpUntil([&] { return console.openSheets().empty(); }));
}

} // namespace

} // namespace stand_in
