#include "hosts/desktop/log/log_delegate.h"

#include "hosts/common/look/theme.h"

#include <QApplication>
#include <QPainter>

namespace desktop {

void LogDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool found =
        index.column() > 0 && !marked_.isEmpty() && text.contains(marked_, Qt::CaseInsensitive);
    if (!found) return QStyledItemDelegate::paint(painter, option, index);

    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QStyle* style = shown.widget ? shown.widget->style() : QApplication::style();
    const QString elided =
        shown.fontMetrics.elidedText(text, Qt::ElideRight, shown.rect.width() - 8);
    const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, shown.widget) + 1;
    shown.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);

    painter->save();
    painter->setClipRect(shown.rect);
    const bool selected = shown.state & QStyle::State_Selected;
    const int left = room.left() + margin;
    for (auto at = elided.indexOf(marked_, 0, Qt::CaseInsensitive); at >= 0;
         at = elided.indexOf(marked_, at + marked_.size(), Qt::CaseInsensitive)) {
        const int start = shown.fontMetrics.horizontalAdvance(elided.left(at));
        const int width = shown.fontMetrics.horizontalAdvance(elided.mid(at, marked_.size()));
        const QRect hit(left + start, room.top() + 1, width, room.height() - 2);
        if (!selected) painter->fillRect(hit, theme::hitTint(shown.palette));
        painter->setPen(shown.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawLine(hit.bottomLeft(), hit.bottomRight());
    }
    painter->setFont(shown.font);
    painter->setPen(shown.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(room.adjusted(margin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, elided);
    painter->restore();
}

} // namespace desktop
