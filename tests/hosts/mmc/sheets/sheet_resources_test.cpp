#include "console/wizard_sheet.h"
#include "hosts/mmc/sheets/every_control_page.h"
#include "hosts/mmc/sheets/sheet_on_show.h"

#include <gmock/gmock.h>

#include <fstream>

namespace mmc {

namespace {

constexpr int rounds = 100;

void showAndCancel(ToolSide& tool)
{
    auto sheet = std::make_shared<WizardSheet>("Title");
    for (int page = 0; page < 2; ++page)
        sheet->addPage(std::make_unique<EveryControlPage>(), "Page title", false);
    sheet->show();
    SheetOnShow shown(tool, sheet);
    shown.frame().press(PSBTN_NEXT);
    settle();
    shown.frame().press(PSBTN_CANCEL);
    settle();
    EXPECT_TRUE(shown.gone());
    settle();
}

/// The objects of this process that draw. Wine does not count them, but knows each by the lower
/// half of its handle.
long drawingObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<long>(counted);
    long found = 0;
    for (ULONG_PTR handle = 1; handle <= 0xFFFF; ++handle)
        found += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
    return found;
}

/// The windows of this thread that stand in no other.
long ownWindows()
{
    long found = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND, LPARAM count) -> BOOL {
            ++*reinterpret_cast<long*>(count);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The memory of this process in pages, which Wine does not tell by the system's own calls; 0
/// where there is no such file.
long memoryPages()
{
    std::ifstream told("Z:\\proc\\self\\statm");
    long size = 0;
    long resident = 0;
    told >> size >> resident;
    return resident;
}

TEST(SheetResources, SheetsLeaveNoWindowsAndNoObjectsBehind)
{
    ToolSide tool;
    for (int round = 0; round < 5; ++round) showAndCancel(tool); // what is made once
    const long objects = drawingObjects();
    ASSERT_GT(objects, 0);
    const long windows = ownWindows();
    const long memory = memoryPages();
    for (int round = 0; round < rounds; ++round) showAndCancel(tool);
    EXPECT_LT(drawingObjects(), objects + rounds / 2);
    EXPECT_EQ(windows, ownWindows());
    constexpr long pagesOfRound = 8;
    EXPECT_LT(memoryPages(), memory + rounds * pagesOfRound);
}

} // namespace

} // namespace mmc
