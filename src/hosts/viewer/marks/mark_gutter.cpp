#include "hosts/viewer/marks/mark_gutter.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/marks/marks.h"
#include "hosts/viewer/table/row_table.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace viewer {

namespace {

constexpr int signSize = 14;
constexpr int signEdge = 2;

} // namespace

MarkGutter::MarkGutter(RowTable& table, RowModel& rows, Marks& marks)
    : QWidget(&table), table_(table), rows_(rows), marks_(marks)
{
    connect(&marks_, &Marks::changed, this, qOverload<>(&QWidget::update));
    // What the rows of the table do, the signs beside them do, too.
    table_.viewport()->installEventFilter(this);
    showInLanguage(this, [this] { setAccessibleName(tr("Bookmarks and notes")); });
}

QSize MarkGutter::sizeHint() const
{
    return {signSize + 2 * signEdge, 0};
}

/// Where the first row begins: below the headers of the columns.
int MarkGutter::top() const
{
    return table_.viewport()->geometry().top() - geometry().top();
}

std::optional<std::size_t> MarkGutter::placeAt(int y) const
{
    if (y < top()) return std::nullopt;
    const std::size_t place =
        table_.firstInSight() + static_cast<std::size_t>((y - top()) / table_.rowHeight());
    if (place >= static_cast<std::size_t>(rows_.rowCount())) return std::nullopt;
    return place;
}

void MarkGutter::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.fillRect(QRect(0, 0, width(), top()), palette().color(QPalette::Button));
    painter.setPen(theme::outline(palette()));
    painter.drawLine(width() - 1, top(), width() - 1, height());
    painter.drawLine(0, top() - 1, width(), top() - 1);
    if (marks_.isEmpty()) return;
    const std::size_t first = table_.firstInSight();
    const std::size_t end =
        std::min(first + table_.rowsInSight() + 1, static_cast<std::size_t>(rows_.rowCount()));
    for (std::size_t place = first; place < end; ++place) {
        const Note* note = marks_.of(rows_.document().row(place).index);
        if (note == nullptr) continue;
        const int middle =
            top() + static_cast<int>(place - first) * table_.rowHeight() + table_.rowHeight() / 2;
        const QRect room(signEdge, middle - signSize / 2, signSize, signSize);
        toolIcon(note->text.isEmpty() ? QStringLiteral("bookmark")
                 : note->bookmark     ? QStringLiteral("bookmark-note")
                                      : QStringLiteral("note"))
            .paint(&painter, room);
    }
}

void MarkGutter::mousePressEvent(QMouseEvent* event)
{
    const auto place = placeAt(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && place) emit toggled(*place);
}

bool MarkGutter::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto place = placeAt(help->pos().y());
    const QString said =
        place ? marks_.remark(rows_.document().row(*place).index) : accessibleName();
    QToolTip::showText(help->globalPos(), plainToolTip(said), this);
    return true;
}

bool MarkGutter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) update();
    return QWidget::eventFilter(watched, event);
}

} // namespace viewer
