#include "hosts/mmc/console/sheet.h"

namespace stand_in {

namespace {

// The sheet that this thread is about to show: its callback is given nothing of ours.
struct Running {
    SheetRegister* sheets;
    HWND marker;
    HWND shown;
};
thread_local Running* running = nullptr;

int CALLBACK sheetMade(HWND sheet, UINT message, LPARAM)
{
    if (message == PSCB_INITIALIZED && running) {
        running->shown = sheet;
        running->sheets->opened(sheet, running->marker);
    }
    return 0;
}

LRESULT CALLBACK markerProcedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message != WM_APP) return DefWindowProcW(window, message, first, second);
    SetEvent(reinterpret_cast<HANDLE>(first));
    return 0;
}

HWND makeMarker()
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = markerProcedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"StandInSheetMarker";
    RegisterClassW(&kind); // fails from the second time on, and is there already
    return CreateWindowExW(0, kind.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                           kind.hInstance, nullptr);
}

} // namespace

SheetRegister::~SheetRegister()
{
    for (std::thread& thread : threads_) {
        // One that does not end would keep the test from telling so.
        if (running_ > 0)
            thread.detach();
        else
            thread.join();
    }
}

void SheetRegister::opened(HWND sheet, HWND marker)
{
    const std::lock_guard held(lock_);
    open_.push_back({sheet, marker, false});
}

void SheetRegister::closed(HWND sheet)
{
    const std::lock_guard held(lock_);
    std::erase_if(open_, [&](const Open& each) { return each.sheet == sheet; });
}

std::vector<HWND> SheetRegister::windows() const
{
    const std::lock_guard held(lock_);
    std::vector<HWND> found;
    for (const Open& each : open_) found.push_back(each.sheet);
    return found;
}

HWND SheetRegister::take(int milliseconds)
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    do {
        {
            const std::lock_guard held(lock_);
            for (Open& each : open_)
                if (!std::exchange(each.taken, true)) return each.sheet;
        }
        Sleep(5);
    } while (GetTickCount64() < end);
    return nullptr;
}

HWND SheetRegister::markerOf(HWND sheet) const
{
    const std::lock_guard held(lock_);
    for (const Open& each : open_)
        if (each.sheet == sheet) return each.marker;
    return nullptr;
}

void SheetRegister::start(std::function<void()> body)
{
    ++running_;
    threads_.emplace_back([this, body = std::move(body)] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        body();
        CoUninitialize();
        --running_;
    });
}

SheetFrame::~SheetFrame()
{
    for (const HPROPSHEETPAGE page : pages) DestroyPropertySheetPage(page);
}

INT_PTR SheetFrame::run(SheetRegister& sheets, HWND owner, int firstPage)
{
    PROPSHEETHEADERW made{};
    made.dwSize = sizeof made;
    made.dwFlags = PSH_USECALLBACK;
    if (wizard) made.dwFlags |= (options & MMC_PSO_NEWWIZARDTYPE) ? PSH_WIZARD97 : PSH_WIZARD;
    if (!wizard && !(options & MMC_PSO_NO_PROPTITLE)) made.dwFlags |= PSH_PROPTITLE;
    if (options & MMC_PSO_NOAPPLYNOW) made.dwFlags |= PSH_NOAPPLYNOW;
    if (options & MMC_PSO_HASHELP) made.dwFlags |= PSH_HASHELP;
    if (watermark) {
        made.dwFlags |= PSH_WATERMARK | PSH_USEHBMWATERMARK;
        made.hbmWatermark = watermark;
    }
    if (header) {
        made.dwFlags |= PSH_HEADER | PSH_USEHBMHEADER;
        made.hbmHeader = header;
    }
    made.hwndParent = owner;
    made.hInstance = GetModuleHandleW(nullptr);
    made.pszCaption = title.c_str();
    made.nPages = static_cast<UINT>(pages.size());
    made.nStartPage = static_cast<UINT>(firstPage);
    made.phpage = pages.data();
    made.pfnCallback = sheetMade;

    Running here{&sheets, makeMarker(), nullptr};
    Running* const before = std::exchange(running, &here);
    std::vector<HPROPSHEETPAGE> shown;
    shown.swap(pages); // the sheet frees them from here on
    made.phpage = shown.data();
    const INT_PTR result = PropertySheetW(&made);
    running = before;
    if (here.shown) sheets.closed(here.shown);
    DestroyWindow(here.marker);
    return result;
}

} // namespace stand_in
