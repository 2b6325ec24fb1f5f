#include "hosts/desktop/log/overview_strip.h"

#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cstdlib>

namespace desktop {

namespace {

constexpr int laneWidth = 5;
constexpr int laneGap = 1;
constexpr int markHeight = 2;
constexpr int aim = 4; ///< pixels that a pointer may miss a mark by

int laneOf(OverviewMark mark)
{
    if (mark == OverviewMark::hit) return 1;
    return mark == OverviewMark::bookmark ? 2 : 0;
}

} // namespace

OverviewStrip::OverviewStrip(QAbstractScrollArea& beside, QWidget* parent)
    : QWidget(parent), beside_(beside)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setCursor(Qt::PointingHandCursor);
    beside_.viewport()->installEventFilter(this);
}

QSize OverviewStrip::sizeHint() const
{
    return {3 * laneWidth + 4 * laneGap, 0};
}

void OverviewStrip::setRowCount(int rows)
{
    rowCount_ = rows;
    update();
}

void OverviewStrip::setRows(OverviewMark mark, std::vector<int> rows)
{
    rows_[static_cast<std::size_t>(mark)] = std::move(rows);
    update();
}

const std::vector<int>& OverviewStrip::rows(OverviewMark mark) const
{
    return rows_[static_cast<std::size_t>(mark)];
}

QRect OverviewStrip::room() const
{
    const QRect viewport = beside_.viewport()->geometry();
    return {0, viewport.top(), width(), viewport.height()};
}

int OverviewStrip::yOfRow(int row) const
{
    const QRect all = room();
    if (rowCount_ == 0) return all.top();
    const qint64 steps = std::max(0, all.height() - markHeight);
    return all.top() + static_cast<int>(steps * row / std::max(1, rowCount_ - 1)) + markHeight / 2;
}

std::optional<int> OverviewStrip::markedRowAt(int y) const
{
    std::optional<int> nearest;
    int distance = aim + 1;
    // What the person asked for comes before what the log holds anyway.
    for (const auto mark :
         {OverviewMark::bookmark, OverviewMark::hit, OverviewMark::error, OverviewMark::warning}) {
        for (const int row : rows(mark)) {
            const int away = std::abs(yOfRow(row) - y);
            if (row >= rowCount_ || away >= distance) continue;
            nearest = row;
            distance = away;
        }
    }
    return nearest;
}

void OverviewStrip::drawLane(QPainter& painter, OverviewMark mark, const QColor& colour) const
{
    const int left = laneGap + laneOf(mark) * (laneWidth + laneGap);
    int drawn = -1;
    for (const int row : rows(mark)) {
        if (row >= rowCount_) break;
        const int y = yOfRow(row);
        // A log of many thousand rows has many marks on one line of pixels.
        if (y == drawn) continue;
        painter.fillRect(left, y - markHeight / 2, laneWidth, markHeight, colour);
        drawn = y;
    }
}

void OverviewStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(room(), palette().color(QPalette::Base));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(0, 0, 0, height());
    drawLane(painter, OverviewMark::warning, theme::warningMark(palette()));
    drawLane(painter, OverviewMark::error, theme::errorMark(palette()));
    drawLane(painter, OverviewMark::hit, theme::hitMark(palette()));
    drawLane(painter, OverviewMark::bookmark, palette().color(QPalette::Highlight));
}

void OverviewStrip::mousePressEvent(QMouseEvent* event)
{
    const QRect all = room();
    const int y = event->position().toPoint().y();
    if (event->button() != Qt::LeftButton || rowCount_ == 0 || all.height() <= 0) return;
    const qint64 share = std::clamp(y - all.top(), 0, all.height() - 1);
    const auto there = static_cast<int>(share * rowCount_ / all.height());
    emit rowAsked(markedRowAt(y).value_or(there));
}

bool OverviewStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto row = markedRowAt(help->pos().y());
    const QString said = row && describe ? describe(*row) : QString();
    QToolTip::showText(help->globalPos(), plainToolTip(said), this);
    return true;
}

bool OverviewStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) update();
    return QWidget::eventFilter(watched, event);
}

} // namespace desktop
