#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/table/row_model.h"

#include <QWidget>

#include <optional>

class QPlainTextEdit;
class QTreeWidget;

namespace viewer {

/// All of one row: its fields, one below the other, and its trace with the ends of lines that it
/// has. A value can be selected and copied by itself.
class DetailsPane final : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the pane.
    explicit DetailsPane(Document& document, QWidget* parent = nullptr);

    /// Where rows have what a person keeps of them, to be shown among their fields.
    void setRemarks(RowModel::Remark remark) { remark_ = std::move(remark); }

    /// Shows the row at a place; no row for nothing.
    void show(std::optional<std::size_t> place);

    /// The text of the field that is selected, or the selected part of the trace; the whole trace
    /// where nothing is selected.
    QString value() const;

    QTreeWidget& fields() { return *fields_; }
    QPlainTextEdit& trace() { return *trace_; }

private:
    void showTexts();

    Document& document_;
    RowModel::Remark remark_;
    QTreeWidget* fields_;
    QPlainTextEdit* trace_;
    std::optional<std::size_t> place_;
};

} // namespace viewer
