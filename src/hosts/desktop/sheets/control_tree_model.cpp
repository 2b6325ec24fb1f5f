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
    entries_.clear();
    for (TreeNode* root : tree_.roots()) take(top_, *root);
    generation_ = tree_.generation();
    count_ = tree_.count();
    attached_ = true;
    endResetModel();
}

void ControlTreeModel::detach()
{
    if (!attached_) return;
    beginResetModel();
    top_.children.clear();
    entries_.clear();
    attached_ = false;
    endResetModel();
}

void ControlTreeModel::take(Entry& above, TreeNode& node)
{
    auto& made = above.children.emplace_back(std::make_unique<Entry>());
    made->node = &node;
    made->parent = &above;
    made->row = static_cast<int>(above.children.size()) - 1;
    entries_[&node] = made.get();
    Entry& entry = *made;
    for (TreeNode* child = node.child(); child; child = child->next()) take(entry, *child);
}

void ControlTreeModel::nodesChanged()
{
    std::vector<const Entry*> open{&top_};
    while (!open.empty()) {
        const Entry* above = open.back();
        open.pop_back();
        if (above->children.empty()) continue;
        emit dataChanged(indexOf(*above->children.front()), indexOf(*above->children.back()));
        for (const auto& child : above->children) open.push_back(child.get());
    }
}

const ControlTreeModel::Entry& ControlTreeModel::entryAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Entry*>(index.internalPointer()) : top_;
}

QModelIndex ControlTreeModel::indexOf(const Entry& entry) const
{
    return &entry == &top_ ? QModelIndex() : createIndex(entry.row, 0, &entry);
}

QModelIndex ControlTreeModel::indexOf(const TreeNode& node) const
{
    const auto found = entries_.find(&node);
    return found == entries_.end() ? QModelIndex() : indexOf(*found->second);
}

TreeNode* ControlTreeModel::nodeAt(const QModelIndex& index) const
{
    return entryAt(index).node;
}

QModelIndex ControlTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Entry& above = entryAt(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(above.children.size())) return {};
    return indexOf(*above.children[static_cast<std::size_t>(row)]);
}

QModelIndex ControlTreeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(*entryAt(index).parent) : QModelIndex();
}

int ControlTreeModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(entryAt(parent).children.size());
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
