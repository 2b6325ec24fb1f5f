#pragma once

#include <QWidget>

#include <cstddef>
#include <optional>

namespace viewer {

class Marks;
class RowModel;
class RowTable;

/// The column of signs at the left of the table: a flag for a bookmark, a sheet for a note, which
/// its tool tip tells. A click sets a bookmark or takes it away.
class MarkGutter final : public QWidget {
    Q_OBJECT

public:
    /// All outlive the gutter; the table is the widget that it stands in.
    MarkGutter(RowTable& table, RowModel& rows, Marks& marks);

    QSize sizeHint() const override;

    /// The place on show at a height of the gutter; nothing where no row is.
    std::optional<std::size_t> placeAt(int y) const;

signals:
    /// The person wishes to set or take away the bookmark of the row at a place.
    void toggled(std::size_t place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int top() const;

    RowTable& table_;
    RowModel& rows_;
    Marks& marks_;
};

} // namespace viewer
