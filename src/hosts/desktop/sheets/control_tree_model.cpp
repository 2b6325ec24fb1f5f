#include "hosts/desktop/sheets/control_tree_model.h"

#include <QFont>

namespace desktop {

ControlTreeModel::ControlTreeModel(TreeView& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree)
{}

void ControlTreeModel::attach()
{
    beginResetModel();
    top_.children.clear();
    places_.clear();
    for (TreeNode* root : tree_.roots()) take(top_, *root);
    count_ = tree_.count();
    attached_ = true;
    endResetModel();
}

void ControlTreeModel::detach()
{
    if (!attached_) return;
    beginResetModel();
    top_.children.clear();
    places_.clear();
    attached_ = false;
    endResetModel();
}

void ControlTreeModel::take(Place& above, TreeNode& node)
{
    auto& made = above.children.emplace_back(std::make_unique<Place>());
    made->node = &node;
    made->parent = &above;
    made->row = static_cast<int>(above.children.size()) - 1;
    places_[&node] = made.get();
    Place& place = *made;
    for (TreeNode* child = node.child(); child; child = child->next()) take(place, *child);
}

void ControlTreeModel::nodesChanged()
{
    std::vector<const Place*> open{&top_};
    while (!open.empty()) {
        const Place* above = open.back();
        open.pop_back();
        if (above->children.empty()) continue;
        emit dataChanged(indexOf(*above->children.front()), indexOf(*above->children.back()));
        for (const auto& child : above->children) open.push_back(child.get());
    }
}

const ControlTreeModel::Place& ControlTreeModel::placeAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Place*>(index.internalPointer()) : top_;
}

QModelIndex ControlTreeModel::indexOf(const Place& place) const
{
    return &place == &top_ ? QModelIndex() : createIndex(place.row, 0, &place);
}

QModelIndex ControlTreeModel::indexOf(const TreeNode& node) const
{
    const auto found = places_.find(&node);
    return found == places_.end() ? QModelIndex() : indexOf(*found->second);
}

TreeNode* ControlTreeModel::nodeAt(const QModelIndex& index) const
{
    return placeAt(index).node;
}

QModelIndex ControlTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Place& above = placeAt(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(above.children.size())) return {};
    return indexOf(*above.children[static_cast<std::size_t>(row)]);
}

QModelIndex ControlTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(*placeAt(index).parent) : QModelIndex();
}

int ControlTreeModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(placeAt(parent).children.size());
}

int ControlTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

Qt::ItemFlags ControlTreeModel::flags(const QModelIndex& index) const
{
    // A tree without ticks only tells: there is nothing to select in it.
    if (!tree_.checkBoxes()) return Qt::ItemIsEnabled;
    return QAbstractItemModel::flags(index) | Qt::ItemIsUserCheckable;
}

QVariant ControlTreeModel::data(const QModelIndex& index, int role) const
{
    const TreeNode* node = nodeAt(index);
    if (!node) return {};
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(node->text());
    case Qt::AccessibleDescriptionRole:
        return QString::fromStdString(node->key());
    case Qt::CheckStateRole:
        if (!tree_.checkBoxes()) return {};
        return node->checked() ? Qt::Checked : Qt::Unchecked;
    case Qt::FontRole: {
        if (!node->bold()) return {};
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    default:
        return {};
    }
}

bool ControlTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    TreeNode* node = nodeAt(index);
    if (!node || role != Qt::CheckStateRole || !onTick) return false;
    onTick(*node, value.toInt() == Qt::Checked);
    return true;
}

} // namespace desktop
