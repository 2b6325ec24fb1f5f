#pragma once

#include "hosts/viewer/calls/lane_layout.h"
#include "hosts/viewer/calls/time_ticks.h"

#include <QIcon>
#include <QPalette>
#include <QRect>

class QPainter;

namespace viewer {

/// Draws lanes: their names, the line of time and the dots.
class LanePainter {
public:
    /// All outlive the painter.
    LanePainter(QPainter& painter, const QPalette& palette);

    /// The name of a lane on the ground of its process' colour.
    void drawName(const QRect& room, const QString& process, const QString& shown);

    /// A mark of the line of time, through the lanes of a height, and what it says.
    void drawTick(int x, const QRect& axis, int bottom, const QString& text);

    /// The line that a lane's dots stand on.
    void drawTrack(const QRect& room, const QString& process);

    void drawDot(const LaneLayout::Dot& dot, int y, const QString& process);

    /// The sign around the place of the selected row.
    void drawSelection(int x, int y, bool focused);

    /// Of a mark of the line of time, below what it says.
    static constexpr int tickHeight = 4;

private:
    QPainter& painter_;
    const QPalette& palette_;
    QIcon error_;
    QIcon warning_;
};

} // namespace viewer
