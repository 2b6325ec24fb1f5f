#pragma once

#include <QWidget>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class QAbstractScrollArea;

namespace desktop {

/// Why a row of a log has a mark on the overview.
enum class OverviewMark { error, warning, hit, bookmark };
constexpr std::size_t overviewMarks = 4;

/// A whole log on a narrow strip beside its scroll bar: where its errors and warnings, the hits of
/// a search and the bookmarks are. A click goes there.
///
/// Errors and warnings stand in the first lane, hits in the second, bookmarks in the third, so that
/// the colour is not their only sign.
class OverviewStrip final : public QWidget {
    Q_OBJECT

public:
    /// `beside` is what the rows scroll in; it outlives the strip, which is as high as its
    /// viewport.
    explicit OverviewStrip(QAbstractScrollArea& beside, QWidget* parent = nullptr);

    void setRowCount(int rows);

    /// The rows of a kind of mark, from the top. Those past the row count are not drawn.
    void setRows(OverviewMark mark, std::vector<int> rows);
    const std::vector<int>& rows(OverviewMark mark) const;

    /// Where the middle of a row's mark is, in pixels from the strip's top.
    int yOfRow(int row) const;

    /// The marked row nearest to a height of the strip, if it is as near as a pointer aims; nothing
    /// else.
    std::optional<int> markedRowAt(int y) const;

    /// What a tool tip says of a marked row.
    std::function<QString(int row)> describe;

    QSize sizeHint() const override;

signals:
    /// The person goes to a row: a marked one, or the one that is at this share of the log.
    void rowAsked(int row);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void drawLane(QPainter& painter, OverviewMark mark, const QColor& colour) const;
    QRect room() const;

    QAbstractScrollArea& beside_;
    int rowCount_ = 0;
    std::array<std::vector<int>, overviewMarks> rows_;
};

} // namespace desktop
