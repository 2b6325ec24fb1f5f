#include "hosts/viewer/table/row_painter.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace viewer {

namespace {

constexpr int stripeWidth = 3;
constexpr int signSize = 14;
constexpr int indentation = 2; ///< characters before a line that belongs to the row above
constexpr int longestDrawn = 2000;

/// Where a cell stands in the line of a row. One without a form is a trace and nothing else.
LineEdges edgesOf(RowColumn column, const ShownRow& row)
{
    return {.begins = column == RowColumn::time || !row.hasForm,
            .ends = column == RowColumn::trace || !row.hasForm};
}

} // namespace

RowPainter::RowPainter(QPainter& painter, const QPalette& palette, const QFont& font,
                       const Highlights* highlights)
    : painter_(painter), palette_(palette), font_(font), highlights_(highlights),
      characterWidth_(QFontMetrics(font).averageCharWidth())
{
    painter_.setFont(font_);
}

QColor RowPainter::processColour(const QString& process, const QPalette& palette)
{
    // Hues that neither an error nor a warning has.
    constexpr unsigned firstHue = 75;
    constexpr unsigned hues = 240;
    constexpr unsigned spread = 97; // of names that differ by a letter
    unsigned sum = 0;
    for (const QChar letter : process) sum = sum * 31 + letter.toLower().unicode();
    const int hue = static_cast<int>(firstHue + sum * spread % hues);
    return theme::isDark(palette) ? QColor::fromHsl(hue, 110, 150) : QColor::fromHsl(hue, 120, 115);
}

void RowPainter::drawGround(const QRect& room, const ShownRow& row, const Look& look)
{
    if (look.selected)
        painter_.fillRect(room, look.focused ? palette_.color(QPalette::Highlight)
                                             : theme::restingSelection(palette_));
    else if (row.severity == Severity::error)
        painter_.fillRect(room, theme::errorTint(palette_));
    else if (row.severity == Severity::warning)
        painter_.fillRect(room, theme::warningTint(palette_));
    if (!look.current || !look.focused) return;
    painter_.setPen(
        palette_.color(look.selected ? QPalette::HighlightedText : QPalette::Highlight));
    painter_.drawRect(room.adjusted(0, 0, -1, -1));
}

void RowPainter::draw(const QRect& room, const std::vector<Cell>& cells, const RowModel& rows,
                      std::size_t place, const Look& look)
{
    const ShownRow row = rows.document().row(place);
    drawGround(room, row, look);
    for (const Cell& cell : cells)
        drawCell(QRect(cell.left, room.top(), cell.width, room.height()), cell.column, row,
                 rows.text(place, cell.column), look);
}

void RowPainter::drawCell(const QRect& room, RowColumn column, const ShownRow& row,
                          const QString& text, const Look& look)
{
    QRect inner = room.adjusted(margin, 0, -margin, 0);
    if (column == RowColumn::process && !row.process.isEmpty())
        painter_.fillRect(QRect(room.left(), room.top(), stripeWidth, room.height()),
                          processColour(row.process, palette_));
    if (column == RowColumn::level && row.severity != Severity::none) {
        const QIcon sign =
            toolIcon(row.severity == Severity::error ? QStringLiteral("level-error")
                                                     : QStringLiteral("level-warning"));
        sign.paint(&painter_,
                   QRect(inner.left(), room.center().y() - signSize / 2, signSize, signSize),
                   Qt::AlignCenter, look.selected ? QIcon::Selected : QIcon::Normal);
    }
    if (column == RowColumn::level) inner.setLeft(inner.left() + signSize + 4);
    if (column == RowColumn::trace && row.belongs)
        inner.setLeft(inner.left() + indentation * characterWidth_);
    if (text.isEmpty() || inner.width() <= 0) return;
    const bool quiet = column == RowColumn::time || (column == RowColumn::trace && row.belongs);
    painter_.setPen(look.selected ? palette_.color(QPalette::HighlightedText)
                    : quiet       ? theme::quietText(palette_)
                                  : palette_.color(QPalette::Text));
    const QString shown = painter_.fontMetrics().elidedText(
        text.size() > longestDrawn ? text.left(longestDrawn) : text, Qt::ElideRight, inner.width());
    drawText(inner, shown, RowColumns::info(column).right, edgesOf(column, row));
}

/// Draws a text on the grounds of its marks. A mark has a line below it too, so that it is seen on
/// a selected row, and by who does not tell colours.
void RowPainter::drawText(const QRect& room, const QString& text, bool right, LineEdges ends)
{
    const QFontMetrics metrics = painter_.fontMetrics();
    const int start = right ? room.right() + 1 - metrics.horizontalAdvance(text) : room.left();
    if (highlights_ != nullptr) {
        const QPen pen = painter_.pen();
        for (const Highlights::Mark& mark : highlights_->marksIn(text, ends)) {
            const QRect ground(
                start + metrics.horizontalAdvance(text.left(mark.begin)), room.top() + 2,
                metrics.horizontalAdvance(text.mid(mark.begin, mark.length)), room.height() - 4);
            const QColor colour = Highlights::ground(mark.colour, palette_);
            const bool selected = pen.color() == palette_.color(QPalette::HighlightedText);
            if (!selected) painter_.fillRect(ground, colour);
            painter_.setPen(selected ? colour : pen.color());
            painter_.drawLine(ground.bottomLeft(), ground.bottomRight());
        }
        painter_.setPen(pen);
    }
    painter_.drawText(
        room, Qt::AlignVCenter | Qt::TextSingleLine | (right ? Qt::AlignRight : Qt::AlignLeft),
        text);
}

} // namespace viewer
