#pragma once

#include "hosts/common/filters/highlights.h"
#include "hosts/viewer/table/row_model.h"

#include <QFont>
#include <QRect>

#include <vector>

class QPainter;
class QPalette;

namespace viewer {

/// Draws a row of the table, cell by cell.
class RowPainter {
public:
    /// Texts are marked by `highlights`, which may be null; all outlive the painter.
    RowPainter(QPainter& painter, const QPalette& palette, const QFont& font,
               const Highlights* highlights);

    /// How a row stands there.
    struct Look {
        bool selected = false;
        bool focused = false; ///< whether the keys go to the table
        bool current = false;
    };

    /// A column on show, and where it is.
    struct Cell {
        RowColumn column;
        int left;
        int width;
    };

    /// Draws a row; the texts come from the model.
    void draw(const QRect& room, const std::vector<Cell>& cells, const RowModel& rows,
              std::size_t place, const Look& look);

    /// Room between a cell's edge and its text.
    static constexpr int margin = 6;

    /// A quiet colour by which a process is known again.
    static QColor processColour(const QString& process, const QPalette& palette);

private:
    void drawGround(const QRect& room, const ShownRow& row, const Look& look);
    void drawCell(const QRect& room, RowColumn column, const ShownRow& row, const QString& text,
                  const Look& look);

    void drawText(const QRect& room, const QString& text, bool right, LineEdges ends);

    QPainter& painter_;
    const QPalette& palette_;
    QFont font_;
    const Highlights* highlights_;
    int characterWidth_;
};

} // namespace viewer
