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

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // A row that can't be selected does not look as if it could.
        if (!(index.flags() & Qt::ItemIsSelectable))
            option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    }
};
