#pragma once

#include "timeline/moment.h"

namespace viewer {

/// A range of times on a line of pixels: it is zoomed, and moved within all times that there are.
/// Moments are doubles, as a pixel may stand for less than a millisecond.
class TimeScale {
public:
    /// Pixels left free at both ends, so that what stands there is seen whole.
    static constexpr int margin = 10;

    /// The shortest range, in milliseconds.
    static constexpr double shortest = 10;

    /// All times; those on show stay if they are not all, as far as they still are among them.
    void setAll(timeline::Moment first, timeline::Moment last);
    void setWidth(int pixels);

    double xOf(double moment) const;
    double momentAt(double x) const;

    /// The ends of the times on show.
    double from() const { return from_; }
    double to() const { return to_; }

    /// The first of all times; rows without a moment stand there.
    double first() const { return first_; }

    /// Whether all times are on show.
    bool showsAll() const { return from_ <= first_ && to_ >= last_; }
    void showAll();

    /// Shows a multiple of the times; what stands at `x` stays there.
    void zoom(double factor, double x);

    /// Moves to the left by pixels, which brings later times in sight.
    void pan(double pixels);

    /// Moves no more than it takes to show a moment.
    void bringInSight(double moment);

private:
    void move(double from, double length);
    double pixels() const;

    double first_ = 0;
    double last_ = shortest;
    double from_ = 0;
    double to_ = shortest;
    int width_ = 2 * margin + 1;
};

} // namespace viewer
