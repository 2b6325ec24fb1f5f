#pragma once

#include "hosts/viewer/table/row_column.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QItemSelectionModel>

#include <deque>
#include <map>
#include <utility>

namespace viewer {

class RowTable;

/// What screen readers have of a table of rows: a table with all rows and the columns on show.
///
/// A cell is made when it is asked for, and the last ones that were are kept. Children are the
/// headers and, row by row, the cells in sight: nobody could hold those of millions of rows. The
/// value is the current row in words.
class RowsInterface final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit RowsInterface(RowTable& table);
    ~RowsInterface() override;

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override;
    int rowCount() const override;

    /// Of a selection of very many those at the top alone, but for the counts.
    QList<QAccessibleInterface*> selectedCells() const override;
    QList<int> selectedRows() const override;
    int selectedCellCount() const override;
    int selectedRowCount() const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool unselectRow(int row) override;

    // Rows are selected whole, and columns never.
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    /// The most cells and headers that are kept.
    static constexpr std::size_t mostParts = 4096;

private:
    using Place = std::pair<int, RowColumn>; ///< the row of a cell, or one of none for a header

    RowTable& table() const;
    int rowsInSight() const;
    QAccessibleInterface* part(const Place& place) const;
    void forget();
    bool select(int row, QItemSelectionModel::SelectionFlags how);

    mutable std::map<Place, QAccessible::Id> parts_;
    mutable std::deque<Place> oldest_; ///< of the parts comes first
    QObject changes_;                  ///< hears of other rows for as long as this lives
};

/// The current row of a table as it is spoken: the texts of the columns on show, from the left.
QString spokenRow(const RowTable& table);

} // namespace viewer
