// What the window of a page does with its messages.

#include "hosts/mmc/sheets/page_messages.h"
#include "hosts/mmc/sheets/sheet_page_window.h"

#include <algorithm>
#include <utility>

namespace mmc {

INT_PTR CALLBACK SheetPageWindow::procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    try {
        if (message == WM_INITDIALOG) {
            const auto& made = *reinterpret_cast<const PROPSHEETPAGEW*>(second);
            const auto& held = *reinterpret_cast<const PageHold*>(made.lParam);
            SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(held.page));
            held.page->create(window);
            return TRUE;
        }
        auto* page = reinterpret_cast<SheetPageWindow*>(GetWindowLongPtrW(window, DWLP_USER));
        if (!page) return FALSE;
        // The sheet may be let go of by what is done now.
        const auto hold = page->sheet_.shared_from_this();
        return page->handle(window, message, first, second);
    } catch (...) {
        return FALSE; // nothing leaves for the system, which could do nothing with it
    }
}

INT_PTR SheetPageWindow::handle(HWND window, UINT message, WPARAM first, LPARAM second)
{
    switch (message) {
    case WM_NOTIFY:
        return notified(*reinterpret_cast<const NMHDR*>(second));
    case WM_COMMAND:
        if (ControlView* view = viewOf(reinterpret_cast<HWND>(second)))
            view->commanded(reinterpret_cast<HWND>(second), HIWORD(first));
        return FALSE;
    case WM_TIMER:
        timeOver(first);
        return TRUE;
    case WM_SIZE:
        place();
        return FALSE;
    case WM_ERASEBKGND:
        if (bandHeight_ == 0) return FALSE;
        paintBand(reinterpret_cast<HDC>(first));
        SetWindowLongPtrW(window, DWLP_MSGRESULT, TRUE);
        return TRUE;
    case WM_CTLCOLORSTATIC:
        if (!isOnBand(reinterpret_cast<HWND>(second))) return FALSE;
        SetTextColor(reinterpret_cast<HDC>(first), GetSysColor(COLOR_WINDOWTEXT));
        SetBkColor(reinterpret_cast<HDC>(first), GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
    case WM_SYSCOLORCHANGE:
        // Windows tells the outermost window alone, and each hands it on.
        for (const auto& view : views_)
            if (view)
                for (const HWND control : view->windows())
                    SendMessageW(control, message, first, second);
        InvalidateRect(window, nullptr, TRUE);
        return FALSE;
    case pageMessage::anotherDensity:
        fonts_->measureScreen(window);
        for (const auto& view : views_)
            if (view) view->showFont();
        place();
        return TRUE;
    case pageMessage::updateLater:
        updatePosted_ = false;
        sheet_.update();
        return TRUE;
    case pageMessage::drawNow:
        draw();
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return TRUE;
    case WM_DESTROY:
        destroy();
        return FALSE;
    default:
        return FALSE;
    }
}

INT_PTR SheetPageWindow::notified(const NMHDR& note)
{
    std::optional<LRESULT> answer;
    if (note.code <= PSN_FIRST && note.code >= PSN_LAST)
        answer = sheet_.notified(*this, reinterpret_cast<const PSHNOTIFY&>(note));
    else if (ControlView* view = viewOf(note.hwndFrom))
        answer = view->notified(note);
    if (!answer) return FALSE;
    SetWindowLongPtrW(window_, DWLP_MSGRESULT, *answer);
    return TRUE;
}

ControlView* SheetPageWindow::viewOf(HWND window) const
{
    for (const auto& view : views_)
        if (view && window && view->has(window)) return view.get();
    return nullptr;
}

void SheetPageWindow::create(HWND window)
{
    window_ = window;
    fonts_.emplace(window);
    sheet_.windowMade(window);
    toolTipWindow_ =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr);
    constexpr int widest = 200; // in dialog units; a longer one is wrapped
    SendMessageW(toolTipWindow_, TTM_SETMAXTIPWIDTH, 0, fonts_->units().across(widest));
    for (const auto& view : views_)
        if (view) view->create(*this);
    for (const PageRow& row : layout_.rows)
        if (row.width == PageRow::Width::number && row.controls.size() > 1) {
            // The keys for up and down in the field are those of the arrows beside it.
            const HWND number = views_[row.controls[0]]->windows().front();
            SendMessageW(views_[row.controls[1]]->windows().front(), UDM_SETBUDDY,
                         reinterpret_cast<WPARAM>(number), 0);
        }
    place(); // what is to be in sight is so in a window that has its size
    misplaced_ = true;
    sheet_.onTool({});
}

void SheetPageWindow::destroy()
{
    for (const auto& view : views_)
        if (view) view->windowsGoing();
    if (toolTipWindow_) DestroyWindow(std::exchange(toolTipWindow_, nullptr));
    sheet_.windowGone(window_);
    window_ = nullptr;
    fonts_.reset();
}

void SheetPageWindow::place()
{
    if (!fonts_ || drawing_) {
        misplaced_ = true;
        return;
    }
    RECT area{};
    GetClientRect(window_, &area);
    const int before = std::exchange(
        bandHeight_, placeViews(layout_, views_, fonts_->units(), {area.right, area.bottom}));
    if (before != bandHeight_) InvalidateRect(window_, nullptr, TRUE);
}

/// The ground of fields, with a line below it.
void SheetPageWindow::paintBand(HDC context) const
{
    RECT area{};
    GetClientRect(window_, &area);
    RECT band = area;
    band.bottom = bandHeight_;
    FillRect(context, &band, GetSysColorBrush(COLOR_WINDOW));
    area.top = bandHeight_;
    FillRect(context, &area, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(context, &area, EDGE_ETCHED, BF_TOP);
}

bool SheetPageWindow::isOnBand(HWND label) const
{
    return std::any_of(layout_.banner.begin(), layout_.banner.end(),
                       [&](std::size_t index) { return views_[index]->has(label); });
}

} // namespace mmc
