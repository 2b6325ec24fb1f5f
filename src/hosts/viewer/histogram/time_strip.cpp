#include "hosts/viewer/histogram/time_strip.h"

#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/time_text.h"

#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

using timeline::Histogram;
using timeline::Moment;

constexpr int barsHeight = 42;
constexpr int flagsTop = 2; ///< of the lane of bookmarks, above that of hits
constexpr int flagHeight = 5;
constexpr int flagWidth = 5;
constexpr int hitsTop = flagsTop + flagHeight;
constexpr int hitHeight = 4;
constexpr int barsTop = hitsTop + hitHeight + 1;
constexpr float leastHitShade = 0.6F;
constexpr int darkFlagLight = 150; ///< per cent
constexpr int aim = 3;             ///< pixels that a pointer may miss a mark by
constexpr int edge = 8;
constexpr int shortestDrag = 4;    ///< pixels; less is a click
constexpr Moment shortestSpan = 2; ///< milliseconds

/// The rows of a bucket by what their levels tell.
struct Bars {
    std::uint64_t errors = 0;
    std::uint64_t warnings = 0;
    std::uint64_t others = 0;
};

Bars barsOf(const Histogram::Bucket& bucket)
{
    Bars bars;
    for (const auto& [level, rows] : bucket.levels)
        (level == 0 ? bars.errors : level == 1 ? bars.warnings : bars.others) += rows;
    return bars;
}

} // namespace

TimeStrip::TimeStrip(Document& document, QWidget* parent) : QWidget(parent), document_(document)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
    connect(&document_, &Document::countsChanged, this, [this] {
        update();
        emit scaleChanged();
    });
    showInLanguage(this, [this] {
        setAccessibleName(tr("Rows over time"));
        setAccessibleDescription(tr("Errors, warnings and other rows on show, over time"));
    });
}

QSize TimeStrip::sizeHint() const
{
    return {400, barsTop + barsHeight + fontMetrics().height() + 4};
}

QSize TimeStrip::minimumSizeHint() const
{
    return {100, sizeHint().height()};
}

QRect TimeStrip::room() const
{
    return {edge, barsTop, width() - 2 * edge, barsHeight};
}

std::optional<std::pair<Moment, Moment>> TimeStrip::span() const
{
    const RowCounts* counts = document_.counts();
    if (counts == nullptr || !counts->histogram || counts->histogram->buckets().empty())
        return std::nullopt;
    const auto& buckets = counts->histogram->buckets();
    return std::pair(buckets.front().begin, buckets.back().begin + counts->histogram->width());
}

Moment TimeStrip::momentAt(int x) const
{
    const auto times = span();
    if (!times) return timeline::noMoment;
    const double share = static_cast<double>(x - room().left()) / std::max(1, room().width());
    const auto length = static_cast<double>(times->second - times->first);
    return times->first + static_cast<Moment>(std::clamp(share, 0.0, 1.0) * length);
}

int TimeStrip::xOf(Moment moment) const
{
    const auto times = span();
    if (!times) return room().left();
    const double share = static_cast<double>(moment - times->first) /
                         static_cast<double>(times->second - times->first);
    return room().left() + static_cast<int>(share * room().width());
}

void TimeStrip::setCurrent(std::optional<Moment> moment)
{
    if (current_ == moment) return;
    current_ = moment;
    update();
}

void TimeStrip::setHits(std::vector<std::uint32_t> ofPixels)
{
    hits_ = std::move(ofPixels);
    update();
}

void TimeStrip::setFlags(std::vector<Flag> flags)
{
    flags_ = std::move(flags);
    update();
}

void TimeStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emit scaleChanged();
}

void TimeStrip::narrow(Moment from, Moment to)
{
    RowFilter filter = document_.filter();
    filter.since = from;
    filter.until = std::max(to, from + shortestSpan);
    document_.setFilter(std::move(filter));
}

void TimeStrip::showAllTimes()
{
    RowFilter filter = document_.filter();
    if (!filter.since && !filter.until) return;
    filter.since.reset();
    filter.until.reset();
    document_.setFilter(std::move(filter));
}

void TimeStrip::zoom(Moment around, bool in)
{
    const auto shown = span();
    const auto all = document_.times();
    if (!shown || !all) return;
    // What was asked for last may be on its way yet.
    const RowFilter& filter = document_.filter();
    if (!in && !filter.since && !filter.until) return;
    const Moment from = filter.since.value_or(shown->first);
    const Moment to = filter.until.value_or(shown->second);
    around = std::clamp(around, std::min(from, to), std::max(from, to));
    const auto scaled = [&](Moment end) {
        return in ? around + (end - around) / 2 : around + (end - around) * 2;
    };
    const Moment wideFrom = scaled(from);
    const Moment wideTo = scaled(to);
    // Times that leave nothing out are no condition.
    if (wideFrom <= all->first && wideTo >= all->second) return showAllTimes();
    narrow(wideFrom, wideTo);
}

void TimeStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !span()) return;
    pressed_ = event->position().toPoint().x();
    pointer_ = *pressed_;
}

void TimeStrip::mouseMoveEvent(QMouseEvent* event)
{
    pointer_ = event->position().toPoint().x();
    if (pressed_) update();
}

void TimeStrip::mouseReleaseEvent(QMouseEvent* event)
{
    if (!pressed_ || event->button() != Qt::LeftButton) return;
    const int from = std::min(*pressed_, pointer_);
    const int to = std::max(*pressed_, pointer_);
    pressed_.reset();
    update();
    if (to - from >= shortestDrag)
        narrow(momentAt(from), momentAt(to));
    else
        emit momentAsked(momentAt(from));
}

void TimeStrip::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) showAllTimes();
}

void TimeStrip::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() == 0 || !span()) return;
    // A touch pad tells many small turns where a wheel tells one.
    turned_ += event->angleDelta().y();
    while (std::abs(turned_) >= QWheelEvent::DefaultDeltasPerStep) {
        const bool in = turned_ > 0;
        turned_ -= in ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep;
        zoom(momentAt(event->position().toPoint().x()), in);
    }
    event->accept();
}

QString TimeStrip::describe(int x) const
{
    const RowCounts* counts = document_.counts();
    if (!span()) return {};
    const QLocale locale;
    const auto number = [&](std::uint64_t rows) {
        return locale.toString(static_cast<qulonglong>(rows));
    };
    QString marks;
    std::uint64_t hits = 0;
    const int first = std::max(0, x - aim - room().left());
    for (int at = first; at <= x + aim - room().left() && at < static_cast<int>(hits_.size()); ++at)
        hits += hits_[static_cast<std::size_t>(at)];
    if (hits > 0) marks += QLatin1Char('\n') + tr("%1 hits").arg(number(hits));
    for (const Flag& flag : flags_)
        if (std::abs(xOf(flag.moment) - x) <= aim)
            marks += QStringLiteral("\n%1: %2").arg(clockText(flag.moment), flag.text);
    const Moment moment = momentAt(x);
    const Moment width = counts->histogram->width();
    for (const Histogram::Bucket& bucket : counts->histogram->buckets()) {
        if (moment >= bucket.begin + width) continue;
        const Bars bars = barsOf(bucket);
        return tr("%1: %2 rows, %3 errors, %4 warnings")
                   .arg(clockText(bucket.begin), number(bucket.rows), number(bars.errors),
                        number(bars.warnings)) +
               marks;
    }
    return {};
}

bool TimeStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(describe(help->pos().x())), this);
    return true;
}

void TimeStrip::drawBuckets(QPainter& painter) const
{
    const Histogram& histogram = *document_.counts()->histogram;
    std::uint64_t most = 1;
    for (const auto& bucket : histogram.buckets()) most = std::max(most, bucket.rows);
    const QRect all = room();
    const auto height = [&](std::uint64_t rows) {
        // The root lets a few rows be seen beside many, and a row is at least a line of pixels.
        const double share = std::sqrt(static_cast<double>(rows) / static_cast<double>(most));
        return rows == 0 ? 0 : std::max(1, static_cast<int>(share * all.height()));
    };
    QColor others = palette().color(QPalette::Highlight);
    others.setAlpha(130);
    for (const auto& bucket : histogram.buckets()) {
        if (bucket.rows == 0) continue;
        const Bars bars = barsOf(bucket);
        const int left = xOf(bucket.begin);
        const int width = std::max(1, xOf(bucket.begin + histogram.width()) - left - 1);
        const auto bar = [&](std::uint64_t rows, const QColor& colour) {
            const int high = height(rows);
            painter.fillRect(left, all.bottom() + 1 - high, width, high, colour);
        };
        bar(bucket.rows, others);
        bar(bars.errors + bars.warnings, theme::warningMark(palette()));
        bar(bars.errors, theme::errorMark(palette()));
    }
}

/// Hits stand in a lane of lines, bookmarks above them as flags, which are told apart by their form
/// as well.
void TimeStrip::drawMarks(QPainter& painter) const
{
    const QRect all = room();
    // Where a text is nearly everywhere, more of it is seen to be more.
    const std::uint32_t most = hits_.empty() ? 0 : *std::max_element(hits_.begin(), hits_.end());
    for (std::size_t at = 0; at < hits_.size(); ++at) {
        if (hits_[at] == 0) continue;
        QColor hit = theme::hitMark(palette());
        hit.setAlphaF(leastHitShade +
                      (1 - leastHitShade) *
                          std::sqrt(static_cast<float>(hits_[at]) / static_cast<float>(most)));
        const bool alone = at + 1 == hits_.size() || hits_[at + 1] == 0;
        painter.fillRect(all.left() + static_cast<int>(at), hitsTop, alone ? 2 : 1, hitHeight, hit);
    }
    const QColor accent = palette().color(QPalette::Highlight);
    const QColor flag = theme::isDark(palette()) ? accent.lighter(darkFlagLight) : accent;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(flag);
    int drawn = -flagWidth;
    for (const Flag& one : flags_) {
        const int x = xOf(one.moment);
        if (one.moment < span()->first || one.moment > span()->second || x == drawn) continue;
        drawn = x;
        const qreal middle = x + 0.5;
        const QPointF corners[] = {{middle - flagWidth, flagsTop},
                                   {middle + flagWidth, flagsTop},
                                   {middle, flagsTop + flagHeight + 1.0}};
        painter.drawConvexPolygon(corners, 3);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void TimeStrip::drawTimes(QPainter& painter) const
{
    const auto times = span();
    const QRect all = room();
    const QRect text(all.left(), all.bottom() + 2, all.width(), fontMetrics().height());
    painter.setPen(theme::quietText(palette()));
    painter.drawText(text, Qt::AlignLeft, clockText(times->first));
    painter.drawText(text, Qt::AlignRight, clockText(times->second));
    if (text.width() > 5 * fontMetrics().horizontalAdvance(clockText(times->first)))
        painter.drawText(text, Qt::AlignHCenter,
                         clockText(times->first + (times->second - times->first) / 2));
}

void TimeStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(rect().bottomLeft(), rect().bottomRight());
    if (!span()) return;
    drawBuckets(painter);
    drawTimes(painter);
    drawMarks(painter);
    if (current_ && *current_ != timeline::noMoment && *current_ >= span()->first &&
        *current_ <= span()->second) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawLine(xOf(*current_), room().top(), xOf(*current_), room().bottom());
    }
    if (!pressed_) return;
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlpha(70);
    painter.fillRect(QRect(QPoint(std::min(*pressed_, pointer_), room().top()),
                           QPoint(std::max(*pressed_, pointer_), room().bottom())),
                     ground);
}

} // namespace viewer
