#pragma once

#include "hosts/viewer/document/document.h"

#include <QWidget>

#include <optional>
#include <utility>

namespace viewer {

/// The rows on show over time, by what their levels tell: errors, warnings and others, one upon the
/// other. A drag narrows the filter to a time, the wheel widens or narrows it around the pointer, a
/// double click takes all times, a click asks for the rows at one.
class TimeStrip final : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the strip.
    explicit TimeStrip(Document& document, QWidget* parent = nullptr);

    /// Marks the moment of the current row; nothing for none.
    void setCurrent(std::optional<timeline::Moment> moment);

    /// The times of the strip's ends; nothing while no row with a time is on show.
    std::optional<std::pair<timeline::Moment, timeline::Moment>> span() const;

    /// The moment at a distance from the left, and the distance of a moment.
    timeline::Moment momentAt(int x) const;
    int xOf(timeline::Moment moment) const;

    /// Widens or narrows the times around a moment: twice the length, or half of it.
    void zoom(timeline::Moment around, bool in);

    /// Takes all times.
    void showAllTimes();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The person asks for the rows at a moment.
    void momentAsked(timeline::Moment moment);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    void narrow(timeline::Moment from, timeline::Moment to);
    QRect room() const;
    void drawBuckets(QPainter& painter) const;
    void drawTimes(QPainter& painter) const;
    QString describe(int x) const;

    Document& document_;
    std::optional<timeline::Moment> current_;
    std::optional<int> pressed_; ///< where a drag began
    int pointer_ = 0;
};

} // namespace viewer
