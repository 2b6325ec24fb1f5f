#pragma once

#include "hosts/desktop/log/log_filter.h"
#include "hosts/desktop/log/text_decoder.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class ListView;

namespace desktop {

/// The rows of the console's list as Qt's views see them: those that pass the filter, in the
/// console's own order or in that of a column.
///
/// A row is an item of the console's list; texts are decoded when a view asks for them.
class ListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ListModel(const CodePage& codePage, QObject* parent = nullptr);

    /// Shows the rows of a list that pass the filter, in the order that was chosen for it: the
    /// console's own until a person chose another. The list outlives the model's look at it, which
    /// `leave` ends.
    void show(ListView& list, LogFilter filter = {});
    void leave();

    /// Null when no list is on show.
    ListView* list() const { return list_; }
    const TextDecoder& decoder() const { return decoder_; }

    void filter(LogFilter filter);

    /// The positions of the rows on show, in the console's own order.
    std::vector<std::uint32_t> positionsInOrder() const;

    /// The row of a position in the console's list, and back; -1 and 0 where there is none.
    int rowOfPosition(std::uint32_t position) const;
    std::uint32_t positionOfRow(int row) const;

    /// The row of a position in the console's list; for one that the filter hides, the first row on
    /// show that would stand behind it, or else the last one. -1 when no row is on show.
    int nearestRow(std::uint32_t position) const;

    /// A cell as the list holds it; the empty text where there is none. Column from 1.
    std::string_view bytes(int row, int column) const;
    QString text(int row, int column) const;

    /// The row's own text, which for a log is the whole line, as it was read where its columns
    /// can't show it.
    QString rowText(int row) const;

    /// The row's note, which its columns do not show; for a log the line that has no known form.
    QString note(int row) const;

    /// What a view may show beside the text of a cell; takes row, column from 1 and role.
    std::function<QVariant(int row, int column, int role)> decoration;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Shows the headers again; the console has given them other texts.
    void renewHeaders() { emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// By column from 0; -1 for the console's own order. Selected rows stay selected. Nothing
    /// happens while no list is on show.
    void sort(int column, Qt::SortOrder order) override;

signals:
    /// Other rows are on show, or the same in another order.
    void rowsChanged();

private:
    bool inOwnOrder() const;
    void arrange();
    void moveMarks(const std::vector<std::uint32_t>& before);

    CodePage codePage_;
    TextDecoder decoder_;
    ListView* list_ = nullptr;
    LogFilter filter_;
    std::vector<std::uint32_t> positions_; ///< of the rows on show
};

} // namespace desktop
