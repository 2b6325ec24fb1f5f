#include "hosts/desktop/log/log_delegate.h"

#include "hosts/common/filters/highlights.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace desktop {

void LogDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const auto marks = index.column() > 0 ? marks_.marksIn(text) : std::vector<Highlights::Mark>();
    if (marks.empty()) return QStyledItemDelegate::paint(painter, option, index);

    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QStyle* style = shown.widget ? shown.widget->style() : QApplication::style();
    const QString elided =
        shown.fontMetrics.elidedText(text, Qt::ElideRight, shown.rect.width() - 8);
    // The last character of a shortened text stands for all that was cut.
    const qsizetype whole = elided == text ? text.size() : elided.size() - 1;
    const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, shown.widget) + 1;
    shown.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);

    painter->save();
    painter->setClipRect(shown.rect);
    const bool selected = shown.state & QStyle::State_Selected;
    const int left = room.left() + margin;
    for (const Highlights::Mark& mark : marks) {
        const qsizetype end = std::min(mark.begin + mark.length, whole);
        if (mark.begin >= end) continue;
        const int start = shown.fontMetrics.horizontalAdvance(elided.left(mark.begin));
        const int width =
            shown.fontMetrics.horizontalAdvance(elided.mid(mark.begin, end - mark.begin));
        const QRect hit(left + start, room.top() + 1, width, room.height() - 2);
        if (!selected) painter->fillRect(hit, Highlights::ground(mark.colour, shown.palette));
        painter->setPen(shown.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawLine(hit.bottomLeft(), hit.bottomRight());
    }
    painter->setFont(shown.font);
    painter->setPen(shown.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(room.adjusted(margin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, elided);
    painter->restore();
}

} // namespace desktop
