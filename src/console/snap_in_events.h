#pragma once

class ConsoleVerbs;
class ContextMenu;
class ListItem;
class OpenSheet;
class ResultView;
class ScopeItem;
class View;
struct MenuItem;
struct Task;

/// What the console tells the snap-in. One event at a time, on the console's one thread.
class SnapInEvents {
public:
    virtual ~SnapInEvents() = default;

    /// The snap-in was created; it gives the console its identity.
    virtual void SnapIn_Initialize() = 0;

    /// It was loaded into the console, before any event of tree or views.
    virtual void SnapIn_Load() = 0;

    /// It is being let go. May raise any run-time error.
    virtual void SnapIn_Unload() = 0;

    /// The person asks for help on the snap-in.
    virtual void SnapIn_Help() = 0;

    /// A node is opened for the first time.
    virtual void ScopeItems_Expand(ScopeItem& item) = 0;

    /// The person asks for help on a node, or on what a result view shows.
    virtual void ScopeItems_Help(ScopeItem& item) = 0;
    virtual void ResultViews_Help(ResultView& resultView) = 0;

    /// A result view is being shown: it has its columns or tasks and no rows.
    virtual void ResultViews_Initialize(ResultView& resultView) = 0;

    /// `doDefault` says whether the console goes on with its own action.
    virtual void ResultViews_ListItemDblClick(ResultView& resultView, ListItem item,
                                              bool& doDefault) = 0;
    virtual void ResultViews_TaskClick(ResultView& resultView, Task& task) = 0;

    /// A menu is being built for the selection `selection` of a view.
    virtual void Views_AddTaskMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) = 0;
    virtual void Views_AddTopMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) = 0;
    virtual void Views_AddViewMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) = 0;
    virtual void MenuItem_Click(const MenuItem& item) = 0;

    /// Whether the selection has property pages.
    virtual void Views_QueryPagesFor(View& view, ScopeItem& selection, bool& answer) = 0;

    /// A sheet of the snap-in's making asks for its pages.
    virtual void Views_CreatePropertyPages(View& view, ScopeItem& selection,
                                           OpenSheet& propertySheet) = 0;

    /// The selection came, or (`selected` false) is going.
    virtual void Views_Select(View& view, ScopeItem& selection, bool selected,
                              ConsoleVerbs& verbs) = 0;
    virtual void Views_Refresh(View& view, ScopeItem& selection) = 0;
};
