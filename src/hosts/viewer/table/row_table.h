#pragma once

#include "hosts/viewer/table/row_model.h"

#include <QAbstractItemView>

#include <optional>
#include <vector>

class Highlights;
class QHeaderView;
class QSettings;

namespace viewer {

/// The table of rows. It draws those in sight and keeps nothing of the others, where Qt's own
/// tables keep some bytes of each row of a model, and walk over all of them at every change.
///
/// The current row, the selected ones and where they stand in sight are kept through every change
/// of what is on show.
class RowTable final : public QAbstractItemView {
    Q_OBJECT

public:
    /// Both outlive the table.
    RowTable(RowModel& model, QSettings& settings, QWidget* parent = nullptr);
    ~RowTable() override;

    /// Texts that are marked in the rows; they outlive the table.
    void setHighlights(const Highlights& highlights);

    QHeaderView& header() { return *header_; }

    /// A column of signs that stays at the left of all others; the table places it, and shows it
    /// as wide as it wants to be.
    void setGutter(QWidget& gutter);

    /// Columns as they stand there from the left, those that are hidden left out.
    std::vector<RowColumn> shownColumns() const;

    /// Hides a column, or shows it again; the last one on show stays. It is remembered.
    void showColumn(RowColumn column, bool shown);
    bool showsColumn(RowColumn column) const;

    /// Gives the columns their first widths and order.
    void resetColumns();

    /// Shows a menu of the columns at a point of the screen.
    void offerColumns(const QPoint& at);

    /// Makes a row the current one, selects it alone and brings it in sight.
    void goTo(std::size_t place);

    /// The place of the current row; nothing where there is none.
    std::optional<std::size_t> currentPlace() const;

    /// The places of the selected rows from the top, at most so many of them.
    std::vector<std::size_t> selectedPlaces(std::size_t most) const;

    /// The same as ranges, none of which touches another.
    std::vector<PlaceRange> selectedRanges(std::size_t most) const;

    /// How many rows are selected.
    std::size_t selectedCount() const;

    /// Brings the last rows in sight; whether the last one is.
    void scrollToEnd();
    bool isAtEnd() const;

    /// The first row in sight, and how many stand there whole.
    std::size_t firstInSight() const;
    std::size_t rowsInSight() const;

    /// The height of a row, in pixels.
    int rowHeight() const;

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void reset() override;

    /// Typing a letter looks for no row: it would walk over all of them.
    void keyboardSearch(const QString&) override {}

signals:
    void currentPlaceChanged();

    /// The person wishes for the menu of the current row, at a point of the screen.
    void menuAsked(const QPoint& at);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex&) const override { return false; }
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;

private:
    /// A row that is kept through a change of what is on show.
    struct Held {
        std::optional<timeline::IndexRow> current; ///< as the person chose it
        bool all = false;                          ///< whether all of many rows are selected
        std::vector<timeline::IndexRow> selected;
        std::optional<timeline::IndexRow> anchor; ///< that stays where it is in sight
        int above = 0;                            ///< rows in sight above the anchor
    };

    int placeAt(int y) const;
    void hold();
    void restore();
    void rememberColumns();

    RowModel& rows_;
    QSettings& settings_;
    QHeaderView* header_;
    QWidget* gutter_ = nullptr;
    const Highlights* highlights_ = nullptr;
    Held held_;
    bool restoring_ = false;
};

} // namespace viewer
