#include "hosts/desktop/window/scope_model.h"

#include "console/console.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/plain_tool_tip.h"

#include <algorithm>

namespace desktop {

ScopeModel::ScopeModel(Console& console, QObject* parent)
    : QAbstractItemModel(parent), console_(console)
{
    ScopeTree& tree = console_.scopeItems();
    if (tree.count() > 0) {
        top_.children.push_back(std::make_unique<Entry>());
        Entry& root = *top_.children.back();
        root.item = &tree.item(1);
        root.parent = &top_;
        fill(root);
    }
    console_.addObserver(*this);
}

ScopeModel::~ScopeModel()
{
    console_.removeObserver(*this);
}

void ScopeModel::fill(Entry& entry)
{
    entries_[entry.item] = &entry;
    for (ScopeItem* child : entry.item->children()) {
        entry.children.push_back(std::make_unique<Entry>());
        entry.children.back()->item = child;
        entry.children.back()->parent = &entry;
        fill(*entry.children.back());
    }
}

ScopeModel::Entry* ScopeModel::entryOf(const ScopeItem& item) const
{
    const auto found = entries_.find(&item);
    return found == entries_.end() ? nullptr : found->second;
}

const ScopeModel::Entry& ScopeModel::entryAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Entry*>(index.internalPointer()) : top_;
}

int ScopeModel::rowOf(const Entry& entry)
{
    const auto& siblings = entry.parent->children;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](const auto& sibling) { return sibling.get() == &entry; });
    return static_cast<int>(found - siblings.begin());
}

QModelIndex ScopeModel::indexOf(const Entry* entry) const
{
    if (!entry || entry == &top_) return {};
    return createIndex(rowOf(*entry), 0, entry);
}

QModelIndex ScopeModel::indexOf(const ScopeItem& item) const
{
    return indexOf(entryOf(item));
}

ScopeItem* ScopeModel::itemAt(const QModelIndex& index) const
{
    return entryAt(index).item;
}

QModelIndex ScopeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Entry& above = entryAt(parent);
    if (row < 0 || column != 0 || row >= static_cast<int>(above.children.size())) return {};
    return createIndex(row, column, above.children[static_cast<std::size_t>(row)].get());
}

QModelIndex ScopeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(entryAt(index).parent) : QModelIndex();
}

int ScopeModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(entryAt(parent).children.size());
}

int ScopeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

bool ScopeModel::hasChildren(const QModelIndex& parent) const
{
    const Entry& entry = entryAt(parent);
    return entry.item ? entry.item->hasChildren() : !entry.children.empty();
}

QVariant ScopeModel::data(const QModelIndex& index, int role) const
{
    const ScopeItem* item = itemAt(index);
    if (!item) return {};
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(item->displayName());
    case Qt::ToolTipRole:
        return plainToolTip(QString::fromStdString(item->displayName()));
    case Qt::DecorationRole:
        return toolIcon(QString::fromStdString(item->image()));
    default:
        return {};
    }
}

void ScopeModel::scopeItemAdded(ScopeItem& item)
{
    Entry* above = item.parent() ? entryOf(*item.parent()) : &top_;
    if (!above) return;
    const int row = static_cast<int>(above->children.size());
    beginInsertRows(indexOf(above), row, row);
    above->children.push_back(std::make_unique<Entry>());
    above->children.back()->item = &item;
    above->children.back()->parent = above;
    entries_[&item] = above->children.back().get();
    endInsertRows();
}

void ScopeModel::scopeItemChanged(ScopeItem& item)
{
    const QModelIndex changed = indexOf(item);
    if (changed.isValid()) emit dataChanged(changed, changed);
}

void ScopeModel::scopeItemRemoved(ScopeItem& item)
{
    Entry* leaving = entryOf(item);
    if (!leaving) return;
    Entry* above = leaving->parent;
    const int row = rowOf(*leaving);
    beginRemoveRows(indexOf(above), row, row);
    entries_.erase(&item);
    above->children.erase(above->children.begin() + row);
    endRemoveRows();
}

} // namespace desktop
