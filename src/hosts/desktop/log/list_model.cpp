#include "hosts/desktop/log/list_model.h"

#include "console/list_view.h"
#include "console/row_order.h"

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
    arrange();
    endResetModel();
    emit rowsChanged();
}

void ListModel::leave()
{
    if (!list_) return;
    beginResetModel();
    list_ = nullptr;
    positions_.clear();
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
    const RowOrder chosen{column + 1, order == Qt::AscendingOrder};
    if (!list_ || chosen == list_->chosenOrder()) return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<std::uint32_t> before = positions_;
    list_->chooseOrder(chosen);
    arrange();
    moveMarks(before);
    emit layoutChanged({}, VerticalSortHint);
    emit rowsChanged();
}

/// Lets what the views hold by its row, such as the selection, follow to where that is now.
void ListModel::moveMarks(const std::vector<std::uint32_t>& before)
{
    const QModelIndexList held = persistentIndexList();
    if (held.empty()) return;
    std::vector<int> rowOf(static_cast<std::size_t>(list_->itemCount()) + 1, -1);
    for (std::size_t row = 0; row < positions_.size(); ++row)
        rowOf[positions_[row]] = static_cast<int>(row);
    QModelIndexList moved;
    moved.reserve(held.size());
    for (const QModelIndex& index : held)
        moved << this->index(rowOf[before[static_cast<std::size_t>(index.row())]], index.column());
    changePersistentIndexList(held, moved);
}

std::vector<std::uint32_t> ListModel::positionsInOrder() const
{
    std::vector<std::uint32_t> positions = positions_;
    if (!inOwnOrder()) std::sort(positions.begin(), positions.end());
    return positions;
}

bool ListModel::inOwnOrder() const
{
    return !list_ || list_->chosenOrder().column < 1;
}

void ListModel::arrange()
{
    positions_.clear();
    if (!list_) return;
    positions_ = filter_.positions(*list_);
    arrangeRows(*list_, positions_);
}

int ListModel::nearestRow(std::uint32_t position) const
{
    if (positions_.empty()) return -1;
    const auto stands = [&](std::uint32_t shown) {
        return position > 0 && standsBefore(*list_, shown, position);
    };
    const auto found = std::partition_point(positions_.begin(), positions_.end(), stands);
    const auto row = static_cast<int>(found - positions_.begin());
    return std::min(row, rowCount() - 1);
}

int ListModel::rowOfPosition(std::uint32_t position) const
{
    const auto found = inOwnOrder()
                           ? std::lower_bound(positions_.begin(), positions_.end(), position)
                           : std::find(positions_.begin(), positions_.end(), position);
    if (found == positions_.end() || *found != position) return -1;
    return static_cast<int>(found - positions_.begin());
}

std::uint32_t ListModel::positionOfRow(int row) const
{
    if (row < 0 || row >= rowCount()) return 0;
    return positions_[static_cast<std::size_t>(row)];
}

std::string_view ListModel::bytes(int row, int column) const
{
    const auto position = positionOfRow(row);
    if (position == 0) return {};
    return list_->shown(static_cast<int>(position)).subItem(column);
}

QString ListModel::text(int row, int column) const
{
    return decoder_.text(bytes(row, column));
}

QString ListModel::rowText(int row) const
{
    const auto position = positionOfRow(row);
    if (position == 0) return {};
    const ListItem shown = list_->shown(static_cast<int>(position));
    return decoder_.text(shown.note().empty() ? shown.text() : shown.note());
}

QString ListModel::note(int row) const
{
    const auto position = positionOfRow(row);
    if (position == 0) return {};
    return decoder_.text(list_->shown(static_cast<int>(position)).note());
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(positions_.size());
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
