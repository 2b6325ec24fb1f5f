#pragma once

#include "hosts/desktop/log_filter.h"
#include "hosts/desktop/text_decoder.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class ListView;

/// The rows of the console's list as Qt's views see them: those that pass the filter, in the
/// console's own order or in that of a column.
///
/// A row is a place of the console's list; texts are decoded when a view asks for them.
class ListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ListModel(const CodePage& codePage, QObject* parent = nullptr);

    /// Shows a list as the console has filled it, with every row and in its own order. The list
    /// outlives the model's look at it, which `leave` ends.
    void show(ListView& list);
    void leave();

    /// Null when no list is on show.
    ListView* list() const { return list_; }
    const TextDecoder& decoder() const { return decoder_; }

    void filter(LogFilter filter);

    /// The row of a place of the console's list, and back; -1 and 0 where there is none.
    int rowOfPlace(std::uint32_t place) const;
    std::uint32_t placeOfRow(int row) const;

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

    /// By column from 0; -1 for the console's own order.
    void sort(int column, Qt::SortOrder order) override;

signals:
    /// Other rows are on show, or the same in another order.
    void rowsChanged();

private:
    void arrange();

    CodePage codePage_;
    TextDecoder decoder_;
    ListView* list_ = nullptr;
    LogFilter filter_;
    std::vector<std::uint32_t> places_; ///< of the rows on show
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
