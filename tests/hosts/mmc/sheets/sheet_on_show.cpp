#include "hosts/mmc/sheets/sheet_on_show.h"

#include "console/wizard_sheet.h"
#include "runtime/run_time_error.h"

#include <stdexcept>

namespace mmc {

namespace {

constexpr DWORD patience = 10000; ///< milliseconds

bool handleOne()
{
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    if (NativeSheet::takesMessage(message)) return true;
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
}

} // namespace

NativeSheet::Around ToolSide::around()
{
    return {[this](const std::function<void()>& what) {
                try {
                    what();
                } catch (const RunTimeError& error) {
                    told.push_back(error.description());
                }
            },
            [this] { return busy; },
            {}};
}

void settle()
{
    while (handleOne()) continue;
}

bool waitFor(const std::function<bool()>& condition)
{
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > patience) return false;
        if (!handleOne()) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

Frame::Frame(NativeSheet& sheet, const std::vector<HPROPSHEETPAGE>& pages, bool wizard)
{
    const std::wstring title = sheet.title();
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = sheet.headerFlags() | PSH_MODELESS;
    if (wizard) header.dwFlags |= PSH_WIZARD97;
    header.pszCaption = title.c_str();
    header.nPages = static_cast<UINT>(pages.size());
    header.nStartPage = static_cast<UINT>(sheet.firstPage());
    header.phpage = const_cast<HPROPSHEETPAGE*>(pages.data());
    const INT_PTR made = PropertySheetW(&header);
    if (made == 0 || made == -1) throw std::runtime_error("the system makes no sheet");
    window_ = reinterpret_cast<HWND>(made);
}

Frame::~Frame()
{
    if (IsWindow(window_)) DestroyWindow(window_);
}

HWND Frame::page() const
{
    return reinterpret_cast<HWND>(SendMessageW(window_, PSM_GETCURRENTPAGEHWND, 0, 0));
}

bool Frame::over()
{
    if (!IsWindow(window_)) return true;
    if (page()) return false;
    DestroyWindow(window_);
    return true;
}

void Frame::press(int button) const
{
    SendMessageW(window_, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
}

SheetOnShow::SheetOnShow(ToolSide& tool, std::shared_ptr<OpenSheet> sheet)
    : native_(NativeSheet::make(tool.thread, tool.around(), sheet)),
      frame_(std::make_unique<Frame>(*native_, native_->makePages(), sheet->wizard() != nullptr))
{
    settle();
}

HWND SheetOnShow::find(const wchar_t* kind, int number) const
{
    return childrenOf(frame_->page(), kind).at(static_cast<std::size_t>(number));
}

bool SheetOnShow::gone()
{
    return frame_->over();
}

std::vector<HWND> childrenOf(HWND parent, const wchar_t* kind)
{
    std::vector<HWND> found;
    HWND child = nullptr;
    while ((child = FindWindowExW(parent, child, kind, nullptr))) found.push_back(child);
    return found;
}

std::wstring shownText(HWND window)
{
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1,
                      L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

} // namespace mmc
