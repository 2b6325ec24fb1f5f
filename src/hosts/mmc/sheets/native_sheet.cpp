#include "hosts/mmc/sheets/native_sheet.h"

#include "console/plain_sheet.h"
#include "console/wizard_sheet.h"
#include "hosts/mmc/sheets/open_frames.h"
#include "hosts/mmc/sheets/sheet_page_window.h"
#include "hosts/mmc/tool_thread.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>

namespace mmc {

namespace {

/// The number that the system's wizards give their button Finish.
constexpr int finishButton = 0x3025;

DWORD systemButtons(const WizardSheet& wizard)
{
    static constexpr DWORD forward[] = {PSWIZB_NEXT, 0, PSWIZB_FINISH, PSWIZB_DISABLEDFINISH};
    const WizardButtons& buttons = wizard.buttons();
    return (buttons.back ? PSWIZB_BACK : 0) | forward[buttons.nextOrFinish & 3];
}

} // namespace

std::shared_ptr<NativeSheet> NativeSheet::make(const ToolThread& thread, Around around,
                                               std::shared_ptr<OpenSheet> sheet)
{
    // Whichever thread lets go of it last, what it has of the model goes on the tool's.
    return {new NativeSheet(thread, std::move(around), std::move(sheet)),
            [&thread](NativeSheet* gone) {
                if (thread.isCurrent()) {
                    delete gone;
                    return;
                }
                thread.post([held = std::shared_ptr<NativeSheet>(gone)] {});
            }};
}

NativeSheet::NativeSheet(const ToolThread& thread, Around around, std::shared_ptr<OpenSheet> sheet)
    : thread_(thread), around_(std::move(around)), sheet_(std::move(sheet))
{
    sheet_->observe(this);
    for (int position = 1; position <= sheet_->pageCount(); ++position)
        pages_.push_back(std::make_shared<SheetPageWindow>(*this, position));
}

NativeSheet::~NativeSheet()
{
    sheet_->observe(nullptr);
    pages_.clear();
    letModelGo();
}

std::wstring NativeSheet::title() const
{
    return sheet_->pageCount() > 0 ? wideOf(sheet_->pageTitle(1)) : std::wstring();
}

std::vector<HPROPSHEETPAGE> NativeSheet::makePages()
{
    std::vector<HPROPSHEETPAGE> made;
    for (const auto& page : pages_) made.push_back(page->make(shared_from_this()));
    return made;
}

DWORD NativeSheet::headerFlags() const
{
    DWORD flags = PSH_NOCONTEXTHELP;
    for (int position = 1; position <= sheet_->pageCount(); ++position)
        if (sheet_->hasHelpButton(position)) flags |= PSH_HASHELP;
    return flags;
}

int NativeSheet::firstPage() const
{
    return std::max(sheet_->currentPosition() - 1, 0);
}

void NativeSheet::abandon()
{
    const auto hold = shared_from_this();
    around_.act([this] { sheet_->abandon(); });
    for (const auto& page : pages_) page->sendUpdate();
}

/// Its windows may have gone without a word, as at the end of a message loop: the model's sheet
/// would stay open for ever.
void NativeSheet::letModelGo()
{
    try {
        sheet_->abandon();
    } catch (...) {
        // There is nobody left to tell.
    }
}

bool NativeSheet::takesMessage(MSG& message)
{
    const HWND frame = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    return frame && openFrames().has(frame) &&
           SendMessageW(frame, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(&message)) != 0;
}

NativeSheet::State NativeSheet::state()
{
    for (const auto& page : pages_) page->copyChanges();
    State now;
    now.closed = sheet_->closed();
    now.atWork = sheet_->atWork();
    now.position = sheet_->currentPosition();
    if (const WizardSheet* wizard = sheet_->wizard()) {
        now.buttons = systemButtons(*wizard);
        now.finishText = wideOf(wizard->buttons().finishText);
    }
    return now;
}

void NativeSheet::pageShown(OpenSheet&)
{
    for (const auto& page : pages_) page->postUpdate();
}

void NativeSheet::buttonsChanged(OpenSheet&)
{
    for (const auto& page : pages_) page->postUpdate();
}

void NativeSheet::closed(OpenSheet&)
{
    for (const auto& page : pages_) {
        page->leave();
        page->postUpdate();
    }
}

NativeSheet::State NativeSheet::onTool(const std::function<void()>& what)
{
    State after;
    thread_.run([&] {
        if (what) what();
        after = state();
    });
    for (const auto& page : pages_) page->draw();
    return after;
}

NativeSheet::State NativeSheet::act(const std::function<void()>& what, When when, Effect effect)
{
    return onTool([&] {
        if (sheet_->closed() || (when == When::idle && around_.busy())) return;
        run(what, effect);
    });
}

void NativeSheet::run(const std::function<void()>& what, Effect effect)
{
    if (effect == Effect::change && around_.change)
        around_.change(*sheet_, what);
    else
        around_.act(what);
}

LRESULT NativeSheet::notified(SheetPageWindow& page, const PSHNOTIFY& note)
{
    switch (note.hdr.code) {
    case static_cast<UINT>(PSN_SETACTIVE):
        return activated(page);
    case static_cast<UINT>(PSN_KILLACTIVE): {
        // The person may pick no other page while the tool is at work.
        bool refused = false;
        if (sheet_->plainSheet() && !turning_)
            onTool([&] { refused = !sheet_->closed() && around_.busy(); });
        return refused;
    }
    case static_cast<UINT>(PSN_WIZBACK):
        return turnedByPerson(page, false);
    case static_cast<UINT>(PSN_WIZNEXT):
        return turnedByPerson(page, true);
    case static_cast<UINT>(PSN_WIZFINISH):
        return ended(change([this] { sheet_->wizard()->finish(); }));
    case static_cast<UINT>(PSN_APPLY):
        return applied(note.lParam != 0);
    case static_cast<UINT>(PSN_QUERYCANCEL):
        return ended(act([this] { sheet_->cancel(); }, When::always));
    case static_cast<UINT>(PSN_HELP):
        act([this] { sheet_->help(); });
        return 0;
    default:
        return 0;
    }
}

/// A wizard's page comes when the model is there already; a tab that the person picks is told to
/// the model now.
LRESULT NativeSheet::activated(SheetPageWindow& page)
{
    active_ = page.position();
    State now = onTool({});
    PlainSheet* plain = sheet_->plainSheet();
    if (plain && !turning_ && !now.closed && now.position != active_)
        now = act([&] { plain->selectPage(page.position()); });
    shown_.reset();
    showButtons(now);
    if (now.closed || now.position != active_) page.postUpdate();
    return 0;
}

/// The page that the model went to is the one to be shown: by the answer where it is the system's
/// own choice, too, else behind the notification.
LRESULT NativeSheet::turnedByPerson(const SheetPageWindow& page, bool forward)
{
    constexpr LRESULT asInOrder = 0;
    constexpr LRESULT stay = -1;
    WizardSheet& wizard = *sheet_->wizard();
    const int inOrder = page.position() + (forward ? 1 : -1);
    ++answering_;
    State now;
    try {
        now = forward ? change([&] { wizard.next(); }) : act([&] { wizard.back(); });
    } catch (...) {
        --answering_;
        throw;
    }
    --answering_;
    if (!now.closed && now.position == inOrder) return asInOrder;
    showButtons(now);
    for (const auto& each : pages_) each->postUpdate();
    return stay;
}

/// Whether the sheet stays, as the system asks for it.
LRESULT NativeSheet::ended(const State& state)
{
    if (state.closed) closing_ = true;
    follow(state);
    hideAtWork(state);
    return !state.closed;
}

/// The model applies all pages at once, so that those behind the first one find nothing to do.
LRESULT NativeSheet::applied(bool closing)
{
    PlainSheet* plain = sheet_->plainSheet();
    if (!plain) return PSNRET_NOERROR;
    bool done = false;
    const State now = onTool([&] {
        done = sheet_->closed();
        if (done || around_.busy()) return;
        const auto apply = [&] {
            closing ? plain->ok() : plain->apply();
            done = true;
        };
        run(apply, Effect::change);
    });
    if (now.closed) closing_ = true;
    follow(now);
    return done ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
}

void NativeSheet::follow(const State& state)
{
    if (!frame_) return;
    if (state.closed) return close(state);
    if (answering_ == 0 && !turning_ && active_ != 0 && state.position != active_)
        turn(state.position);
    showButtons(state);
}

void NativeSheet::turn(int position)
{
    turning_ = true;
    const auto& page = pages_[static_cast<std::size_t>(position - 1)];
    SendMessageW(frame_, PSM_SETCURSEL, static_cast<WPARAM>(position - 1),
                 reinterpret_cast<LPARAM>(page->handle()));
    turning_ = false;
}

void NativeSheet::showButtons(const State& state)
{
    if (!frame_ || state.closed || !sheet_->wizard()) return;
    if (shown_ && shown_->buttons == state.buttons && shown_->finishText == state.finishText)
        return;
    // The usual text comes back with the button, and another one goes on top of it.
    SendMessageW(frame_, PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(state.buttons));
    if (!state.finishText.empty()) SetDlgItemTextW(frame_, finishButton, state.finishText.c_str());
    shown_ = state;
}

/// The model's sheet is closed, and the person did not close this one.
void NativeSheet::close(const State& state)
{
    if (std::exchange(closing_, true)) return;
    hideAtWork(state);
    PostMessageW(frame_, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

/// While work goes on below, the window of a sheet that is over would stay, and whoever waits for
/// it could not be used.
void NativeSheet::hideAtWork(const State& state) const
{
    if (!frame_ || !state.closed || !state.atWork || !thread_.isCurrent()) return;
    EnableWindow(GetWindow(frame_, GW_OWNER), TRUE);
    ShowWindow(frame_, SW_HIDE);
}

void NativeSheet::windowMade(HWND page)
{
    frame_ = GetParent(page);
    ++windows_;
    openFrames().add(frame_);
}

void NativeSheet::windowGone(HWND page)
{
    if (--windows_ > 0) return;
    openFrames().remove(GetParent(page));
    frame_ = nullptr;
    thread_.post([hold = shared_from_this()] { hold->letModelGo(); });
}

} // namespace mmc
