#pragma once

class OpenSheet;
class ResultView;
class RunTimeError;
class ScopeItem;
class View;

/// Follows the console: a window does, and keeps itself like the model.
///
/// Calls come while the snap-in works; an observer shows what it is told and asks for nothing. It
/// may take leave in any of them, and is told nothing more.
class ConsoleObserver {
public:
    virtual ~ConsoleObserver() = default;

    virtual void scopeItemAdded(ScopeItem& item) = 0;

    /// Name, display name, kind or image.
    virtual void scopeItemChanged(ScopeItem& item) = 0;

    /// The item is out of the tree; told for what lay below it first. The object itself is gone
    /// after the call.
    virtual void scopeItemRemoved(ScopeItem& item) = 0;

    /// `view` has another selected scope pane item. Its result view is told by `viewReset`.
    virtual void selectionChanged(View& view) = 0;

    /// A result view, new or shown again, begins to be filled. It has no rows, and headers may
    /// change until `viewFilled`.
    virtual void viewReset(ResultView& resultView) = 0;

    /// All rows, columns and tasks are there, rows in their order on the screen.
    virtual void viewFilled(ResultView& resultView) = 0;

    /// The selection of `view` stands, moved or shown anew: its rows are there, and its verbs.
    /// Comes last of all that a selection brings, and not for one that another took the place of
    /// meanwhile.
    virtual void selected(View& /*view*/) {}

    /// `view` has another text in its status bar: to be seen at once, as long work goes on behind
    /// it.
    virtual void statusBarChanged(View& view) = 0;

    /// A sheet is up, at the page that it was opened at. A host that shows sheets follows it from
    /// here on; one that drives them by calls may do without.
    virtual void sheetShown(OpenSheet& /*sheet*/) {}

    /// A page of a sheet that is being shown raised an error: to be told to the person.
    virtual void handlerFailed(const RunTimeError& /*error*/) {}
};
