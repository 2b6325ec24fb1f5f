#include "hosts/mmc/sheets/sheet_page_window.h"

#include "console/pages.h"
#include "console/plain_sheet.h"
#include "hosts/mmc/sheets/control_views.h"
#include "hosts/mmc/sheets/page_messages.h"
#include "hosts/mmc/tool_thread.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

/// How long the tool's thread waits for a page to be drawn, in milliseconds.
constexpr UINT patience = 2000;

// The usual sizes of pages, in dialog units.
constexpr SIZE wizardSize{317, 193};
constexpr SIZE sheetSize{252, 218};

/// The module that this code is in.
HINSTANCE ownModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&wizardSize), &module);
    return module;
}

PageTemplate templateOf(OpenSheet& sheet, int position)
{
    const SIZE usual = sheet.wizard() ? wizardSize : sheetSize;
    int height = usual.cy;
    int width = usual.cx;
    if (IMMCPropertyPage* page = sheet.page(position).propertyPage())
        page->IMMCPropertyPage_GetDialogUnitSize(height, width);
    const LOGFONTW font = messageFont(nullptr);
    return {width, height, font, pointsOf(font)};
}

} // namespace

SheetPageWindow::SheetPageWindow(NativeSheet& sheet, int position)
    : sheet_(sheet), position_(position),
      layout_(layoutOf(sheet.sheet().page(position), sheet.sheet().wizard() != nullptr)),
      timers_(sheet.sheet().page(position).timers()), ticking_(timers_.size())
{
    for (const PageControl& declared : sheet.sheet().page(position).controls()) {
        views_.push_back(makeControlView(declared));
        noted_.insert(declared.control);
        declared.control->observe(this);
    }
    template_.emplace(templateOf(sheet.sheet(), position));
    copiedIntervals_.resize(timers_.size());
    intervals_.resize(timers_.size());
}

SheetPageWindow::~SheetPageWindow()
{
    leave();
}

void SheetPageWindow::leave()
{
    if (std::exchange(left_, true)) return;
    for (const PageControl& declared : sheet_.sheet().page(position_).controls())
        declared.control->observe(nullptr);
}

HPROPSHEETPAGE SheetPageWindow::make(const std::shared_ptr<NativeSheet>& hold)
{
    const OpenSheet& sheet = *sheet_.sheet_;
    const std::wstring title = wideOf(sheet.pageTitle(position_));
    auto held = std::make_unique<PageHold>(PageHold{hold, this});
    PROPSHEETPAGEW made{};
    made.dwSize = sizeof made;
    made.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE | PSP_USECALLBACK;
    if (sheet_.sheet_->wizard()) made.dwFlags |= PSP_HIDEHEADER; // pages bring a band of their own
    if (sheet.hasHelpButton(position_)) made.dwFlags |= PSP_HASHELP;
    made.hInstance = ownModule();
    made.pResource = template_->get();
    made.pszTitle = title.c_str();
    made.pfnDlgProc = procedure;
    made.pfnCallback = lifetime;
    made.lParam = reinterpret_cast<LPARAM>(held.get());
    handle_ = CreatePropertySheetPageW(&made);
    if (handle_) held.release();
    return handle_;
}

UINT CALLBACK SheetPageWindow::lifetime(HWND, UINT message, PROPSHEETPAGEW* page)
{
    if (message == PSPCB_RELEASE) delete reinterpret_cast<PageHold*>(page->lParam);
    return TRUE;
}

void SheetPageWindow::changed(Control& control)
{
    noted_.insert(&control);
    postUpdate();
}

void SheetPageWindow::refreshed(Control& control)
{
    noted_.insert(&control);
    copyChanges();
    const HWND window = window_;
    if (!window) return;
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
        SendMessageW(window, pageMessage::drawNow, 0, 0);
    else
        SendMessageTimeoutW(window, pageMessage::drawNow, 0, 0, SMTO_NORMAL, patience, nullptr);
}

void SheetPageWindow::postUpdate()
{
    const HWND window = window_;
    if (!window || updatePosted_.exchange(true)) return;
    if (!PostMessageW(window, pageMessage::updateLater, 0, 0)) updatePosted_ = false;
}

void SheetPageWindow::sendUpdate()
{
    const HWND window = window_;
    if (!window) return;
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
        SendMessageW(window, pageMessage::updateLater, 0, 0);
    else
        postUpdate();
}

void SheetPageWindow::copyChanges()
{
    if (!window_) return;
    OpenSheet& sheet = sheet_.sheet();
    const SheetPage& page = sheet.page(position_);
    std::vector<Drawing> made;
    if (!left_ && page.font() != copiedFont_) {
        copiedFont_ = page.font();
        made.push_back([this, font = copiedFont_] {
            if (!fonts_->setPageFont(font)) return;
            for (const auto& view : views_)
                if (view) view->showFont();
            rearrange();
        });
    }
    if (!left_)
        for (const auto& view : views_)
            if (view && noted_.count(&view->control()) != 0) made.push_back(view->drawing());
    noted_.clear();

    std::vector<UINT> intervals(timers_.size());
    if (!sheet.closed() && sheet.currentPosition() == position_)
        for (std::size_t index = 0; index < timers_.size(); ++index)
            if (timers_[index]->running())
                intervals[index] = static_cast<UINT>(timers_[index]->interval());
    if (intervals != copiedIntervals_) {
        copiedIntervals_ = intervals;
        made.push_back([this, intervals] { showTimers(intervals); });
    }
    const bool changes = sheet.plainSheet() && page.Changed();
    if (std::exchange(copiedChanged_, changes) != changes)
        made.push_back([this, changes] { setChanged(changes); });

    const std::lock_guard lock(mutex_);
    std::move(made.begin(), made.end(), std::back_inserter(copied_));
}

void SheetPageWindow::draw()
{
    // What is drawn may let messages in that bring more: they wait for their turn.
    if (drawing_) return;
    drawing_ = true;
    for (;;) {
        std::vector<Drawing> drawings;
        {
            const std::lock_guard lock(mutex_);
            drawings.swap(copied_);
        }
        if (drawings.empty() || !window_) break;
        for (const Drawing& drawing : drawings) drawing();
    }
    drawing_ = false;
    if (std::exchange(misplaced_, false)) place();
}

void SheetPageWindow::act(ControlView& view, const std::function<void()>& what)
{
    if (drawing_) return;
    sheet_.follow(sheet_.onTool([&] {
        noted_.insert(&view.control());
        if (!sheet_.sheet().closed() && !sheet_.around_.busy()) sheet_.around_.act(what);
    }));
}

void SheetPageWindow::tell(const std::function<void()>& what)
{
    if (!drawing_) sheet_.follow(sheet_.act(what));
}

void SheetPageWindow::setToolTip(HWND tool, const std::wstring& text)
{
    if (!toolTipWindow_) return;
    std::wstring& held = toolTips_[tool];
    held = text;
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    info.hwnd = window_;
    info.uId = reinterpret_cast<UINT_PTR>(tool);
    info.lpszText = held.data();
    SendMessageW(toolTipWindow_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
    if (!text.empty())
        SendMessageW(toolTipWindow_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void SheetPageWindow::showTimers(const std::vector<UINT>& intervals)
{
    for (std::size_t index = 0; index < intervals.size(); ++index) {
        if (intervals_[index] == intervals[index]) continue;
        if (intervals[index] > 0)
            SetTimer(window_, index + 1, intervals[index], nullptr);
        else
            KillTimer(window_, index + 1);
    }
    intervals_ = intervals;
}

void SheetPageWindow::timeOver(UINT_PTR id)
{
    if (id < 1 || id > timers_.size()) return;
    const std::size_t index = id - 1;
    Timer& timer = *timers_[index];
    if (sheet_.thread_.isCurrent())
        return sheet_.follow(sheet_.act([&] { sheet_.sheet().tick(timer); }));
    // It may begin long work, through which the windows go on to be used.
    if (ticking_[index].exchange(true)) return;
    sheet_.thread_.post([this, &timer, index, hold = sheet_.shared_from_this()] {
        try {
            if (!sheet_.sheet().closed() && !sheet_.around_.busy())
                sheet_.around_.act([&] { sheet_.sheet().tick(timer); });
        } catch (...) {
            // Told by `act` where it is anything to the person.
        }
        ticking_[index] = false;
        postUpdate();
    });
}

/// Behind what is going on: a sheet that is being made forgets what it is told, and one that
/// applies disables its button in the end.
void SheetPageWindow::setChanged(bool changed)
{
    PostMessageW(GetParent(window_), changed ? PSM_CHANGED : PSM_UNCHANGED,
                 reinterpret_cast<WPARAM>(window()), 0);
}

} // namespace mmc
