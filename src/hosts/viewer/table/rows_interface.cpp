#include "hosts/viewer/table/rows_interface.h"

#include "hosts/viewer/table/row_table.h"

#include <QHeaderView>
#include <QLocale>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace viewer {

namespace {

constexpr qsizetype longestSpoken = 2000; ///< what is longer stands in the details
constexpr std::size_t mostSelected = 1000;
constexpr int headerRow = -1;

QString spokenCell(const QModelIndex& cell)
{
    const QVariant spoken = cell.data(Qt::AccessibleTextRole);
    return (spoken.isValid() ? spoken : cell.data()).toString().left(longestSpoken);
}

/// The cell that has the focus where the table has it: of the current row, in a column on show.
QModelIndex currentCell(const RowTable& table)
{
    const QModelIndex current = table.currentIndex();
    if (!current.isValid() || table.showsColumn(static_cast<RowColumn>(current.column())))
        return current;
    return current.siblingAtColumn(static_cast<int>(table.shownColumns().front()));
}

/// A cell, or a header, of a table that may be gone, and of a row and a column that may be as well.
class TablePart : public QAccessibleInterface {
public:
    TablePart(RowTable& table, int row, RowColumn column)
        : view_(&table), row_(row), column_(column)
    {}

    int row() const { return row_; }
    RowColumn column() const { return column_; }

    bool isValid() const override
    {
        return view_ && row_ < view_->model()->rowCount() && view_->showsColumn(column_);
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override
    {
        return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr;
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

protected:
    RowTable& view() const { return *view_; }

private:
    QPointer<RowTable> view_;
    int row_;
    RowColumn column_;
};

class HeaderCell final : public TablePart {
public:
    HeaderCell(RowTable& table, RowColumn column) : TablePart(table, headerRow, column) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name || !isValid()) return {};
        return view().model()->headerData(static_cast<int>(column()), Qt::Horizontal).toString();
    }
    QRect rect() const override
    {
        if (!isValid()) return {};
        const QHeaderView& header = view().header();
        const int section = static_cast<int>(column());
        return {header.mapToGlobal(QPoint(header.sectionViewportPosition(section), 0)),
                QSize(header.sectionSize(section), header.height())};
    }
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        return state;
    }
};

class RowCell final : public TablePart, public QAccessibleTableCellInterface {
public:
    using TablePart::TablePart;

    /// The cell with the focus has its whole row for a description.
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return spokenCell(index());
        return kind == QAccessible::Description && isFocused() ? spokenRow(view()) : QString();
    }
    QRect rect() const override
    {
        if (!isValid()) return {};
        const QRect room = view().visualRect(index());
        return {view().viewport()->mapToGlobal(room.topLeft()), room.size()};
    }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid()) return state;
        state.selectable = true;
        state.focusable = true;
        state.readOnly = true;
        state.selected = isSelected();
        state.focused = isFocused();
        state.offscreen = !view().viewport()->rect().intersects(view().visualRect(index()));
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    bool isSelected() const override
    {
        return isValid() && view().selectionModel()->isRowSelected(row(), {});
    }
    QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        if (!isValid()) return {};
        return {parent()->child(columnIndex())};
    }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override
    {
        if (!isValid()) return -1;
        const auto shown = view().shownColumns();
        return static_cast<int>(std::find(shown.begin(), shown.end(), column()) - shown.begin());
    }
    int rowIndex() const override { return row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    QModelIndex index() const { return view().model()->index(row(), static_cast<int>(column())); }
    bool isFocused() const { return view().hasFocus() && currentCell(view()) == index(); }
};

} // namespace

QString spokenRow(const RowTable& table)
{
    const QModelIndex current = table.currentIndex();
    if (!current.isValid()) return {};
    QStringList texts;
    for (const RowColumn column : table.shownColumns()) {
        const QString text = spokenCell(current.siblingAtColumn(static_cast<int>(column)));
        if (!text.isEmpty()) texts << text;
    }
    return texts.join(QStringLiteral(", ")).left(longestSpoken);
}

RowsInterface::RowsInterface(RowTable& table) : QAccessibleWidget(&table, QAccessible::Table)
{
    // A row that is elsewhere now would be another one's cell.
    QObject::connect(table.model(), &QAbstractItemModel::modelReset, &changes_,
                     [this] { forget(); });
}

RowsInterface::~RowsInterface()
{
    forget();
}

RowTable& RowsInterface::table() const
{
    return *static_cast<RowTable*>(object());
}

void* RowsInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString RowsInterface::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? spokenRow(table()) : QAccessibleWidget::text(kind);
}

QAccessible::State RowsInterface::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
}

int RowsInterface::rowCount() const
{
    return table().model()->rowCount();
}

int RowsInterface::columnCount() const
{
    return static_cast<int>(table().shownColumns().size());
}

int RowsInterface::rowsInSight() const
{
    const int first = static_cast<int>(table().firstInSight());
    return std::clamp(rowCount() - first, 0, static_cast<int>(table().rowsInSight()));
}

int RowsInterface::childCount() const
{
    return columnCount() * (1 + rowsInSight());
}

/// The headers come first, then the cells in sight, row by row.
QAccessibleInterface* RowsInterface::child(int index) const
{
    if (index < 0 || index >= childCount()) return nullptr;
    const auto shown = table().shownColumns();
    const int columns = static_cast<int>(shown.size());
    const RowColumn column = shown[static_cast<std::size_t>(index % columns)];
    if (index < columns) return part({headerRow, column});
    return part({static_cast<int>(table().firstInSight()) + index / columns - 1, column});
}

int RowsInterface::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* part = dynamic_cast<const TablePart*>(child);
    if (part == nullptr || !part->isValid() || part->parent() != this) return -1;
    const int line =
        part->row() == headerRow ? 0 : part->row() - static_cast<int>(table().firstInSight()) + 1;
    const bool inSight = part->row() == headerRow || (line >= 1 && line <= rowsInSight());
    if (!inSight) return -1;
    const auto shown = table().shownColumns();
    return line * columnCount() +
           static_cast<int>(std::find(shown.begin(), shown.end(), part->column()) - shown.begin());
}

QAccessibleInterface* RowsInterface::childAt(int x, int y) const
{
    const QPoint at(x, y);
    const QHeaderView& header = table().header();
    if (const QPoint inHeader = header.mapFromGlobal(at); header.rect().contains(inHeader)) {
        const int section = header.logicalIndexAt(inHeader);
        return section < 0 ? nullptr : part({headerRow, static_cast<RowColumn>(section)});
    }
    const QPoint inside = table().viewport()->mapFromGlobal(at);
    if (!table().viewport()->rect().contains(inside)) return nullptr;
    const QModelIndex cell = table().indexAt(inside);
    return cell.isValid() ? part({cell.row(), static_cast<RowColumn>(cell.column())}) : nullptr;
}

QAccessibleInterface* RowsInterface::focusChild() const
{
    const QModelIndex current = currentCell(table());
    if (!table().hasFocus() || !current.isValid()) return QAccessibleWidget::focusChild();
    return part({current.row(), static_cast<RowColumn>(current.column())});
}

QAccessibleInterface* RowsInterface::cellAt(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    return part({row, table().shownColumns()[static_cast<std::size_t>(column)]});
}

QString RowsInterface::columnDescription(int column) const
{
    if (column < 0 || column >= columnCount()) return {};
    const RowColumn shown = table().shownColumns()[static_cast<std::size_t>(column)];
    return table().model()->headerData(static_cast<int>(shown), Qt::Horizontal).toString();
}

QString RowsInterface::rowDescription(int row) const
{
    return QLocale().toString(row + 1);
}

int RowsInterface::selectedRowCount() const
{
    return static_cast<int>(table().selectedCount());
}

int RowsInterface::selectedCellCount() const
{
    const std::size_t cells = table().selectedCount() * static_cast<std::size_t>(columnCount());
    return static_cast<int>(
        std::min(cells, static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

QList<int> RowsInterface::selectedRows() const
{
    QList<int> rows;
    for (const std::size_t place : table().selectedPlaces(mostSelected))
        rows << static_cast<int>(place);
    return rows;
}

QList<QAccessibleInterface*> RowsInterface::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows())
        for (int column = 0; column < columnCount(); ++column)
            if (cells.size() < static_cast<qsizetype>(mostSelected)) cells << cellAt(row, column);
    return cells;
}

bool RowsInterface::isRowSelected(int row) const
{
    return table().selectionModel()->isRowSelected(row, {});
}

bool RowsInterface::selectRow(int row)
{
    return select(row, QItemSelectionModel::Select);
}

bool RowsInterface::unselectRow(int row)
{
    return select(row, QItemSelectionModel::Deselect);
}

bool RowsInterface::select(int row, QItemSelectionModel::SelectionFlags how)
{
    const QModelIndex index = table().model()->index(row, 0);
    if (!index.isValid()) return false;
    table().selectionModel()->select(index, how | QItemSelectionModel::Rows);
    return true;
}

/// A cell or a header, which is made where it is not kept. The oldest one goes for it.
QAccessibleInterface* RowsInterface::part(const Place& place) const
{
    if (const auto known = parts_.find(place); known != parts_.end())
        if (QAccessibleInterface* kept = QAccessible::accessibleInterface(known->second))
            return kept;
    if (oldest_.size() == mostParts) {
        const auto oldest = parts_.find(oldest_.front());
        QAccessible::deleteAccessibleInterface(oldest->second);
        parts_.erase(oldest);
        oldest_.pop_front();
    }
    QAccessibleInterface* made = nullptr;
    if (place.first == headerRow)
        made = new HeaderCell(table(), place.second);
    else
        made = new RowCell(table(), place.first, place.second);
    parts_[place] = QAccessible::registerAccessibleInterface(made);
    oldest_.push_back(place);
    return made;
}

void RowsInterface::forget()
{
    for (const auto& [place, id] : parts_) QAccessible::deleteAccessibleInterface(id);
    parts_.clear();
    oldest_.clear();
}

} // namespace viewer
