#pragma once

#include "console/console_observer.h"
#include "console/menu.h"
#include "console/scope_tree.h"
#include "console/snap_in_definition.h"
#include "console/snap_in_events.h"
#include "console/view.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The key and name of the root.
constexpr const char* rootKey = "Static Node";

/// What a snap-in calls itself.
struct SnapInIdentity {
    std::string provider;
    std::string description;
    std::string helpFileName;
    std::string version;
};

/// The management console in memory: tree, view, menus and what a person does with them.
///
/// Every host drives this one: a command line by its calls, a window by calls and by observing.
class Console : private ScopeTreeListener {
public:
    /// `definition` outlives the console. The root is there, and so are its automatic children.
    explicit Console(const SnapInDefinition& definition);

    const SnapInDefinition& definition() const { return definition_; }

    void addObserver(ConsoleObserver& observer);
    void removeObserver(ConsoleObserver& observer);

    /// Initialises and loads the snap-in, then selects the root. `snapIn` outlives the console, or
    /// the call of `unload`.
    void load(SnapInEvents& snapIn);

    /// Raises what the snap-in raises; it is let go all the same.
    void unload();

    SnapInIdentity& identity() { return identity_; }

    /// The snap-in's name, which is the root's display name.
    const std::string& displayName() { return tree_.item(1).displayName(); }
    void displayName(std::string text) { tree_.item(1).displayName(std::move(text)); }

    ScopeTree& scopeItems() { return tree_; }
    View& currentView() { return view_; }

    /// The scope item of the current view's selection. Raises 91 before the first selection.
    ScopeItem& currentScopeItem() { return view_.selectedScopePaneItem().scopeItem(); }

    /// By name. Raises 35601 for a menu that is not declared.
    Menu& menu(std::string_view name);

    /// Opens a node; the snap-in hears of the first time alone. Raises 5 for an item that is out
    /// of the tree.
    void expand(ScopeItem& item);

    /// The menus as they stand for the present selection.
    ContextMenu taskMenu();
    ContextMenu topMenu();

    /// A click on an item of a menu. Raises 35601 for a name that is not declared, 5 for an item
    /// that is hidden or disabled.
    void clickMenuItem(std::string_view name);

    /// A click on a task of the task pad on show. Raises 35601 for a key that is not there, 91 when
    /// no task pad is on show.
    void clickTask(std::string_view key);

    /// A double click on a row of the list on show, by its position on the screen from 1. Raises 9,
    /// 91.
    void doubleClickRow(int row);

    /// The person asks for help: on the snap-in, on the selected node, on what is shown of it. The
    /// last two raise 91 before the first selection.
    void helpOnSnapIn();
    void helpOnScopeItem();
    void helpOnResultView();

    /// The refresh command; does nothing where the selection does not offer it.
    void refresh();

private:
    friend class PropertySheetProvider;
    friend class View;

    void itemAdded(ScopeItem& item) override;
    void itemChanged(ScopeItem& item) override;
    void itemLeaving(ScopeItem& item) override;
    void itemRemoved(ScopeItem& item) override;

    SnapInEvents& snapIn() const;
    const NodeTypeDefinition& nodeType(std::string_view typeName) const;
    std::pair<std::string, ResultViewType> defaultView(std::string_view typeName) const;
    void tellAll(const std::function<void(ConsoleObserver&)>& call);
    void createPropertyPages(OpenSheet& sheet);
    void tellSheetShown(OpenSheet& sheet);
    void tellHandlerFailed(const RunTimeError& error);
    ContextMenu builtMenu(void (SnapInEvents::*event)(View&, ScopeItem&, ContextMenu&));

    const SnapInDefinition& definition_;
    SnapInIdentity identity_;
    std::vector<Menu> menus_;
    ScopeTree tree_;
    View view_;
    std::vector<ConsoleObserver*> observers_;
    SnapInEvents* snapIn_ = nullptr;
};
