#pragma once

#include <QTableView>
#include <QVariantList>

#include <cstdint>
#include <utility>
#include <vector>

class QMenu;
class QSettings;

namespace desktop {

class ListModel;

/// A table over a list of the console: sorted by a click on a header, with widths that are
/// remembered for each view.
class ListTable final : public QTableView {
    Q_OBJECT

public:
    /// Both outlive the table.
    ListTable(ListModel& model, QSettings& settings, QWidget* parent = nullptr);

    /// Columns, from 0, that give way to the last one where a window has room for a few alone, the
    /// first of them first; -1 for one that is not there. Until a person says which columns to see.
    void setSpareColumns(std::vector<int> columns) { spare_ = std::move(columns); }

    /// Takes the widths and the sort mark of the list that the model shows.
    void listShown();

    /// Puts the selected rows, in their order on the screen, on the clipboard: one line each, or as
    /// CSV with the headers before them. Gives the number of rows.
    int copyAsText() const;
    int copyAsCsv() const;

    /// Makes a row the current one and selects it alone.
    void goTo(int row);

    /// The position, from 1, of the current row in the console's list; 0 when there is none.
    std::uint32_t currentPosition() const;

    /// Puts the columns into a menu, ticked while they are on show: all but the last one, which
    /// stays. A tick is remembered for each view.
    void offerColumns(QMenu& menu);

signals:
    /// The person opens a row, by a double click or the Enter key.
    void opened(std::uint32_t position);
    void currentRowChanged(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void markOrder();
    QString hiddenKey() const;
    void showColumns();
    QVariantList hiddenColumns() const;
    void setColumnShown(int column, bool shown);
    void sortRows(int column, Qt::SortOrder order);
    QString widthsKey() const;
    void giveWidths();
    int firstWidth(int column, bool tight) const;
    void rememberWidths();
    void fillLastColumn();
    std::vector<int> selectedRowNumbers() const;

    ListModel& rows_;
    QSettings& settings_;
    std::vector<int> spare_;
    int lastWidth_ = 0;  ///< what the last column needs, or the person gave it
    int roomyWidth_ = 0; ///< of all columns but the last, as the console asks for
    bool tight_ = false; ///< as wide as their contents
    bool arranging_ = false;
};

} // namespace desktop
