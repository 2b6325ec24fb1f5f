#include "console/console.h"

#include "runtime/required_object.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <iterator>

Console::Console(const SnapInDefinition& definition)
    : definition_(definition), tree_(*this), view_(*this)
{
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
        node.displayName(nodeType(automatic.typeName).displayName);
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
    snapIn_ = &loaded;
    loaded.SnapIn_Initialize();
    loaded.SnapIn_Load();
    view_.select(tree_.item(1));
}

void Console::unload()
{
    SnapInEvents& leaving = snapIn();
    snapIn_ = nullptr;
    leaving.SnapIn_Unload();
}

Menu& Console::menu(std::string_view name)
{
    for (auto& entry : menus_)
        if (entry.name == name) return entry;
    throw RunTimeError(runTimeErrors::keyNotFound);
}

void Console::expand(ScopeItem& item)
{
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
    ContextMenu built;
    (snapIn().*event)(view_, currentScopeItem(), built);
    return built;
}

void Console::clickMenuItem(std::string_view name)
{
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
    ResultView& shown = view_.selectedScopePaneItem().resultView();
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
    ResultView& shown = view_.selectedScopePaneItem().resultView();
    bool doDefault = true;
    snapIn().ResultViews_ListItemDblClick(shown, shown.list().shown(row), doDefault);
}

void Console::helpOnSnapIn()
{
    snapIn().SnapIn_Help();
}

void Console::helpOnScopeItem()
{
    snapIn().ScopeItems_Help(currentScopeItem());
}

void Console::helpOnResultView()
{
    snapIn().ResultViews_Help(view_.selectedScopePaneItem().resultView());
}

void Console::refresh()
{
    if (!view_.verbs().enabled(consoleVerb::refresh)) return;
    const auto held = currentScopeItem().shared_from_this();
    snapIn().Views_Refresh(view_, *held);
}

void Console::createPropertyPages(OpenSheet& sheet)
{
    snapIn().Views_CreatePropertyPages(view_, currentScopeItem(), sheet);
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
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemAdded(item); });
}

void Console::itemChanged(ScopeItem& item)
{
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemChanged(item); });
}

void Console::itemLeaving(ScopeItem& item)
{
    if (item.parent() && view_.showsInside(item)) view_.select(*item.parent());
}

void Console::itemRemoved(ScopeItem& item)
{
    view_.forget(item);
    tellAll([&](ConsoleObserver& observer) { observer.scopeItemRemoved(item); });
}

SnapInEvents& Console::snapIn() const
{
    return required(snapIn_);
}

const NodeTypeDefinition& Console::nodeType(std::string_view typeName) const
{
    for (const auto& declared : definition_.nodeTypes)
        if (declared.typeName == typeName) return declared;
    throw RunTimeError(runTimeErrors::invalidCall);
}

std::pair<std::string, ResultViewType> Console::defaultView(std::string_view typeName) const
{
    const std::string& name = nodeType(typeName).defaultView;
    const bool taskPad = std::any_of(definition_.taskPads.begin(), definition_.taskPads.end(),
                                     [&](const auto& declared) { return declared.name == name; });
    return {name, taskPad ? ResultViewType::taskPad : ResultViewType::list};
}

void Console::tellAll(const std::function<void(ConsoleObserver&)>& call)
{
    for (ConsoleObserver* observer : observers_) call(*observer);
}
