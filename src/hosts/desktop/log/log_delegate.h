#pragma once

#include <QStyledItemDelegate>

namespace desktop {

/// Draws the cells of a log and marks in them the text that is looked for.
class LogDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void mark(const QString& text) { marked_ = text; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    QString marked_;
};

} // namespace desktop
