#include "hosts/desktop/tool_style.h"

#include "hosts/desktop/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace {

/// The square or circle of an indicator, in the middle of its room.
QRectF indicatorBox(const QRect& room)
{
    const qreal side = std::min(room.width(), room.height()) - 1.0;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(room).center());
    return box;
}

QPen outlinePen(const QStyleOption& option, bool on)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool focused = option.state & QStyle::State_HasFocus;
    const QPalette& palette = option.palette;
    if (!enabled) return QPen(theme::outline(palette));
    if (option.state & QStyle::State_Selected)
        return QPen(palette.color(QPalette::HighlightedText));
    return QPen(on || focused ? palette.color(QPalette::Highlight) : theme::quietText(palette));
}

QBrush fillBrush(const QStyleOption& option, bool on)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    if (!on) return option.palette.color(enabled ? QPalette::Base : QPalette::Window);
    return enabled ? option.palette.color(QPalette::Highlight) : theme::outline(option.palette);
}

void drawCheck(const QStyleOption& option, QPainter& painter)
{
    const bool on = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QRectF box = indicatorBox(option.rect);
    painter.setPen(outlinePen(option, on));
    painter.setBrush(fillBrush(option, on));
    painter.drawRoundedRect(box, 2.5, 2.5);
    if (!on) return;
    QPainterPath tick;
    tick.moveTo(box.left() + box.width() * 0.24, box.top() + box.height() * 0.53);
    tick.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.72);
    tick.lineTo(box.left() + box.width() * 0.77, box.top() + box.height() * 0.30);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), box.width() * 0.13,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

void drawOption(const QStyleOption& option, QPainter& painter)
{
    const bool on = option.state & QStyle::State_On;
    const QRectF box = indicatorBox(option.rect);
    painter.setPen(outlinePen(option, on));
    painter.setBrush(fillBrush(option, on));
    painter.drawEllipse(box);
    if (!on) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(box.center(), box.width() * 0.2, box.height() * 0.2);
}

} // namespace

ToolStyle::ToolStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ToolStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    const bool check = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if (!check && element != PE_IndicatorRadioButton)
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (check)
        drawCheck(*option, *painter);
    else
        drawOption(*option, *painter);
    painter->restore();
}

void ToolStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    if (element != CE_ToolBar) return QProxyStyle::drawControl(element, option, painter, widget);
    // The usual shade and its see-through lines take longer than the rest of the window.
    const QRect& bar = option->rect;
    painter->fillRect(bar, option->palette.color(QPalette::Window));
    painter->fillRect(bar.adjusted(0, bar.height() - 1, 0, 0), theme::outline(option->palette));
}
