#include "hosts/desktop/sheets/tree_control_view.h"

#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/roomy_delegate.h"

#include <QMouseEvent>
#include <QTreeView>

namespace desktop {

TreeControlView::TreeControlView(TreeView& tree, QWidget* parent, const ActOnControl& act)
    : ControlView(tree, new QTreeView(parent), act), model_(tree), nodes_(tree),
      tree_(static_cast<QTreeView*>(widget()))
{
    tree_->setModel(&nodes_);
    tree_->setItemDelegate(new RoomyDelegate(tree_));
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setAccessibleName(QObject::tr("Choices"));
    tree_->setTextElideMode(Qt::ElideRight);
    tree_->viewport()->setMouseTracking(true);
    tree_->viewport()->installEventFilter(this);
    nodes_.onTick = [this](TreeNode& node, bool checked) {
        ControlView::act([&] { model_.checkByPerson(node, checked); });
    };
    const auto expanded = [this](bool open) {
        return [this, open](const QModelIndex& index) {
            TreeNode* node = nodes_.nodeAt(index);
            if (node && !rendering()) ControlView::act([&] { model_.expandByPerson(*node, open); });
        };
    };
    connect(tree_, &QTreeView::expanded, this, expanded(true));
    connect(tree_, &QTreeView::collapsed, this, expanded(false));
    model_.hitTester = [this](int x, int y) -> TreeNode* {
        return nodes_.attached() ? nodes_.nodeAt(tree_->indexAt(QPoint(x, y))) : nullptr;
    };
}

TreeControlView::~TreeControlView()
{
    model_.hitTester = nullptr;
    if (widget()) tree_->setModel(nullptr);
}

bool TreeControlView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && nodes_.attached()) {
        const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
        model_.mouseMove(at.x(), at.y());
    }
    return ControlView::eventFilter(watched, event);
}

void TreeControlView::noted()
{
    // Nodes may have gone with a change: let go of them before anything looks at one.
    if (!nodes_.outdated()) return;
    nodes_.detach();
    inSight_ = nullptr;
}

void TreeControlView::render()
{
    tree_->viewport()->setToolTip(plainToolTip(QString::fromStdString(model_.toolTip())));
    if (nodes_.outdated())
        nodes_.attach();
    else
        nodes_.nodesChanged();
    showExpansion({});
    TreeNode* wanted = model_.nodeInSight();
    if (!wanted || wanted == inSight_) return;
    inSight_ = wanted;
    tree_->scrollTo(nodes_.indexOf(*wanted));
    // A tree without ticks only tells, and has no row to begin at.
    if (model_.checkBoxes() && !tree_->currentIndex().isValid())
        tree_->setCurrentIndex(nodes_.index(0, 0));
}

void TreeControlView::showExpansion(const QModelIndex& parent)
{
    for (int row = 0; row < nodes_.rowCount(parent); ++row) {
        const QModelIndex index = nodes_.index(row, 0, parent);
        if (nodes_.rowCount(index) == 0) continue;
        const bool open = nodes_.nodeAt(index)->expanded();
        if (open != tree_->isExpanded(index)) tree_->setExpanded(index, open);
        showExpansion(index);
    }
}

} // namespace desktop
