#pragma once

#include "console/console_observer.h"
#include "console/menu.h"
#include "console/scope_tree.h"
#include "console/snap_in_definition.h"
#include "console/snap_in_events.h"
#include "console/view.h"

#include <functional>
#include <memory>
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

/// What keeps the console from taking an event: the tool takes one at a time.
enum class Busy {
    no,
    call,  ///< a call into the console is under way
    sheet, ///< a page of a sheet is at work, on show or closed already
};

/// The management console in memory: tree, views, menus and what a person does with them.
///
/// Every host drives this one: a command line by its calls, a window by calls and by observing.
/// What a call says of the selection, or of what is on show, it says of the current view.
class Console : private ScopeTreeListener {
public:
    /// `definition` outlives the console. The root is there, and so are its automatic children.
    explicit Console(const SnapInDefinition& definition);

    const SnapInDefinition& definition() const { return definition_; }

    void addObserver(ConsoleObserver& observer);
    void removeObserver(ConsoleObserver& observer);

    /// Initialises and loads the snap-in. Nothing is on show yet: the host selects what it shows
    /// first. `snapIn` outlives the console, or the call of `unload`.
    void load(SnapInEvents& snapIn);

    /// Raises what the snap-in raises; it is let go all the same.
    void unload();

    SnapInIdentity& identity() { return identity_; }

    /// The snap-in's name, which is the root's display name.
    const std::string& displayName() { return tree_.item(1).displayName(); }
    void displayName(std::string text) { tree_.item(1).displayName(std::move(text)); }

    ScopeTree& scopeItems() { return tree_; }
    ScopeItem& root() { return tree_.item(1); }

    /// The view that the person is in, and while a view is worked on that one.
    View& currentView() { return *current_; }

    /// The person went to a view. Raises 5 for a closed one.
    void activate(View& view);

    /// One more window, without a selection. It is not the current one yet. There is one view from
    /// the start.
    View& addView();

    /// Lets a view go, with its selection, as soon as no call is under way. Another one is current
    /// then. Raises 5 for the last one, and for one that is closed.
    void closeView(View& view);

    /// The open views, the oldest first.
    std::vector<View*> views() const;

    /// The scope item of the current view's selection. Raises 91 before the first selection.
    ScopeItem& currentScopeItem() { return current_->selectedScopePaneItem().scopeItem(); }

    /// What an item shows when it is selected. Raises 5 for a type that is not declared.
    ViewChoice defaultView(const ScopeItem& item) const;

    /// A host gives the console no event unless it answers "no".
    Busy busy() const;

    /// Keeps the console busy with a call: as each call does, and a host around what belongs to
    /// one.
    class Work {
    public:
        explicit Work(Console& console) : console_(console) { ++console_.callsUnderWay_; }
        ~Work() { console_.endWork(); }
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

    private:
        Console& console_;
    };

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

    /// Makes a view the current one for as long as it lives.
    class WorkInView {
    public:
        WorkInView(Console& console, View& view);
        ~WorkInView();
        WorkInView(const WorkInView&) = delete;
        WorkInView& operator=(const WorkInView&) = delete;

    private:
        Work work_;
        Console& console_;
        View& view_;
        View* before_;
    };

    void endWork();
    bool isOpen(const View& view) const;
    SnapInEvents& snapIn() const;

    /// Null for a type that is not declared.
    const NodeTypeDefinition* nodeType(std::string_view typeName) const;
    void tellAll(const std::function<void(ConsoleObserver&)>& call);
    void createPropertyPages(OpenSheet& sheet);
    void tellSheetShown(OpenSheet& sheet);
    void tellHandlerFailed(const RunTimeError& error);
    ContextMenu builtMenu(void (SnapInEvents::*event)(View&, ScopeItem&, ContextMenu&));

    const SnapInDefinition& definition_;
    SnapInIdentity identity_;
    std::vector<Menu> menus_;
    ScopeTree tree_;
    PropertySheetProvider sheets_;
    std::vector<std::unique_ptr<View>> views_;
    View* current_ = nullptr;
    std::vector<ConsoleObserver*> observers_;
    SnapInEvents* snapIn_ = nullptr;
    int callsUnderWay_ = 0;

    // What went while a call was under way, which may still have it in its hands.
    std::vector<std::unique_ptr<View>> closedViews_;
    std::vector<std::unique_ptr<ScopePaneItem>> removedPanes_;
};
