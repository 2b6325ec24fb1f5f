#pragma once

#include "console/list_view.h"
#include "console/scope_tree.h"
#include "console/task_pad.h"
#include "runtime/required_object.h"

#include <memory>
#include <string>
#include <vector>

class ScopePaneItem;
class View;

enum class ResultViewType { list, taskPad };

/// Which view an item shows, known before it is shown.
struct ViewChoice {
    std::string displayString;
    ResultViewType type = ResultViewType::list;
    ListRows rows = ListRows::own; ///< of a list
};

/// What the right pane shows for a node: a list or a task pad.
class ResultView {
public:
    ResultView(ScopePaneItem& pane, const ListViewDefinition& definition)
        : pane_(pane), displayString_(definition.name), type_(ResultViewType::list),
          list_(std::make_unique<ListView>(definition))
    {}
    ResultView(ScopePaneItem& pane, const TaskPadDefinition& definition)
        : pane_(pane), displayString_(definition.name), type_(ResultViewType::taskPad),
          taskPad_(std::make_unique<TaskPad>(definition))
    {}

    const std::string& displayString() const { return displayString_; }
    ResultViewType type() const { return type_; }
    ScopePaneItem& scopePaneItem() const { return pane_; }

    /// Raise 91 for a view of the other type.
    ListView& list() const { return required(list_); }
    TaskPad& taskPad() const { return required(taskPad_); }

private:
    ScopePaneItem& pane_;
    std::string displayString_;
    ResultViewType type_;
    std::unique_ptr<ListView> list_;
    std::unique_ptr<TaskPad> taskPad_;
};

/// A scope item as a view shows it: made when the item is first selected there.
class ScopePaneItem {
public:
    ScopePaneItem(View& view, ScopeItem& item) : view_(view), item_(item.shared_from_this()) {}
    ScopePaneItem(const ScopePaneItem&) = delete;
    ScopePaneItem& operator=(const ScopePaneItem&) = delete;

    View& view() const { return view_; }
    ScopeItem& scopeItem() const { return *item_; }
    const std::string& key() const { return item_->key(); }
    const std::string& name() const { return item_->name(); }

    /// The view that is shown, or was when the item was last selected. Raises 91 before the first.
    ResultView& resultView() const { return required(shown_); }

private:
    friend class View;

    View& view_;
    std::shared_ptr<ScopeItem> item_;
    std::vector<std::unique_ptr<ResultView>> views_;
    ResultView* shown_ = nullptr;
};
