#include "hosts/mmc/sheets/control_view.h"

#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

/// The text with `lineEnd` where it has an end of a line of any kind.
std::wstring withLineEnds(const std::string& text, const wchar_t* lineEnd)
{
    const std::wstring given = wideOf(text);
    std::wstring made;
    for (std::size_t at = 0; at < given.size(); ++at) {
        if (given[at] == L'\r' && at + 1 < given.size() && given[at + 1] == L'\n') continue;
        if (given[at] == L'\r' || given[at] == L'\n')
            made += lineEnd;
        else
            made += given[at];
    }
    return made;
}

} // namespace

std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void setText(HWND window, const std::wstring& text)
{
    if (textOf(window) != text) SetWindowTextW(window, text.c_str());
}

std::wstring fieldText(const std::string& text)
{
    return withLineEnds(text, L"\r\n");
}

std::wstring labelText(const std::string& text)
{
    return withLineEnds(text, L"\n");
}

Drawing ControlView::drawing()
{
    State state{control_.visible(), control_.enabled(), wideOf(control_.toolTip()),
                control_.font()};
    return [this, state = std::move(state), own = ownDrawing()] {
        show(state);
        own();
    };
}

void ControlView::create(ViewPage& page)
{
    page_ = &page;
    makeWindows();
    showFont();
}

void ControlView::showFont()
{
    for (const HWND window : windows_)
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
}

bool ControlView::has(HWND window) const
{
    return std::find(windows_.begin(), windows_.end(), window) != windows_.end();
}

void ControlView::place(const RECT& area)
{
    MoveWindow(window(), area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

HWND ControlView::make(const wchar_t* kind, DWORD style, DWORD extendedStyle)
{
    const HWND page = page_->window();
    const HINSTANCE module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(page, GWLP_HINSTANCE));
    const HWND made = CreateWindowExW(extendedStyle, kind, L"", style | WS_CHILD | WS_VISIBLE, 0, 0,
                                      0, 0, page, nullptr, module, nullptr);
    windows_.push_back(made);
    return made;
}

void ControlView::show(const State& state)
{
    if (std::exchange(visible_, state.visible) != state.visible) page_->rearrange();
    if (!state.visible || !state.enabled) leaveFocus();
    for (const HWND window : windows_) {
        ShowWindow(window, state.visible ? SW_SHOWNA : SW_HIDE);
        EnableWindow(window, state.enabled);
    }
    if (std::exchange(toolTip_, state.toolTip) != state.toolTip)
        for (const HWND window : windows_) page_->setToolTip(window, state.toolTip);
    if (state.font == font_) return;
    font_ = state.font;
    showFont();
    page_->rearrange();
}

/// Gives the keyboard to the next control, so that it is not lost with this one.
void ControlView::leaveFocus() const
{
    const HWND focused = GetFocus();
    if (!focused || !has(focused)) return;
    SendMessageW(GetAncestor(focused, GA_ROOT), WM_NEXTDLGCTL, 0, FALSE);
}

} // namespace mmc
