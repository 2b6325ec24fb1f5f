#pragma once

#include "console/console_verbs.h"
#include "console/property_sheet_provider.h"
#include "console/result_view.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class Console;

/// A window of the console: the selected node and what the right pane shows of it, with rows, and
/// an order of rows, of its own.
///
/// The order that a person chose for a list goes on to the next list of the same name and columns.
class View {
public:
    explicit View(Console& console) : console_(console) {}
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    const std::string& statusBarText() const { return statusBarText_; }

    /// Shown at once.
    void statusBarText(std::string text);

    /// Items in the order in which they were first selected in this view, positions from 1.
    int scopePaneItemCount() const { return static_cast<int>(panes_.size()); }

    /// Raises 9 for a position that is not there.
    ScopePaneItem& scopePaneItem(int position) const;

    /// Raises 91 before the first selection.
    ScopePaneItem& selectedScopePaneItem() const;

    /// Moves the selection and shows the item's view; what is selected already is shown anew. An
    /// item that was never opened is opened first. Raises 5 for an item that is out of the tree,
    /// and when the view is closed.
    void select(ScopeItem& item);

    /// Shows one of the views of the selected item anew. Raises 91 before the first selection, 5
    /// for a view that is not declared, and when this one is closed.
    void display(const std::string& displayString, ResultViewType type);

    /// What the selection offers.
    ConsoleVerbs& verbs() { return verbs_; }

    /// The one of the console, which its views share: a sheet outlives the view it was opened in.
    PropertySheetProvider& propertySheetProvider();

private:
    friend class Console;

    ScopePaneItem& paneOf(ScopeItem& item);
    ResultView& resultViewOf(ScopePaneItem& pane, const std::string& displayString,
                             ResultViewType type);
    void show(ScopePaneItem& pane, ResultView& resultView);
    void fill(ResultView& resultView);
    bool showsInside(const ScopeItem& item) const;
    void forget(const ScopeItem& item);
    void leaveSelection();
    void noteOrder(ListView& list);

    Console& console_;
    std::vector<std::unique_ptr<ScopePaneItem>> panes_;
    ScopePaneItem* selected_ = nullptr;
    std::map<std::pair<std::string, int>, RowOrder> orders_; ///< by a list's name and columns
    ConsoleVerbs verbs_;
    std::string statusBarText_;
};
