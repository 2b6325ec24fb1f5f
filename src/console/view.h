#pragma once

#include "console/console_verbs.h"
#include "console/property_sheet_provider.h"
#include "console/result_view.h"

#include <memory>
#include <string>
#include <vector>

class Console;

/// A window of the console: the selected node and what the right pane shows of it.
class View {
public:
    explicit View(Console& console) : console_(console), sheets_(console) {}
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
    /// item that was never opened is opened first. Raises 5 for an item that is out of the tree.
    void select(ScopeItem& item);

    /// Shows one of the views of the selected item anew. Raises 91 before the first selection, 5
    /// for a view that is not declared.
    void display(const std::string& displayString, ResultViewType type);

    /// What the selection offers.
    ConsoleVerbs& verbs() { return verbs_; }

    PropertySheetProvider& propertySheetProvider() { return sheets_; }

private:
    friend class Console;

    ScopePaneItem& paneOf(ScopeItem& item);
    ResultView& resultViewOf(ScopePaneItem& pane, const std::string& displayString,
                             ResultViewType type);
    void show(ScopePaneItem& pane, ResultView& resultView);
    void fill(ResultView& resultView);
    bool showsInside(const ScopeItem& item) const;
    void forget(const ScopeItem& item);

    Console& console_;
    PropertySheetProvider sheets_;
    std::vector<std::unique_ptr<ScopePaneItem>> panes_;
    std::vector<std::unique_ptr<ScopePaneItem>> retired_; ///< removed while a view was filled
    ScopePaneItem* selected_ = nullptr;
    int fillsUnderWay_ = 0;
    ConsoleVerbs verbs_;
    std::string statusBarText_;
};
