#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/table/row_column.h"
#include "hosts/viewer/table/time_text.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>

namespace viewer {

/// The rows on show as Qt's views see them. It keeps nothing of a row; the document does, of those
/// that were looked at last.
class RowModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The document outlives the model.
    explicit RowModel(Document& document, QObject* parent = nullptr);

    Document& document() const { return document_; }

    /// The text of a cell, as it is shown; a long one is shortened.
    QString text(std::size_t place, RowColumn column) const;

    TimeForm timeForm() const { return times_.form; }
    void setTimeForm(TimeForm form);

    /// The moment that times are told from in the form `sinceMark`.
    std::optional<timeline::Moment> mark() const { return times_.mark; }
    void setMark(std::optional<timeline::Moment> moment);
    const TimeTelling& times() const { return times_; }

    /// What a person keeps of a row, in words; empty for nothing.
    using Remark = std::function<QString(const timeline::IndexRow&)>;

    /// Where rows with a remark have it for their tool tips, and for screen readers.
    void setRemarks(Remark remark) { remark_ = std::move(remark); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// Shows the headers again, in another language.
    void renewHeaders();

private:
    QString time(std::size_t place) const;
    QString spoken(const ShownRow& row, RowColumn column) const;

    Document& document_;
    Remark remark_;
    bool comes_ = false; ///< whether views are being told of rows behind the last one
    TimeTelling times_;
};

} // namespace viewer
