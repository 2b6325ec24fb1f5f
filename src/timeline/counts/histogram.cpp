#include "timeline/counts/histogram.h"

namespace timeline {

namespace {

constexpr Moment second = 1000;
constexpr Moment minute = 60 * second;
constexpr Moment hour = 60 * minute;

constexpr Moment widths[] = {1,           2,           5,
                             10,          20,          50,
                             100,         200,         500,
                             second,      2 * second,  5 * second,
                             10 * second, 15 * second, 30 * second,
                             minute,      2 * minute,  5 * minute,
                             10 * minute, 15 * minute, 30 * minute,
                             hour,        2 * hour,    3 * hour,
                             6 * hour,    12 * hour,   millisecondsPerDay};

/// The beginning of the bucket that a moment lies in.
Moment beginOf(Moment moment, Moment width)
{
    const Moment into = moment % width;
    return moment - (into < 0 ? into + width : into);
}

std::size_t bucketsBetween(Moment first, Moment last, Moment width)
{
    return static_cast<std::size_t>((beginOf(last, width) - beginOf(first, width)) / width) + 1;
}

Moment widthFor(Moment first, Moment last, std::size_t most)
{
    for (const Moment width : widths)
        if (bucketsBetween(first, last, width) <= most) return width;
    Moment days = 2;
    while (bucketsBetween(first, last, days * millisecondsPerDay) > most) days *= 2;
    return days * millisecondsPerDay;
}

} // namespace

Histogram::Histogram(Moment first, Moment last, std::size_t mostBuckets)
    : width_(widthFor(first, last, mostBuckets)), buckets_(bucketsBetween(first, last, width_))
{
    Moment begin = beginOf(first, width_);
    for (Bucket& bucket : buckets_) {
        bucket.begin = begin;
        begin += width_;
    }
}

void Histogram::add(Moment moment, std::int16_t level)
{
    if (moment < buckets_.front().begin || moment >= buckets_.back().begin + width_) return;
    Bucket& bucket = buckets_[static_cast<std::size_t>((moment - buckets_.front().begin) / width_)];
    ++bucket.rows;
    ++bucket.levels[level];
}

} // namespace timeline
