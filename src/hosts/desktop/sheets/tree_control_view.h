#pragma once

#include "hosts/desktop/sheets/control_tree_model.h"
#include "hosts/desktop/sheets/control_view.h"

class QTreeView;

namespace desktop {

/// A tree of a page, with ticks where the page asks for them.
class TreeControlView final : public ControlView {
public:
    TreeControlView(TreeView& tree, QWidget* parent, const ActOnControl& act);
    ~TreeControlView() override;

    /// Tells the page of the pointer's moves.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render() override;
    void noted() override;
    void showExpansion(const QModelIndex& parent);

    TreeView& model_;
    ControlTreeModel nodes_;
    QTreeView* tree_;
    TreeNode* inSight_ = nullptr; ///< the node that was scrolled to last
};

} // namespace desktop
