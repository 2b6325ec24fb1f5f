#pragma once

#include <QStyledItemDelegate>

class Highlights;

namespace desktop {

/// Draws the cells of a log and marks in them the texts that are looked for or kept in a colour.
class LogDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// `marks` outlives the delegate.
    explicit LogDelegate(const Highlights& marks, QObject* parent = nullptr)
        : QStyledItemDelegate(parent), marks_(marks)
    {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const Highlights& marks_;
};

} // namespace desktop
