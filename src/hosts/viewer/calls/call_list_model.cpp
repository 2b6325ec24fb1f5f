#include "hosts/viewer/calls/call_list_model.h"

#include "hosts/common/look/icons.h"
#include "hosts/viewer/calls/number_text.h"
#include "hosts/viewer/document/shown_row.h"
#include "hosts/viewer/table/time_text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace viewer {

namespace {

using timeline::Call;

bool hasNumbers(CallColumn column)
{
    return column == CallColumn::length || column == CallColumn::lines ||
           column == CallColumn::errors || column == CallColumn::warnings;
}

} // namespace

CallListModel::CallListModel(QObject* parent)
    : QAbstractTableModel(parent), error_(toolIcon(QStringLiteral("level-error"))),
      warning_(toolIcon(QStringLiteral("level-warning")))
{}

void CallListModel::show(std::shared_ptr<const CallList> list)
{
    if (list_ && list && isGrownTo(*list)) return grow(std::move(list));
    beginResetModel();
    list_ = std::move(list);
    order();
    endResetModel();
}

/// Whether a list has the calls of this one, and others behind them at most.
bool CallListModel::isGrownTo(const CallList& list) const
{
    return list.calls.size() >= list_->calls.size() &&
           std::equal(list_->calls.begin(), list_->calls.end(), list.calls.begin(),
                      [](const Call& one, const Call& other) { return one.id == other.id; });
}

/// Views keep their place and what is selected.
void CallListModel::grow(std::shared_ptr<const CallList> list)
{
    const std::size_t before = rows_.size();
    const std::size_t after = list->calls.size();
    if (after > before) beginInsertRows({}, static_cast<int>(before), static_cast<int>(after) - 1);
    list_ = std::move(list);
    rows_.resize(after);
    std::iota(rows_.begin() + static_cast<std::ptrdiff_t>(before), rows_.end(),
              static_cast<std::uint32_t>(before));
    if (after > before) endInsertRows();
    sort(static_cast<int>(column_), order_);
}

void CallListModel::order()
{
    rows_ = list_ ? orderOf(list_->calls, column_, order_ == Qt::DescendingOrder)
                  : std::vector<std::uint32_t>();
}

void CallListModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= callColumns) return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList kept = persistentIndexList();
    std::vector<std::uint32_t> places;
    for (const QModelIndex& index : kept)
        places.push_back(rows_[static_cast<std::size_t>(index.row())]);
    column_ = static_cast<CallColumn>(column);
    order_ = order;
    this->order();
    for (qsizetype at = 0; at < kept.size(); ++at) {
        const auto row =
            std::find(rows_.begin(), rows_.end(), places[static_cast<std::size_t>(at)]);
        changePersistentIndex(kept[at],
                              index(static_cast<int>(row - rows_.begin()), kept[at].column()));
    }
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

const Call& CallListModel::call(int row) const
{
    return list_->calls[rows_[static_cast<std::size_t>(row)]];
}

int CallListModel::rowOf(const std::string& id) const
{
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](std::uint32_t place) {
        return list_->calls[place].id == id;
    });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

QString CallListModel::text(int row, CallColumn column) const
{
    const Call& call = this->call(row);
    switch (column) {
    case CallColumn::id:
        return harmless(QString::fromStdString(call.id));
    case CallColumn::start:
        return clockText(call.first);
    case CallColumn::length:
        return differenceText(call.first, call.last).mid(1); // without its sign
    case CallColumn::lines:
        return numberText(call.rows);
    case CallColumn::errors:
        return numberText(call.errors);
    case CallColumn::warnings:
        return numberText(call.warnings);
    case CallColumn::processes: {
        QStringList names;
        for (const std::string& process : call.processes)
            names << harmless(QString::fromStdString(process));
        return names.join(QStringLiteral(", "));
    }
    }
    return {};
}

int CallListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CallListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : callColumns;
}

QVariant CallListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto column = static_cast<CallColumn>(index.column());
    if (role == Qt::DisplayRole) return text(index.row(), column);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter |
                                (hasNumbers(column) ? Qt::AlignRight : Qt::AlignLeft));
    const Call& call = this->call(index.row());
    if (role == Qt::DecorationRole && column == CallColumn::errors && call.errors > 0)
        return error_;
    if (role == Qt::DecorationRole && column == CallColumn::warnings && call.warnings > 0)
        return warning_;
    // Beside each other the numbers of a row tell nothing to who does not see their headers.
    if (role == Qt::AccessibleTextRole && hasNumbers(column))
        return QStringLiteral("%1: %2").arg(title(column), text(index.row(), column));
    return {};
}

QVariant CallListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= callColumns) return {};
    const auto column = static_cast<CallColumn>(section);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter |
                                (hasNumbers(column) ? Qt::AlignRight : Qt::AlignLeft));
    return role == Qt::DisplayRole ? title(column) : QVariant();
}

QString CallListModel::title(CallColumn column)
{
    switch (column) {
    case CallColumn::id:
        return tr("Call");
    case CallColumn::start:
        return tr("Start");
    case CallColumn::length:
        return tr("Length");
    case CallColumn::lines:
        return tr("Lines");
    case CallColumn::errors:
        return tr("Errors");
    case CallColumn::warnings:
        return tr("Warnings");
    case CallColumn::processes:
        return tr("Processes");
    }
    return {};
}

void CallListModel::renewHeaders()
{
    emit headerDataChanged(Qt::Horizontal, 0, callColumns - 1);
}

} // namespace viewer
