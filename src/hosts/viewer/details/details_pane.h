#pragma once

#include "hosts/viewer/document/document.h"
#include "hosts/viewer/table/row_model.h"

#include <QWidget>

#include <optional>

class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

namespace viewer {

/// All of one row: its fields, one below the other, and its trace with the ends of lines that it
/// has. A value can be selected and copied by itself. A trace that takes long to lay out is cut
/// until a person wants all of it.
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

    /// Shows all of a trace that is cut; hidden where none is.
    QPushButton& showAll() { return *showAll_; }

    /// The most characters of a trace that are shown at once.
    static constexpr qsizetype mostAtOnce = 20'000;

private:
    void showTexts();

    Document& document_;
    RowModel::Remark remark_;
    QTreeWidget* fields_;
    QPlainTextEdit* trace_;
    QPushButton* showAll_;
    std::optional<std::size_t> place_;
};

} // namespace viewer
