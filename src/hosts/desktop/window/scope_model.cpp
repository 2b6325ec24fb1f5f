#include "hosts/desktop/window/scope_model.h"

#include "console/console.h"
#include "hosts/desktop/look/icons.h"
#include "hosts/desktop/look/plain_tool_tip.h"
#include "shell/scope_nodes.h"

#include <algorithm>

namespace desktop {

namespace {

QIcon iconOf(const ScopeItem& item)
{
    if (!item.parent()) return toolIcon("console");
    if (item.kind() == mdlSnapIn::kindProcesses) return toolIcon("processes");
    if (item.kind() == mdlSnapIn::kindLogProcess) return toolIcon("process");
    // The tree marks the log in use by its display name, which other logs have as their key.
    return toolIcon(item.displayName() == item.key() ? "log" : "log-current");
}

bool isLog(const ScopeItem& item)
{
    return item.kind() == mdlSnapIn::kindLogFile;
}

} // namespace

ScopeModel::ScopeModel(Console& console, QObject* parent)
    : QAbstractItemModel(parent), console_(console)
{
    ScopeTree& tree = console_.scopeItems();
    if (tree.count() > 0) {
        top_.children.push_back(std::make_unique<Place>());
        Place& root = *top_.children.back();
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

void ScopeModel::fill(Place& place)
{
    places_[place.item] = &place;
    for (ScopeItem* child : place.item->children()) {
        place.children.push_back(std::make_unique<Place>());
        place.children.back()->item = child;
        place.children.back()->parent = &place;
        fill(*place.children.back());
    }
}

ScopeModel::Place* ScopeModel::placeOf(const ScopeItem& item) const
{
    const auto found = places_.find(&item);
    return found == places_.end() ? nullptr : found->second;
}

const ScopeModel::Place& ScopeModel::placeAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Place*>(index.internalPointer()) : top_;
}

int ScopeModel::rowOf(const Place& place)
{
    const auto& siblings = place.parent->children;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](const auto& sibling) { return sibling.get() == &place; });
    return static_cast<int>(found - siblings.begin());
}

QModelIndex ScopeModel::indexOf(const Place* place) const
{
    if (!place || place == &top_) return {};
    return createIndex(rowOf(*place), 0, place);
}

QModelIndex ScopeModel::indexOf(const ScopeItem& item) const
{
    return indexOf(placeOf(item));
}

ScopeItem* ScopeModel::itemAt(const QModelIndex& index) const
{
    return placeAt(index).item;
}

QModelIndex ScopeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Place& above = placeAt(parent);
    if (row < 0 || column != 0 || row >= static_cast<int>(above.children.size())) return {};
    return createIndex(row, column, above.children[static_cast<std::size_t>(row)].get());
}

QModelIndex ScopeModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(placeAt(index).parent) : QModelIndex();
}

int ScopeModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(placeAt(parent).children.size());
}

int ScopeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

bool ScopeModel::hasChildren(const QModelIndex& parent) const
{
    const Place& place = placeAt(parent);
    if (!place.children.empty() || !place.item) return !place.children.empty();
    return !place.item->expanded() && !isLog(*place.item);
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
        return iconOf(*item);
    default:
        return {};
    }
}

void ScopeModel::scopeItemAdded(ScopeItem& item)
{
    Place* above = item.parent() ? placeOf(*item.parent()) : &top_;
    if (!above) return;
    const int row = static_cast<int>(above->children.size());
    beginInsertRows(indexOf(above), row, row);
    above->children.push_back(std::make_unique<Place>());
    above->children.back()->item = &item;
    above->children.back()->parent = above;
    places_[&item] = above->children.back().get();
    endInsertRows();
}

void ScopeModel::scopeItemChanged(ScopeItem& item)
{
    const QModelIndex changed = indexOf(item);
    if (changed.isValid()) emit dataChanged(changed, changed);
}

void ScopeModel::scopeItemRemoved(ScopeItem& item)
{
    Place* leaving = placeOf(item);
    if (!leaving) return;
    Place* above = leaving->parent;
    const int row = rowOf(*leaving);
    beginRemoveRows(indexOf(above), row, row);
    places_.erase(&item);
    above->children.erase(above->children.begin() + row);
    endRemoveRows();
}

} // namespace desktop
