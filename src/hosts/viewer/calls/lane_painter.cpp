#include "hosts/viewer/calls/lane_painter.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/row_painter.h"

#include <QPainter>

#include <algorithm>
#include <bit>

namespace viewer {

namespace {

constexpr int nameStripe = 3;
constexpr int dotSign = 14;
constexpr int dotRadius = 4;
constexpr int mostGrowth = 5; ///< pixels that a dot of many rows is taller by

} // namespace

LanePainter::LanePainter(QPainter& painter, const QPalette& palette)
    : painter_(painter), palette_(palette), error_(toolIcon(QStringLiteral("level-error"))),
      warning_(toolIcon(QStringLiteral("level-warning")))
{}

void LanePainter::drawName(const QRect& room, const QString& process, const QString& shown)
{
    painter_.fillRect(QRect(room.left(), room.top() + 1, nameStripe, room.height() - 2),
                      RowPainter::processColour(process, palette_));
    painter_.setPen(palette_.color(QPalette::Text));
    const QRect inner = room.adjusted(nameStripe + RowPainter::margin, 0, -RowPainter::margin, 0);
    painter_.drawText(inner, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      painter_.fontMetrics().elidedText(shown, Qt::ElideMiddle, inner.width()));
}

void LanePainter::drawTick(int x, const QRect& axis, int bottom, const QString& text)
{
    painter_.setPen(theme::outline(palette_));
    painter_.drawLine(x, axis.bottom() - tickHeight, x, bottom);
    painter_.setPen(theme::quietText(palette_));
    const int width = painter_.fontMetrics().horizontalAdvance(text);
    const int left = std::clamp(x - width / 2, axis.left(), axis.right() + 1 - width);
    painter_.drawText(QRect(left, axis.top(), width, axis.height() - tickHeight),
                      Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
}

void LanePainter::drawTrack(const QRect& room, const QString& process)
{
    QColor colour = RowPainter::processColour(process, palette_);
    colour.setAlpha(110);
    painter_.setPen(colour);
    painter_.drawLine(room.left(), room.center().y(), room.right(), room.center().y());
}

void LanePainter::drawDot(const LaneLayout::Dot& dot, int y, const QString& process)
{
    if (dot.severity != Severity::none) {
        const QIcon& sign = dot.severity == Severity::error ? error_ : warning_;
        sign.paint(&painter_, QRect(dot.x - dotSign / 2, y - dotSign / 2, dotSign, dotSign));
        return;
    }
    // Taller for more rows, a step each time that there are twice as many.
    const int growth = std::min(static_cast<int>(std::bit_width(dot.count)) - 1, mostGrowth);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(RowPainter::processColour(process, palette_));
    painter_.drawRoundedRect(QRect(dot.x - dotRadius, y - dotRadius - growth, 2 * dotRadius + 1,
                                   2 * (dotRadius + growth) + 1),
                             dotRadius + 0.5, dotRadius + 0.5);
}

void LanePainter::drawSelection(int x, int y, bool focused)
{
    constexpr int reach = 9;
    constexpr int corner = 3;
    const QRect ring(x - reach, y - reach, 2 * reach + 1, 2 * reach + 1);
    painter_.setBrush(Qt::NoBrush);
    // A ground of its own sets it off from dots that stand close.
    painter_.setPen(QPen(palette_.color(QPalette::Base), 5));
    painter_.drawRoundedRect(ring, corner, corner);
    painter_.setPen(QPen(focused ? palette_.color(QPalette::Text) : theme::quietText(palette_), 2));
    painter_.drawRoundedRect(ring, corner, corner);
}

} // namespace viewer
