#include "console/view.h"

#include "console/console.h"
#include "runtime/required_object.h"

#include <algorithm>

void View::statusBarText(std::string text)
{
    statusBarText_ = std::move(text);
    console_.tellAll([&](ConsoleObserver& observer) { observer.statusBarChanged(*this); });
}

ScopePaneItem& View::scopePaneItem(int position) const
{
    if (position < 1 || position > scopePaneItemCount()) {
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    }
    return *panes_[static_cast<std::size_t>(position) - 1];
}

ScopePaneItem& View::selectedScopePaneItem() const
{
    return required(selected_);
}

PropertySheetProvider& View::propertySheetProvider()
{
    return console_.sheets_;
}

void View::select(ScopeItem& item)
{
    const Console::WorkInView work{console_, *this};
    const auto held = item.shared_from_this();
    console_.expand(item);
    if (!item.inTree()) throw RunTimeError(runTimeErrors::invalidCall);
    if (selected_) {
        console_.snapIn().Views_Select(*this, selected_->scopeItem(), false, verbs_);
    }

    verbs_ = {};
    ScopePaneItem& pane = paneOf(item);
    const ViewChoice choice = console_.defaultView(item);
    show(pane, resultViewOf(pane, choice.displayString, choice.type));
    if (selected_ != &pane) return;
    console_.snapIn().Views_Select(*this, item, true, verbs_);
    if (selected_ == &pane)
        console_.tellAll([&](ConsoleObserver& observer) { observer.selected(*this); });
}

void View::display(const std::string& displayString, ResultViewType type)
{
    const Console::WorkInView work{console_, *this};
    ScopePaneItem& pane = selectedScopePaneItem();
    show(pane, resultViewOf(pane, displayString, type));
}

ScopePaneItem& View::paneOf(ScopeItem& item)
{
    for (auto& pane : panes_)
        if (&pane->scopeItem() == &item) return *pane;
    return *panes_.emplace_back(std::make_unique<ScopePaneItem>(*this, item));
}

ResultView& View::resultViewOf(ScopePaneItem& pane, const std::string& displayString,
                               ResultViewType type)
{
    for (auto& made : pane.views_)
        if (made->displayString() == displayString && made->type() == type) return *made;

    const auto make = [&](const auto& definitions) -> ResultView* {
        for (const auto& definition : definitions) {
            if (definition.name != displayString) continue;
            return pane.views_.emplace_back(std::make_unique<ResultView>(pane, definition)).get();
        }
        return nullptr;
    };
    const SnapInDefinition& declared = console_.definition();
    ResultView* made =
        type == ResultViewType::list ? make(declared.listViews) : make(declared.taskPads);
    if (!made) throw RunTimeError(runTimeErrors::invalidCall);
    return *made;
}

void View::show(ScopePaneItem& pane, ResultView& resultView)
{
    // Rows are for the view on show alone: tens of thousands of them are not kept behind it.
    if (selected_ && selected_->shown_ && selected_->shown_->type() == ResultViewType::list) {
        noteOrder(selected_->shown_->list());
        selected_->shown_->list().clear();
    }
    const bool moved = selected_ != &pane;
    selected_ = &pane;
    pane.shown_ = &resultView;
    if (moved) {
        console_.tellAll([&](ConsoleObserver& observer) { observer.selectionChanged(*this); });
    }
    fill(resultView);
}

void View::fill(ResultView& resultView)
{
    console_.tellAll([&](ConsoleObserver& observer) { observer.viewReset(resultView); });
    console_.snapIn().ResultViews_Initialize(resultView);
    if (!selected_ || selected_->shown_ != &resultView) return;
    if (resultView.type() == ResultViewType::list) {
        ListView& list = resultView.list();
        list.sortOnLoad();
        list.chooseOrder(orders_[{resultView.displayString(), list.columnCount()}]);
    }
    console_.tellAll([&](ConsoleObserver& observer) { observer.viewFilled(resultView); });
}

void View::noteOrder(ListView& list)
{
    orders_[{list.definition().name, list.columnCount()}] = list.chosenOrder();
}

void View::leaveSelection()
{
    if (!selected_) return;
    const Console::WorkInView work{console_, *this};
    const auto held = selected_->scopeItem().shared_from_this();
    if (console_.snapIn_) console_.snapIn_->Views_Select(*this, *held, false, verbs_);
    selected_ = nullptr;
}

bool View::showsInside(const ScopeItem& item) const
{
    if (!selected_) return false;
    for (const ScopeItem* shown = &selected_->scopeItem(); shown; shown = shown->parent())
        if (shown == &item) return true;
    return false;
}

void View::forget(const ScopeItem& item)
{
    const auto found = std::find_if(panes_.begin(), panes_.end(),
                                    [&](const auto& pane) { return &pane->scopeItem() == &item; });
    if (found == panes_.end()) return;
    if (selected_ == found->get()) selected_ = nullptr;
    if (console_.callsUnderWay_ > 0) console_.removedPanes_.push_back(std::move(*found));
    panes_.erase(found);
}
