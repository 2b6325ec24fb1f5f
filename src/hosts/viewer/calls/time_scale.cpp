#include "hosts/viewer/calls/time_scale.h"

#include <algorithm>

namespace viewer {

namespace {

constexpr double pointPadding = 500; ///< milliseconds around a single moment

} // namespace

void TimeScale::setAll(timeline::Moment first, timeline::Moment last)
{
    const bool all = showsAll();
    first_ = static_cast<double>(first);
    last_ = static_cast<double>(last);
    if (last_ - first_ < shortest) {
        first_ -= pointPadding;
        last_ += pointPadding;
    }
    if (all || from_ > last_ || to_ < first_)
        showAll();
    else
        move(from_, to_ - from_);
}

void TimeScale::setWidth(int pixels)
{
    width_ = std::max(pixels, 2 * margin + 1);
}

double TimeScale::pixels() const
{
    return width_ - 2 * margin;
}

double TimeScale::xOf(double moment) const
{
    return margin + (moment - from_) / (to_ - from_) * pixels();
}

double TimeScale::momentAt(double x) const
{
    return from_ + (x - margin) / pixels() * (to_ - from_);
}

void TimeScale::showAll()
{
    from_ = first_;
    to_ = last_;
}

void TimeScale::zoom(double factor, double x)
{
    const double still = momentAt(x);
    const double length = std::clamp((to_ - from_) * factor, shortest, last_ - first_);
    move(still - (still - from_) / (to_ - from_) * length, length);
}

void TimeScale::pan(double pixels)
{
    const double length = to_ - from_;
    move(from_ + pixels / this->pixels() * length, length);
}

void TimeScale::bringInSight(double moment)
{
    const double length = to_ - from_;
    // Room to see what stands next to it.
    const double room = length / 8;
    if (moment < from_) move(moment - room, length);
    if (moment > to_) move(moment + room - length, length);
}

/// Shows times of a length from one on, or as near to it as all times allow.
void TimeScale::move(double from, double length)
{
    length = std::min(length, last_ - first_);
    from_ = std::clamp(from, first_, last_ - length);
    to_ = from_ + length;
}

} // namespace viewer
