#include "hosts/desktop/log/list_model.h"

#include "console/list_view.h"
#include "hosts/desktop/log/sort_key.h"

#include <algorithm>

namespace desktop {

ListModel::ListModel(const CodePage& codePage, QObject* parent)
    : QAbstractTableModel(parent), codePage_(codePage), decoder_(codePage, ListText::utf8)
{}

void ListModel::show(ListView& list, LogFilter filter)
{
    beginResetModel();
    list_ = &list;
    decoder_ = TextDecoder(codePage_, list.definition().text);
    filter_ = std::move(filter);
    const std::string kind = list.definition().name + '/' + std::to_string(list.columnCount());
    if (kind != kind_) sortColumn_ = -1;
    kind_ = kind;
    arrange();
    endResetModel();
    emit rowsChanged();
}

void ListModel::leave()
{
    if (!list_) return;
    beginResetModel();
    list_ = nullptr;
    places_.clear();
    endResetModel();
    emit rowsChanged();
}

void ListModel::filter(LogFilter filter)
{
    beginResetModel();
    filter_ = std::move(filter);
    arrange();
    endResetModel();
    emit rowsChanged();
}

void ListModel::sort(int column, Qt::SortOrder order)
{
    if (column == sortColumn_ && order == sortOrder_) return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<std::uint32_t> before = places_;
    sortColumn_ = column;
    sortOrder_ = order;
    arrange();
    moveMarks(before);
    emit layoutChanged({}, VerticalSortHint);
    emit rowsChanged();
}

/// Lets what the views hold by its row, such as the selection, follow to where its place is now.
void ListModel::moveMarks(const std::vector<std::uint32_t>& before)
{
    const QModelIndexList held = persistentIndexList();
    if (held.empty()) return;
    std::vector<int> rowOf(static_cast<std::size_t>(list_->itemCount()) + 1, -1);
    for (std::size_t row = 0; row < places_.size(); ++row)
        rowOf[places_[row]] = static_cast<int>(row);
    QModelIndexList moved;
    moved.reserve(held.size());
    for (const QModelIndex& index : held)
        moved << this->index(rowOf[before[static_cast<std::size_t>(index.row())]], index.column());
    changePersistentIndexList(held, moved);
}

std::vector<std::uint32_t> ListModel::placesInOrder() const
{
    std::vector<std::uint32_t> places = places_;
    if (sortColumn_ >= 0) std::sort(places.begin(), places.end());
    return places;
}

void ListModel::arrange()
{
    places_.clear();
    if (!list_) return;
    places_ = filter_.places(*list_);
    if (sortColumn_ < 0) return;

    // One key a row, made once: making them in each comparison would parse every cell many times.
    std::vector<SortKey> keys(static_cast<std::size_t>(list_->itemCount()) + 1);
    for (const auto place : places_)
        keys[place] = sortKeyOf(list_->shown(static_cast<int>(place)).subItem(sortColumn_ + 1));
    const bool ascending = sortOrder_ == Qt::AscendingOrder;
    std::stable_sort(places_.begin(), places_.end(), [&](std::uint32_t left, std::uint32_t right) {
        return ascending ? keys[left] < keys[right] : keys[right] < keys[left];
    });
}

int ListModel::rowOfPlace(std::uint32_t place) const
{
    const bool inOrder = sortColumn_ < 0;
    const auto found = inOrder ? std::lower_bound(places_.begin(), places_.end(), place)
                               : std::find(places_.begin(), places_.end(), place);
    if (found == places_.end() || *found != place) return -1;
    return static_cast<int>(found - places_.begin());
}

std::uint32_t ListModel::placeOfRow(int row) const
{
    if (row < 0 || row >= rowCount()) return 0;
    return places_[static_cast<std::size_t>(row)];
}

std::string_view ListModel::bytes(int row, int column) const
{
    const auto place = placeOfRow(row);
    if (place == 0) return {};
    return list_->shown(static_cast<int>(place)).subItem(column);
}

QString ListModel::text(int row, int column) const
{
    return decoder_.text(bytes(row, column));
}

QString ListModel::rowText(int row) const
{
    const auto place = placeOfRow(row);
    if (place == 0) return {};
    const ListItem shown = list_->shown(static_cast<int>(place));
    return decoder_.text(shown.note().empty() ? shown.text() : shown.note());
}

QString ListModel::note(int row) const
{
    const auto place = placeOfRow(row);
    if (place == 0) return {};
    return decoder_.text(list_->shown(static_cast<int>(place)).note());
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(places_.size());
}

int ListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !list_ ? 0 : list_->columnCount();
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) return text(index.row(), index.column() + 1);
    return decoration ? decoration(index.row(), index.column() + 1, role) : QVariant();
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!list_ || orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return QString::fromStdString(list_->columns()[static_cast<std::size_t>(section)].text);
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

} // namespace desktop
