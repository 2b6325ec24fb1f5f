#include "hosts/common/look/style_drawing.h"

#include "hosts/common/look/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr qreal corner = 4;

bool is(const QStyleOption& option, QStyle::StateFlag state)
{
    return option.state & state;
}

/// `share` of one colour over another.
QColor mixed(const QColor& upper, const QColor& lower, qreal share)
{
    const auto part = [&](int above, int below) {
        return static_cast<int>(above * share + below * (1 - share));
    };
    return QColor(part(upper.red(), lower.red()), part(upper.green(), lower.green()),
                  part(upper.blue(), lower.blue()));
}

/// What is drawn around a control.
QColor edgeOf(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Text), palette.color(QPalette::Window), 0.28);
}

/// The square or circle of an indicator, in the middle of its room.
QRectF indicatorBox(const QRect& room)
{
    const qreal side = std::min(room.width(), room.height()) - 1.0;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(room).center());
    return box;
}

QPen indicatorPen(const QStyleOption& option, bool on)
{
    const QPalette& palette = option.palette;
    if (!is(option, QStyle::State_Enabled)) return QPen(theme::outline(palette));
    if (is(option, QStyle::State_Selected)) return QPen(palette.color(QPalette::HighlightedText));
    const bool marked =
        on || is(option, QStyle::State_HasFocus) || is(option, QStyle::State_MouseOver);
    return QPen(marked ? palette.color(QPalette::Highlight) : theme::quietText(palette));
}

QBrush indicatorBrush(const QStyleOption& option, bool on)
{
    const bool enabled = is(option, QStyle::State_Enabled);
    if (!on) return option.palette.color(enabled ? QPalette::Base : QPalette::Window);
    return enabled ? option.palette.color(QPalette::Highlight) : theme::outline(option.palette);
}

} // namespace

void drawing::checkBox(const QStyleOption& option, QPainter& painter)
{
    const bool some = is(option, QStyle::State_NoChange);
    const bool on = some || is(option, QStyle::State_On);
    const QRectF box = indicatorBox(option.rect);
    painter.setPen(indicatorPen(option, on));
    painter.setBrush(indicatorBrush(option, on));
    painter.drawRoundedRect(box, 3, 3);
    if (!on) return;
    QPainterPath tick;
    if (some) {
        tick.moveTo(box.left() + box.width() * 0.27, box.center().y());
        tick.lineTo(box.left() + box.width() * 0.73, box.center().y());
    } else {
        tick.moveTo(box.left() + box.width() * 0.24, box.top() + box.height() * 0.53);
        tick.lineTo(box.left() + box.width() * 0.43, box.top() + box.height() * 0.72);
        tick.lineTo(box.left() + box.width() * 0.77, box.top() + box.height() * 0.30);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), box.width() * 0.13,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

void drawing::optionButton(const QStyleOption& option, QPainter& painter)
{
    const bool on = is(option, QStyle::State_On);
    const QRectF box = indicatorBox(option.rect);
    painter.setPen(indicatorPen(option, on));
    painter.setBrush(indicatorBrush(option, on));
    painter.drawEllipse(box);
    if (!on) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::HighlightedText));
    painter.drawEllipse(box.center(), box.width() * 0.2, box.height() * 0.2);
}

bool drawing::standsOut(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button && (button->features & QStyleOptionButton::DefaultButton) &&
           is(option, QStyle::State_Enabled);
}

void drawing::button(const QStyleOption& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const QColor text = palette.color(QPalette::ButtonText);
    const bool main = standsOut(option);
    QColor fill = palette.color(main ? QPalette::Highlight : QPalette::Button);
    if (!main && !theme::isDark(palette)) fill = palette.color(QPalette::Base);
    QColor edge = main ? fill : edgeOf(palette);
    if (!is(option, QStyle::State_Enabled)) {
        fill = palette.color(QPalette::Window);
        edge = theme::outline(palette);
    } else if (is(option, QStyle::State_Sunken) || is(option, QStyle::State_On)) {
        fill = mixed(main ? QColor(Qt::black) : text, fill, 0.14);
    } else if (is(option, QStyle::State_MouseOver)) {
        fill = mixed(main ? QColor(Qt::black) : text, fill, 0.07);
    }
    painter.setPen(edge);
    painter.setBrush(fill);
    const QRectF room = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(room, corner, corner);
    if (!is(option, QStyle::State_HasFocus) || !is(option, QStyle::State_KeyboardFocusChange))
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(main ? palette.color(QPalette::HighlightedText)
                        : palette.color(QPalette::Highlight));
    painter.drawRoundedRect(room.adjusted(2, 2, -2, -2), corner - 1, corner - 1);
}

void drawing::itemFocus(const QStyleOption& option, QPainter& painter)
{
    const bool selected = is(option, QStyle::State_Selected);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        option.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5), 2, 2);
}

void drawing::field(const QStyleOption& option, QPainter& painter)
{
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    const bool typed = is(option, QStyle::State_Enabled) && !is(option, QStyle::State_ReadOnly);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.brush(typed ? QPalette::Base : QPalette::Window));
    // A field inside of another control has the edge of that one.
    if (frame && frame->lineWidth == 0) return painter.drawRect(option.rect);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    fieldEdge(option, painter);
}

void drawing::fieldEdge(const QStyleOption& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    QColor edge = edgeOf(palette);
    if (!is(option, QStyle::State_Enabled)) edge = theme::outline(palette);
    if (is(option, QStyle::State_HasFocus)) edge = palette.color(QPalette::Highlight);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

void drawing::arrowGround(const QStyleOption& option, QPainter& painter)
{
    const bool pressed = is(option, QStyle::State_Sunken);
    if (!is(option, QStyle::State_Enabled)) return;
    if (!pressed && !is(option, QStyle::State_MouseOver)) return;
    const QPalette& palette = option.palette;
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), pressed ? 0.18 : 0.09));
    painter.drawRoundedRect(option.rect.adjusted(0, 1, -1, -1), corner - 1, corner - 1);
}

void drawing::frame(const QStyleOption& option, QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(edgeOf(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void drawing::headerSection(const QStyleOption& option, QPainter& painter)
{
    const QPalette& palette = option.palette;
    QColor fill = palette.color(QPalette::Window);
    if (is(option, QStyle::State_MouseOver) && is(option, QStyle::State_Enabled))
        fill = mixed(palette.color(QPalette::WindowText), fill, 0.06);
    const QRect room = option.rect;
    painter.fillRect(room, fill);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(theme::outline(palette));
    painter.drawLine(room.bottomLeft(), room.bottomRight());
    painter.drawLine(room.right(), room.top() + 4, room.right(), room.bottom() - 4);
}

void drawing::toolBar(const QStyleOption& option, QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    painter.setPen(theme::outline(option.palette));
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void drawing::menuTitle(const QStyleOption& option, QPainter& painter)
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    const QPalette& palette = option.palette;
    painter.fillRect(option.rect, palette.color(QPalette::Window));
    if (!item) return;
    const bool open = is(option, QStyle::State_Selected) && is(option, QStyle::State_Enabled);
    if (open) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 2, -1, -2), corner, corner);
    }
    const auto group = is(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette.color(group, open ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                     item->text);
}

void drawing::splitter(const QStyleOption& option, QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QRect room = option.rect;
    painter.fillRect(room, option.palette.color(QPalette::Window));
    painter.setPen(is(option, QStyle::State_MouseOver) ? option.palette.color(QPalette::Highlight)
                                                       : theme::outline(option.palette));
    const QPoint middle = room.center();
    if (is(option, QStyle::State_Horizontal))
        painter.drawLine(middle.x(), room.top(), middle.x(), room.bottom());
    else
        painter.drawLine(room.left(), middle.y(), room.right(), middle.y());
}

void drawing::progressGround(const QStyleOption& option, QPainter& painter)
{
    painter.setPen(theme::outline(option.palette));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

void drawing::progress(const QStyleOption& option, QPainter& painter)
{
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&option);
    if (!bar || bar->maximum <= bar->minimum) return;
    const QRectF room = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const qreal share =
        static_cast<qreal>(bar->progress - bar->minimum) / (bar->maximum - bar->minimum);
    QPainterPath shape;
    shape.addRoundedRect(room, corner - 1, corner - 1);
    painter.setClipPath(shape);
    QRectF done = room;
    done.setWidth(room.width() * std::clamp(share, 0.0, 1.0));
    painter.fillRect(done, option.palette.color(QPalette::Highlight));
}

void drawing::scrollBar(const QStyleOptionSlider& option, const QRect& handle,
                        QPalette::ColorRole groundRole, QPainter& painter)
{
    const QPalette& palette = option.palette;
    const QColor ground = palette.color(groundRole);
    painter.fillRect(option.rect, ground);
    if (option.maximum <= option.minimum) return;
    const bool held = is(option, QStyle::State_Sunken);
    const bool near = is(option, QStyle::State_MouseOver);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(palette.color(QPalette::Text), ground, held ? 0.6 : near ? 0.5 : 0.35));
    const QRectF shape = QRectF(handle).adjusted(3, 3, -3, -3);
    const qreal round = std::min(shape.width(), shape.height()) / 2;
    painter.drawRoundedRect(shape, round, round);
}
