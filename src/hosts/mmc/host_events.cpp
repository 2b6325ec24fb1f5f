// What the console shows, and what the model tells, brought to the other side.
#include "hosts/mmc/host.h"

#include "runtime/run_time_error.h"

#include <algorithm>

namespace mmc {

void Host::expanded(ScopeItem& item, HSCOPEITEM handle)
{
    if (!runs()) return;
    const auto held = item.shared_from_this();
    inHand([&] { nodes_.opened(item, handle); });
    if (!runs() || item.expanded()) return;
    if (busy()) {
        wishes_.push_back({nullptr, held});
        return;
    }
    run([&] { model().expand(item); });
    if (runs() && item.inTree()) nodes_.renewChildren(item);
}

/// A console that follows the model is shown what is there; a person's wish is the model's event.
void Host::shown(ResultPane& pane, ScopeItem& item, HSCOPEITEM handle)
{
    if (!runs() || !hasPane(&pane)) return;
    const auto held = item.shared_from_this();
    inHand([&] { nodes_.known(item, handle); });
    if (!runs() || !hasPane(&pane)) return;
    pane.showsItem(item);
    std::erase_if(wishes_, [&](const Wish& wish) { return wish.pane == &pane; });
    const bool wasTold = pane.takeExpected(item);
    if (following_ > 0 || wasTold) {
        pane.render();
    } else if (busy()) {
        wishes_.push_back({&pane, held});
    } else {
        activate(pane);
        run([&] { pane.view()->select(item); });
    }
    if (runs()) complain(pane, item);
}

void Host::hidden(ResultPane& pane)
{
    std::erase_if(wishes_, [&](const Wish& wish) { return wish.pane == &pane; });
    pane.showsNothing();
}

/// The first time that the root is on show, as far as that is the tool's to say.
void Host::complain(ResultPane& pane, const ScopeItem& item)
{
    if (complained_ || item.parent()) return;
    complained_ = true;
    const std::string complaint = tool_->complaint();
    if (!complaint.empty()) pane.showStatus(complaint);
}

void Host::refresh(ResultPane& pane, IDataObject* object)
{
    perform(pane, [](Console& model) { model.refresh(); });
    if (runs() && console_ && object)
        console_->UpdateAllViews(object, reinterpret_cast<LPARAM>(&pane), 0);
}

void Host::renew(ResultPane& pane, ScopeItem& item, LPARAM origin)
{
    if (origin == reinterpret_cast<LPARAM>(&pane) || !hasPane(&pane)) return;
    if (pane.selectedItem() != &item || pane.shownItem().get() != &item || busy()) return;
    run([&] {
        const ResultView& shown = pane.view()->selectedScopePaneItem().resultView();
        const std::string displayString = shown.displayString();
        pane.view()->display(displayString, shown.type());
    });
}

void Host::goTo(ResultPane& pane, ScopeItem& item)
{
    if (!runs() || !pane.console()) return;
    const ComPointer<IConsole2> console = ComPointer<IConsole2>::of(pane.console());
    HSCOPEITEM handle = 0;
    inHand([&] {
        if (nodes_.bringIn(item)) handle = nodes_.handleOf(item);
    });
    if (runs() && handle != 0) console->SelectScopeItem(handle);
}

bool Host::haveSelection(ResultPane& pane)
{
    if (!runs() || busy() || !hasPane(&pane)) return false;
    if (pane.selectedItem()) return true;
    quiet_ = true;
    run([&] { pane.view()->select(model().root()); });
    quiet_ = false;
    return runs() && pane.selectedItem();
}

/// The console shows what the model has selected, in the call or later. It asks for verbs at that
/// moment alone, so that it is moved when those stand, and rows with them.
void Host::bringSelection(ResultPane& pane)
{
    ScopeItem* selected = pane.selectedItem();
    if (quiet_ || !selected || !pane.console()) return;
    if (pane.shownItem().get() == selected) return;
    const auto held = selected->shared_from_this();
    const ComPointer<IConsole2> console = ComPointer<IConsole2>::of(pane.console());
    ++following_;
    pane.expect(*selected);
    if (!nodes_.bringIn(*selected) || FAILED(console->SelectScopeItem(nodes_.handleOf(*selected))))
        pane.expectNothing();
    --following_;
}

void Host::scopeItemAdded(ScopeItem& item)
{
    nodes_.added(item);
}

void Host::scopeItemChanged(ScopeItem& item)
{
    nodes_.changed(item);
}

/// The model has moved each view's selection out of what goes, and the console has followed; what
/// it does on its own when an item goes is nobody's wish.
void Host::scopeItemRemoved(ScopeItem& item)
{
    for (ResultPane* pane : panes_) pane->forget(item);
    ++following_;
    nodes_.removed(item);
    --following_;
}

void Host::viewReset(ResultView& resultView)
{
    if (ResultPane* pane = paneOf(resultView.scopePaneItem().view())) pane->emptied();
}

void Host::viewFilled(ResultView& resultView)
{
    if (ResultPane* pane = paneOf(resultView.scopePaneItem().view())) pane->filled(resultView);
}

void Host::selected(View& view)
{
    if (ResultPane* pane = paneOf(view)) bringSelection(*pane);
}

void Host::statusBarChanged(View& view)
{
    if (ResultPane* pane = paneOf(view)) pane->showStatus(view.statusBarText());
}

void Host::sheetShown(OpenSheet& sheet)
{
    sheets_.add(sheet);
    thread_.post([weak = weak_from_this()] {
        const auto host = weak.lock();
        if (!host || !host->runs()) return;
        host->sheets_.showNext(ComPointer<IConsole2>(host->console_).get());
        host->settle();
    });
}

void Host::handlerFailed(const RunTimeError& error)
{
    tell(error);
}

} // namespace mmc
