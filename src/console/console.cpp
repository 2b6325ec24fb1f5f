#include "console/console.h"

#include "runtime/required_object.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <iterator>

Console::Console(const SnapInDefinition& definition)
    : definition_(definition), tree_(*this), sheets_(*this)
{
    current_ = &addView();
    identity_.provider = definition.provider;
    identity_.description = definition.description;
    identity_.version = definition.version;
    for (const auto& declared : definition.menus) {
        Menu& made = menus_.emplace_back(Menu{declared.name, declared.caption, {}});
        for (const auto& item : declared.items)
            made.items.push_back({item.name, item.caption, item.statusBarText});
    }

    ScopeItem& root = tree_.addRoot(definition.nodeTypes.at(0).typeName, rootKey);
    root.name(rootKey);
    root.displayName(definition.displayName);
    for (const auto& automatic : definition.automaticNodes) {
        ScopeItem& node = tree_.addChild(automatic.typeName, automatic.typeName, root);
        const NodeTypeDefinition* declared = nodeType(automatic.typeName);
        if (!declared) throw RunTimeError(runTimeErrors::invalidCall);
        node.displayName(declared->displayName);
        node.kind(automatic.kind);
    }
}

void Console::addObserver(ConsoleObserver& observer)
{
    observers_.push_back(&observer);
}

void Console::removeObserver(ConsoleObserver& observer)
{
    observers_.erase(std::remove(observers_.begin(), observers_.end(), &observer),
                     observers_.end());
}

void Console::load(SnapInEvents& loaded)
{
    const Work work{*this};
    snapIn_ = &loaded;
    loaded.SnapIn_Initialize();
    loaded.SnapIn_Load();
}

void Console::unload()
{
    const Work work{*this};
    SnapInEvents& leaving = snapIn();
    snapIn_ = nullptr;
    leaving.SnapIn_Unload();
}

void Console::activate(View& view)
{
    if (!isOpen(view)) throw RunTimeError(runTimeErrors::invalidCall);
    current_ = &view;
}

View& Console::addView()
{
    return *views_.emplace_back(std::make_unique<View>(*this));
}

void Console::closeView(View& view)
{
    const Work work{*this};
    if (!isOpen(view) || views_.size() == 1) throw RunTimeError(runTimeErrors::invalidCall);
    view.leaveSelection();
    const auto found = std::find_if(views_.begin(), views_.end(),
                                    [&](const auto& open) { return open.get() == &view; });
    if (found == views_.end()) return; // closed by what heard of the selection's end
    closedViews_.push_back(std::move(*found));
    views_.erase(found);
    if (current_ == &view) current_ = views_.front().get();
}

std::vector<View*> Console::views() const
{
    std::vector<View*> open;
    for (const auto& view : views_) open.push_back(view.get());
    return open;
}

bool Console::isOpen(const View& view) const
{
    return std::any_of(views_.begin(), views_.end(),
                       [&](const auto& open) { return open.get() == &view; });
}

Console::WorkInView::WorkInView(Console& console, View& view)
    : work_(console), console_(console), view_(view), before_(console.current_)
{
    console_.activate(view);
}

/// The person may have gone to another view meanwhile, or the one before may be closed.
Console::WorkInView::~WorkInView()
{
    if (console_.current_ == &view_ && console_.isOpen(*before_)) console_.current_ = before_;
}

Busy Console::busy() const
{
    if (callsUnderWay_ > 0) return Busy::call;
    return sheets_.atWork() ? Busy::sheet : Busy::no;
}

void Console::endWork()
{
    if (--callsUnderWay_ > 0) return;
    removedPanes_.clear();
    closedViews_.clear();
}

Menu& Console::menu(std::string_view name)
{
    for (auto& entry : menus_)
        if (entry.name == name) return entry;
    throw RunTimeError(runTimeErrors::keyNotFound);
}

void Console::expand(ScopeItem& item)
{
    const Work work{*this};
    const auto held = item.shared_from_this();
    if (!item.inTree()) throw RunTimeError(runTimeErrors::invalidCall);
    SnapInEvents& told = snapIn();
    if (item.expanded_) return;
    item.expanded_ = true;
    told.ScopeItems_Expand(item);
}

ContextMenu Console::taskMenu()
{
    return builtMenu(&SnapInEvents::Views_AddTaskMenuItems);
}

ContextMenu Console::topMenu()
{
    return builtMenu(&SnapInEvents::Views_AddTopMenuItems);
}

ContextMenu Console::builtMenu(void (SnapInEvents::*event)(View&, ScopeItem&, ContextMenu&))
{
    const Work work{*this};
    ContextMenu built;
    (snapIn().*event)(currentView(), currentScopeItem(), built);
    return built;
}

void Console::clickMenuItem(std::string_view name)
{
    const Work work{*this};
    for (const auto& declared : menus_) {
        for (const auto& item : declared.items) {
            if (item.name != name) continue;
            if (!item.visible || !item.enabled) throw RunTimeError(runTimeErrors::invalidCall);
            snapIn().MenuItem_Click(item);
            return;
        }
    }
    throw RunTimeError(runTimeErrors::keyNotFound);
}

void Console::clickTask(std::string_view key)
{
    const Work work{*this};
    ResultView& shown = currentView().selectedScopePaneItem().resultView();
    TaskPad& tasks = shown.taskPad();
    for (int position = 1; position <= tasks.taskCount(); ++position) {
        if (tasks.task(position).key != key) continue;
        snapIn().ResultViews_TaskClick(shown, tasks.task(position));
        return;
    }
    throw RunTimeError(runTimeErrors::keyNotFound);
}

void Console::doubleClickRow(int row)
{
    const Work work{*this};
    ResultView& shown = currentView().selectedScopePaneItem().resultView();
    bool doDefault = true;
    snapIn().ResultViews_ListItemDblClick(shown, shown.list().shown(row), doDefault);
}

void Console::helpOnSnapIn()
{
    const Work work{*this};
    snapIn().SnapIn_Help();
}

void Console::helpOnScopeItem()
{
    const Work work{*this};
    snapIn().ScopeItems_Help(currentScopeItem());
}

void Console::helpOnResultView()
{
    const Work work{*this};
    snapIn().ResultViews_Help(currentView().selectedScopePaneItem().resultView());
}

void Console::refresh()
{
    const Work work{*this};
    View& refreshed = currentView();
    if (!refreshed.verbs().enabled(consoleVerb::refresh)) return;
    const auto held = currentScopeItem().shared_from_this();
    snapIn().Views_Refresh(refreshed, *held);
}

void Console::createPropertyPages(OpenSheet& sheet)
{
    snapIn().Views_CreatePropertyPages(currentView(), currentScopeItem(), sheet);
}

void Console::tellSheetShown(OpenSheet& sheet)
{
    tellAll([&](ConsoleObserver& observer) { observer.sheetShown(sheet); });
}

void Console::tellHandlerFailed(const RunTimeError& error)
{
    tellAll([&](ConsoleObserver& observer) { observer.handlerFailed(error); });
}

void Console::itemAdded(ScopeItem& item)
{
    if (const NodeTypeDefinition* declared = nodeType(item.typeName())) {
        item.image_ = declared->image;
        item.opens_ = declared->opens;
    }
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemAdded(item); });
}

void Console::itemChanged(ScopeItem& item)
{
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemChanged(item); });
}

void Console::itemLeaving(ScopeItem& item)
{
    const Work work{*this};
    for (View* view : views())
        if (isOpen(*view) && item.parent() && view->showsInside(item)) view->select(*item.parent());
}

void Console::itemRemoved(ScopeItem& item)
{
    for (const auto& view : views_) view->forget(item);
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemRemoved(item); });
}

SnapInEvents& Console::snapIn() const
{
    return required(snapIn_);
}

const NodeTypeDefinition* Console::nodeType(std::string_view typeName) const
{
    for (const auto& declared : definition_.nodeTypes)
        if (declared.typeName == typeName) return &declared;
    return nullptr;
}

ViewChoice Console::defaultView(const ScopeItem& item) const
{
    const NodeTypeDefinition* declared = nodeType(item.typeName());
    if (!declared) throw RunTimeError(runTimeErrors::invalidCall);
    const std::string& name = declared->defaultView;
    for (const auto& list : definition_.listViews)
        if (list.name == name) return {name, ResultViewType::list, list.rows};
    return {name, ResultViewType::taskPad};
}

/// A copy is walked, as an observer may leave or join in its call; who left is told nothing more.
void Console::tellAll(const std::function<void(ConsoleObserver&)>& call)
{
    const auto listening = observers_;
    for (ConsoleObserver* observer : listening)
        if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end())
            call(*observer);
}
