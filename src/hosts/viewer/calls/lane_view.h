#pragma once

#include "hosts/viewer/calls/calls.h"
#include "hosts/viewer/calls/lane_layout.h"
#include "hosts/viewer/calls/lane_moves.h"
#include "hosts/viewer/calls/time_scale.h"

#include <QAbstractScrollArea>

#include <cstdint>
#include <memory>
#include <optional>

namespace viewer {

class LanePainter;

/// The rows of a call as dots in lanes over time, one lane a process.
///
/// Left and Right go to the row before and the next one, with Ctrl within the lane; Up and Down to
/// another lane; Home and End to the call's ends, with Ctrl to the lane's. Plus and minus, or the
/// wheel, zoom, a drag moves the times, 0 shows all of them. Enter asks for the row in the table.
class LaneView final : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// The calls outlive the view.
    explicit LaneView(Calls& calls, QWidget* parent = nullptr);

    /// Selects a row and brings it in sight; false where the call has it not, or not yet.
    bool select(const timeline::IndexRow& row);

    /// Selects the row that a way leads to; without a selected row the first, or the last.
    void go(LaneMove move);

    /// The number of the selected row among those of the call; nothing for none.
    std::optional<std::size_t> selected() const { return selected_; }
    std::optional<timeline::IndexRow> selectedRow() const;

    /// What a screen reader says of the selected row; the empty text for none.
    QString spoken() const { return spoken_; }

    const TimeScale& scale() const { return scale_; }

    /// Where a row's dot stands in the viewport, in sight or not.
    QPoint placeOf(std::size_t row) const;

    /// Tells of what stands at a point of the viewport.
    QString describe(const QPoint& at) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void selectionChanged();

    /// The person asks for the selected row in the table.
    void rowAsked();

    /// The person leaves the view for the rows.
    void left();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void showTexts();
    void takeRows();
    void place();
    void layOut();
    void zoom(double factor, std::optional<double> x = std::nullopt);
    void setSelected(std::optional<std::size_t> row);
    void bringInSight();
    void speak();
    std::optional<LaneMove> moveOf(const QKeyEvent& event) const;
    std::optional<std::size_t> laneAt(int y) const;
    std::optional<LaneLayout::Dot> dotAt(const QPoint& at) const;
    QString nameOf(std::size_t lane) const;
    int axisHeight() const;
    int laneHeight() const;
    int laneTop(std::size_t lane) const;
    void drawTimes(LanePainter& painting, QPainter& painter) const;
    void drawLane(LanePainter& painting, QPainter& painter, std::size_t lane) const;

    Calls& calls_;
    std::shared_ptr<const CallRows> rows_; ///< that are on show; null for none
    TimeScale scale_;
    LaneLayout layout_;
    int namesWidth_ = 0;
    std::optional<std::size_t> selected_;
    QString spoken_;
    std::optional<int> pressed_; ///< where a drag began, and goes on
    bool dragged_ = false;
};

} // namespace viewer
