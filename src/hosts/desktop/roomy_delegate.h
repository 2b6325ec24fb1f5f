#pragma once

#include <QStyledItemDelegate>

/// Gives the rows of a tree or list room to be read and to be hit.
class RoomyDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int room = 6;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, room);
    }
};
