#pragma once

#include "hosts/viewer/document/document.h"

#include <QWidget>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace viewer {

/// The rows on show over time, by what their levels tell: errors, warnings and others, one upon the
/// other. A drag narrows the filter to a time, the wheel widens or narrows it around the pointer, a
/// double click takes all times, a click asks for the rows at one. Above the bars stand bookmarks
/// and the hits of what is looked for.
class TimeStrip final : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the strip.
    explicit TimeStrip(Document& document, QWidget* parent = nullptr);

    /// Marks the moment of the current row; nothing for none.
    void setCurrent(std::optional<timeline::Moment> moment);

    /// The room of the bars.
    QRect room() const;

    /// The number of hits in the room of each of its pixels, from the left; none for no hits.
    void setHits(std::vector<std::uint32_t> ofPixels);

    /// A row that a person keeps a bookmark or a note of.
    struct Flag {
        timeline::Moment moment;
        QString text;
    };
    void setFlags(std::vector<Flag> flags);

    /// What the tool tip at a distance from the left tells.
    QString describe(int x) const;

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
    /// Other times stand at other places.
    void scaleChanged();

    /// The person asks for the rows at a moment.
    void momentAsked(timeline::Moment moment);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    void narrow(timeline::Moment from, timeline::Moment to);
    void drawBuckets(QPainter& painter) const;
    void drawTimes(QPainter& painter) const;
    void drawMarks(QPainter& painter) const;

    Document& document_;
    std::optional<timeline::Moment> current_;
    std::vector<std::uint32_t> hits_;
    int turned_ = 0; ///< of the wheel, in eighths of a degree, since the last step
    std::vector<Flag> flags_;
    std::optional<int> pressed_; ///< where a drag began
    int pointer_ = 0;
};

} // namespace viewer
