#include "hosts/desktop/window/scope_model.h"

#include "console/console.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/plain_tool_tip.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <string_view>

namespace desktop {

namespace {

constexpr std::size_t dayLength = 8; ///< of "20250219_144115"
constexpr std::size_t minuteLength = 13;
constexpr std::size_t stampLength = 15;

/// When a log was begun, as its file name has it ("20250219_144115"); empty for a name that has no
/// such end.
std::string_view stampOf(std::string_view name)
{
    const auto end = name.rfind('.');
    if (end == name.npos || end <= stampLength || name[end - stampLength - 1] != '_') return {};
    const std::string_view stamp = name.substr(end - stampLength, stampLength);
    for (std::size_t at = 0; at < stampLength; ++at) {
        const bool digit = stamp[at] >= '0' && stamp[at] <= '9';
        if (digit == (at == dayLength)) return {};
    }
    return stamp[dayLength] == '_' ? stamp : std::string_view();
}

QDateTime momentOf(std::string_view stamp)
{
    return QDateTime::fromString(
        QString::fromLatin1(stamp.data(), static_cast<qsizetype>(stamp.size())),
        QStringLiteral("yyyyMMdd_HHmmss"));
}

} // namespace

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

/// A log's moment to the minute, or to the second where another log was begun in that minute; with
/// the year where the newest log beside it is of another one. Other nodes go by their names.
QString ScopeModel::shownName(const Entry& entry)
{
    const std::string& key = entry.item->key();
    const std::string& name = entry.item->displayName();
    const std::string_view stamp = stampOf(key);
    const bool ofProcess = name.size() >= key.size() && name.ends_with(key) &&
                           name.find('\\') == name.npos && entry.parent->item;
    const QDateTime begun = ofProcess ? momentOf(stamp) : QDateTime();
    if (!begun.isValid()) return QString::fromStdString(name);
    bool seconds = false;
    std::string_view newest = stamp;
    for (const auto& sibling : entry.parent->children) {
        const std::string_view other = stampOf(sibling->item->key());
        newest = std::max(newest, other);
        seconds |= sibling.get() != &entry &&
                   other.substr(0, minuteLength) == stamp.substr(0, minuteLength);
    }
    const bool year = momentOf(newest).date().year() != begun.date().year();
    const QLocale locale;
    const QString day = locale.toString(begun.date(), year ? tr("d MMM yyyy") : tr("d MMM"));
    const QString moment =
        day + QLatin1Char(' ') +
        begun.time().toString(seconds ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm"));
    return name == key ? moment : tr("%1 \u00b7 current").arg(moment);
}

QVariant ScopeModel::data(const QModelIndex& index, int role) const
{
    const ScopeItem* item = itemAt(index);
    if (!item) return {};
    switch (role) {
    case Qt::DisplayRole:
        return shownName(entryAt(index));
    case Qt::AccessibleTextRole:
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
