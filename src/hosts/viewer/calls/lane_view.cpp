#include "hosts/viewer/calls/lane_view.h"

#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/calls/lane_access.h"
#include "hosts/viewer/calls/lane_painter.h"
#include "hosts/viewer/calls/number_text.h"
#include "hosts/viewer/table/row_painter.h"
#include "hosts/viewer/table/time_text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr int laneRoom = 12; ///< above and below the letters of a lane's name
constexpr int axisRoom = 10;
constexpr int reachOfDots = 8; ///< pixels from a dot that still are it
constexpr int leastDrag = 4;
constexpr int longestName = 240;
constexpr double zoomStep = 1.5;
constexpr int wheelStep = 120;
constexpr qsizetype longestTold = 300; ///< characters of a trace in a tool tip

} // namespace

LaneView::LaneView(Calls& calls, QWidget* parent) : QAbstractScrollArea(parent), calls_(calls)
{
    makeSpeak(*this);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    connect(&calls_, &Calls::rowsChanged, this, &LaneView::takeRows);
    showInLanguage(this, [this] { showTexts(); });
}

void LaneView::showTexts()
{
    setAccessibleName(
        rows_ ? tr("Lines of call %1 over time").arg(harmless(QString::fromStdString(rows_->id)))
              : tr("Lines of a call over time"));
    speak();
    place();
}

/// The selected row and the times on show stay where they are, as long as it is the same call.
void LaneView::takeRows()
{
    if (rows_ == calls_.rows()) return;
    const bool same = rows_ && calls_.rows() && rows_->id == calls_.rows()->id;
    const auto row = same ? selectedRow() : std::nullopt;
    rows_ = calls_.rows();
    if (!same) scale_ = TimeScale();
    selected_.reset();
    place();
    if (!row || !select(*row)) setSelected(std::nullopt);
    showTexts();
}

/// Finds room for the names and the lanes, and for all times.
void LaneView::place()
{
    int widest = 0;
    for (std::size_t lane = 0; rows_ && lane < rows_->lanes.size(); ++lane)
        widest = std::max(widest, fontMetrics().horizontalAdvance(nameOf(lane)));
    namesWidth_ = std::min({widest + 3 * RowPainter::margin, longestName, viewport()->width() / 3});
    scale_.setWidth(viewport()->width() - namesWidth_);
    if (rows_)
        if (const auto times = LaneLayout::timesOf(*rows_))
            scale_.setAll(times->first, times->second);
    const int lanes = rows_ ? static_cast<int>(rows_->lanes.size()) * laneHeight() : 0;
    const int room = viewport()->height() - axisHeight();
    verticalScrollBar()->setPageStep(room);
    verticalScrollBar()->setSingleStep(laneHeight());
    verticalScrollBar()->setRange(0, std::max(0, lanes - room));
    layOut();
}

void LaneView::layOut()
{
    layout_ = rows_ ? LaneLayout(*rows_, scale_) : LaneLayout();
    viewport()->update();
}

int LaneView::axisHeight() const
{
    return fontMetrics().height() + axisRoom;
}

int LaneView::laneHeight() const
{
    return fontMetrics().height() + laneRoom;
}

int LaneView::laneTop(std::size_t lane) const
{
    return axisHeight() + static_cast<int>(lane) * laneHeight() - verticalScrollBar()->value();
}

std::optional<std::size_t> LaneView::laneAt(int y) const
{
    const int inside = y - axisHeight() + verticalScrollBar()->value();
    if (!rows_ || y < axisHeight() || inside < 0) return std::nullopt;
    const auto lane = static_cast<std::size_t>(inside / laneHeight());
    return lane < rows_->lanes.size() ? std::optional(lane) : std::nullopt;
}

QString LaneView::nameOf(std::size_t lane) const
{
    const QString process = harmless(QString::fromStdString(rows_->lanes[lane]));
    return process.isEmpty() ? tr("(none)") : process;
}

QPoint LaneView::placeOf(std::size_t row) const
{
    const CallRow& placed = rows_->rows[row];
    return {namesWidth_ + static_cast<int>(std::lround(LaneLayout::xOf(placed, scale_))),
            laneTop(placed.lane) + laneHeight() / 2};
}

QSize LaneView::sizeHint() const
{
    return {500, axisHeight() + 4 * laneHeight()};
}

QSize LaneView::minimumSizeHint() const
{
    return {200, axisHeight() + 2 * laneHeight()};
}

std::optional<timeline::IndexRow> LaneView::selectedRow() const
{
    if (!selected_) return std::nullopt;
    return rows_->rows[*selected_].index;
}

bool LaneView::select(const timeline::IndexRow& row)
{
    if (!rows_) return false;
    // Rows of one moment stand side by side.
    const auto isBefore = [](const CallRow& one, timeline::Moment moment) {
        return one.index.moment < moment;
    };
    for (auto at = std::lower_bound(rows_->rows.begin(), rows_->rows.end(), row.moment, isBefore);
         at != rows_->rows.end() && at->index.moment == row.moment; ++at)
        if (at->index.place == row.place) {
            setSelected(static_cast<std::size_t>(at - rows_->rows.begin()));
            return true;
        }
    return false;
}

void LaneView::setSelected(std::optional<std::size_t> row)
{
    selected_ = row;
    if (row) bringInSight();
    viewport()->update();
    speak();
    emit selectionChanged();
}

void LaneView::bringInSight()
{
    const CallRow& row = rows_->rows[*selected_];
    if (row.index.moment != timeline::noMoment) {
        scale_.bringInSight(static_cast<double>(row.index.moment));
        layOut();
    }
    const int top = row.lane * laneHeight();
    QScrollBar* down = verticalScrollBar();
    down->setValue(std::clamp(down->value(), top + laneHeight() - down->pageStep(), top));
}

/// Notes what is said of the selected row, and says it.
void LaneView::speak()
{
    QString said;
    if (selected_) {
        const ShownRow row = calls_.row(rows_->rows[*selected_].index);
        QStringList parts = {
            tr("Line %1 of %2").arg(numberText(*selected_ + 1), numberText(rows_->rows.size())),
            nameOf(rows_->rows[*selected_].lane)};
        if (row.severity == Severity::error) parts << tr("error");
        if (row.severity == Severity::warning) parts << tr("warning");
        parts << clockText(row.index.moment) << row.component << row.trace;
        parts.removeAll(QString());
        said = parts.join(QStringLiteral(", "));
    }
    if (said == spoken_) return;
    spoken_ = said;
    tellSpoken(*this);
}

void LaneView::go(LaneMove move)
{
    if (!rows_ || rows_->rows.empty()) return;
    const auto row =
        selected_ ? moved(*rows_, *selected_, move)
                  : std::optional<std::size_t>(move == LaneMove::last ? rows_->rows.size() - 1 : 0);
    if (row) setSelected(row);
}

std::optional<LaneMove> LaneView::moveOf(const QKeyEvent& event) const
{
    const bool inLane = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Right:
        return inLane ? LaneMove::nextInLane : LaneMove::next;
    case Qt::Key_Left:
        return inLane ? LaneMove::previousInLane : LaneMove::previous;
    case Qt::Key_Down:
        return LaneMove::laneBelow;
    case Qt::Key_Up:
        return LaneMove::laneAbove;
    case Qt::Key_Home:
        return inLane ? LaneMove::firstInLane : LaneMove::first;
    case Qt::Key_End:
        return inLane ? LaneMove::lastInLane : LaneMove::last;
    default:
        return std::nullopt;
    }
}

void LaneView::keyPressEvent(QKeyEvent* event)
{
    if (const auto move = moveOf(*event)) return go(*move);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (selected_) emit rowAsked();
        return;
    case Qt::Key_Escape:
        emit left();
        return;
    case Qt::Key_Plus:
        return zoom(1 / zoomStep);
    case Qt::Key_Minus:
        return zoom(zoomStep);
    case Qt::Key_0:
        scale_.showAll();
        return layOut();
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

/// Zooms around a place, or else around the selected row where that is in sight.
void LaneView::zoom(double factor, std::optional<double> x)
{
    if (!rows_) return;
    double still = (viewport()->width() - namesWidth_) / 2.0;
    if (selected_) {
        const double selected = LaneLayout::xOf(rows_->rows[*selected_], scale_);
        if (selected >= 0 && selected <= viewport()->width() - namesWidth_) still = selected;
    }
    scale_.zoom(factor, x.value_or(still));
    layOut();
}

void LaneView::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    if (turned.x() != 0 && std::abs(turned.x()) > std::abs(turned.y())) {
        scale_.pan(-turned.x());
        layOut();
    } else if (turned.y() != 0) {
        zoom(std::pow(zoomStep, -static_cast<double>(turned.y()) / wheelStep),
             event->position().x() - namesWidth_);
    }
    event->accept();
}

std::optional<LaneLayout::Dot> LaneView::dotAt(const QPoint& at) const
{
    const auto lane = laneAt(at.y());
    if (!lane || at.x() < namesWidth_) return std::nullopt;
    return layout_.dotAt(*lane, at.x() - namesWidth_, reachOfDots);
}

void LaneView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    pressed_ = event->position().toPoint().x();
    dragged_ = false;
    if (const auto dot = dotAt(event->position().toPoint())) setSelected(dot->row);
}

void LaneView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    viewport()->setCursor(dotAt(at) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (!pressed_ || (!dragged_ && std::abs(at.x() - *pressed_) < leastDrag)) return;
    dragged_ = true;
    viewport()->setCursor(Qt::ClosedHandCursor);
    scale_.pan(*pressed_ - at.x());
    pressed_ = at.x();
    layOut();
}

void LaneView::mouseReleaseEvent(QMouseEvent*)
{
    pressed_.reset();
    viewport()->unsetCursor();
}

void LaneView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    if (const auto dot = dotAt(event->position().toPoint())) {
        setSelected(dot->row);
        emit rowAsked();
        return;
    }
    scale_.showAll();
    layOut();
}

QString LaneView::describe(const QPoint& at) const
{
    const auto lane = laneAt(at.y());
    if (!lane) return {};
    const auto dot = dotAt(at);
    if (!dot) return at.x() < namesWidth_ ? nameOf(*lane) : QString();
    const ShownRow row = calls_.row(rows_->rows[dot->row].index);
    QStringList parts = {clockText(row.index.moment), nameOf(*lane), row.component,
                         tr("level %1").arg(row.level)};
    if (row.severity == Severity::error) parts << tr("error");
    if (row.severity == Severity::warning) parts << tr("warning");
    parts.removeAll(QString());
    QString text =
        parts.join(QStringLiteral(", ")) + QLatin1Char('\n') +
        (row.trace.size() > longestTold ? row.trace.left(longestTold) + QChar(0x2026) : row.trace);
    if (dot->count > 1) text += QLatin1Char('\n') + tr("%1 lines here").arg(numberText(dot->count));
    return text;
}

bool LaneView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(describe(help->pos())), viewport());
    return true;
}

/// As many of the first lanes are in sight as the selected one lets.
void LaneView::resizeEvent(QResizeEvent*)
{
    place();
    verticalScrollBar()->setValue(0);
    if (selected_) bringInSight();
}

void LaneView::scrollContentsBy(int, int)
{
    viewport()->update();
}

void LaneView::focusInEvent(QFocusEvent* event)
{
    viewport()->update();
    QAbstractScrollArea::focusInEvent(event);
}

void LaneView::focusOutEvent(QFocusEvent* event)
{
    viewport()->update();
    QAbstractScrollArea::focusOutEvent(event);
}

void LaneView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) place();
}

void LaneView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    if (!rows_) return;
    LanePainter painting(painter, palette());
    drawTimes(painting, painter);
    painter.setClipRect(0, axisHeight(), viewport()->width(), viewport()->height());
    for (std::size_t lane = 0; lane < rows_->lanes.size(); ++lane)
        if (laneTop(lane) + laneHeight() > axisHeight() && laneTop(lane) < viewport()->height())
            drawLane(painting, painter, lane);
    if (!selected_) return;
    const QPoint at = placeOf(*selected_);
    if (at.x() < namesWidth_) return;
    painting.drawSelection(at.x(), at.y(), hasFocus());
}

void LaneView::drawTimes(LanePainter& painting, QPainter& painter) const
{
    const QRect axis(namesWidth_, 0, viewport()->width() - namesWidth_, axisHeight());
    const int widest = fontMetrics().horizontalAdvance(QStringLiteral("00:00:00.000")) * 3 / 2;
    const TimeTicks ticks =
        TimeTicks::between(scale_.from(), scale_.to(), std::max(1, axis.width() / widest));
    // The day stands where the names are, as the clock alone does not tell it.
    painter.setPen(theme::quietText(palette()));
    const QString day = clockText(static_cast<timeline::Moment>(scale_.from())).left(10);
    const int dayWidth = namesWidth_ - 2 * RowPainter::margin;
    painter.drawText(QRect(RowPainter::margin, 0, dayWidth, axisHeight() - LanePainter::tickHeight),
                     Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(day, Qt::ElideRight, dayWidth));
    for (const timeline::Moment moment : ticks.moments)
        painting.drawTick(
            namesWidth_ + static_cast<int>(std::lround(scale_.xOf(static_cast<double>(moment)))),
            axis, viewport()->height(), ticks.text(moment));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(0, axis.bottom(), viewport()->width(), axis.bottom());
}

void LaneView::drawLane(LanePainter& painting, QPainter& painter, std::size_t lane) const
{
    const QString process = harmless(QString::fromStdString(rows_->lanes[lane]));
    const QRect room(0, laneTop(lane), viewport()->width(), laneHeight());
    painting.drawName(QRect(0, room.top(), namesWidth_, room.height()), process, nameOf(lane));
    const auto& dots = layout_.dots(lane);
    painter.save();
    painter.setClipRect(QRect(namesWidth_, axisHeight(), viewport()->width() - namesWidth_,
                              viewport()->height() - axisHeight()));
    painting.drawTrack(QRect(namesWidth_, room.top(), room.width() - namesWidth_, room.height()),
                       process);
    painter.translate(namesWidth_, 0);
    // What is severe stands above what is not.
    for (const Severity severity : {Severity::none, Severity::warning, Severity::error})
        for (const LaneLayout::Dot& dot : dots)
            if (dot.severity == severity) painting.drawDot(dot, room.center().y(), process);
    painter.restore();
}

} // namespace viewer
