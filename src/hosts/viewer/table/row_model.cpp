#include "hosts/viewer/table/row_model.h"

#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/viewer/table/cell_text.h"

#include <algorithm>
#include <limits>

namespace viewer {

RowModel::RowModel(Document& document, QObject* parent)
    : QAbstractTableModel(parent), document_(document)
{
    // The rows of before are gone: whoever holds on to some finds them again by what they are.
    connect(&document_, &Document::viewAboutToChange, this, &RowModel::beginResetModel);
    connect(&document_, &Document::viewChanged, this, &RowModel::endResetModel);
    connect(&document_, &Document::rowsAboutToCome, this, [this](std::size_t count) {
        const int rows = rowCount();
        const std::size_t room = std::numeric_limits<int>::max() - static_cast<std::size_t>(rows);
        comes_ = count <= room;
        if (comes_) beginInsertRows({}, rows, rows + static_cast<int>(count) - 1);
    });
    connect(&document_, &Document::rowsCame, this, [this] {
        if (comes_) endInsertRows();
    });
}

void RowModel::setTimeForm(TimeForm form)
{
    times_.form = form;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void RowModel::setMark(std::optional<timeline::Moment> moment)
{
    times_.mark = moment;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void RowModel::renewHeaders()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid()) return 0;
    constexpr std::size_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(document_.rowCount(), most));
}

int RowModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rowColumns;
}

QString RowModel::time(std::size_t place) const
{
    const timeline::Moment moment = document_.row(place).index.moment;
    std::optional<timeline::Moment> before;
    if (times_.form == TimeForm::sinceRowBefore && place > 0)
        before = document_.row(place - 1).index.moment;
    return timeText(times_, moment, before);
}

QString RowModel::text(std::size_t place, RowColumn column) const
{
    const ShownRow& row = document_.row(place);
    if (column == RowColumn::time) return row.belongs ? QString() : time(place);
    return cellText(row, column);
}

/// What a screen reader says of a cell beyond its text; nothing where the text is all.
QString RowModel::spoken(const ShownRow& row, RowColumn column) const
{
    if (column == RowColumn::time && remark_)
        if (const QString remark = remark_(row.index); !remark.isEmpty())
            return QStringLiteral("%1, %2").arg(clockText(row.index.moment), harmless(remark));
    if (column != RowColumn::level || row.severity == Severity::none) return {};
    return QStringLiteral("%1, %2").arg(
        QString::number(row.level), row.severity == Severity::error ? tr("error") : tr("warning"));
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto place = static_cast<std::size_t>(index.row());
    const auto column = static_cast<RowColumn>(index.column());
    if (role == Qt::DisplayRole) return text(place, column);
    if (role == Qt::AccessibleTextRole) {
        const QString said = spoken(document_.row(place), column);
        return said.isEmpty() ? QVariant() : QVariant(said);
    }
    if (role == Qt::ToolTipRole && remark_) {
        const QString remark = remark_(document_.row(place).index);
        return remark.isEmpty() ? QVariant() : QVariant(plainToolTip(remark));
    }
    return {};
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= rowColumns) return {};
    const auto column = static_cast<RowColumn>(section);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter |
                                (RowColumns::info(column).right ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole) return {};
    if (column == RowColumn::time && times_.form == TimeForm::sinceRowBefore)
        return tr("Since row before");
    if (column == RowColumn::time && times_.form == TimeForm::sinceMark)
        return tr("Since marked row");
    return RowColumns::title(column);
}

} // namespace viewer
