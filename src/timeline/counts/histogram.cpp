#include "timeline/counts/histogram.h"

#include <algorithm>
#include <utility>

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

/// The least width that is `multipleOf` or a multiple of it and needs no more than `most` buckets.
Moment widthFor(Moment first, Moment last, std::size_t most, Moment multipleOf)
{
    const auto fits = [&](Moment width) {
        return width % multipleOf == 0 && bucketsBetween(first, last, width) <= most;
    };
    for (const Moment width : widths)
        if (fits(width)) return width;
    Moment days = multipleOf > millisecondsPerDay ? multipleOf / millisecondsPerDay : 2;
    while (!fits(days * millisecondsPerDay)) days *= 2;
    return days * millisecondsPerDay;
}

/// Buckets without rows.
std::vector<Histogram::Bucket> bucketsFor(Moment first, Moment last, Moment width)
{
    std::vector<Histogram::Bucket> buckets(bucketsBetween(first, last, width));
    Moment begin = beginOf(first, width);
    for (Histogram::Bucket& bucket : buckets) {
        bucket.begin = begin;
        begin += width;
    }
    return buckets;
}

} // namespace

Histogram::Histogram(Moment first, Moment last, std::size_t mostBuckets)
    : width_(widthFor(first, last, mostBuckets, 1)), buckets_(bucketsFor(first, last, width_))
{}

Histogram::Bucket* Histogram::bucketOf(Moment moment)
{
    if (moment < buckets_.front().begin || moment >= buckets_.back().begin + width_) return nullptr;
    return &buckets_[static_cast<std::size_t>((moment - buckets_.front().begin) / width_)];
}

void Histogram::add(Moment moment, std::int16_t level)
{
    Bucket* bucket = bucketOf(moment);
    if (bucket == nullptr) return;
    ++bucket->rows;
    ++bucket->levels[level];
}

void Histogram::remove(Moment moment, std::int16_t level)
{
    Bucket* bucket = bucketOf(moment);
    if (bucket == nullptr) return;
    --bucket->rows;
    if (--bucket->levels[level] == 0) bucket->levels.erase(level);
}

void Histogram::cover(Moment first, Moment last, std::size_t mostBuckets)
{
    first = std::min(first, buckets_.front().begin);
    last = std::max(last, buckets_.back().begin);
    const std::vector<Bucket> before = std::move(buckets_);
    width_ = widthFor(first, last, mostBuckets, width_);
    buckets_ = bucketsFor(first, last, width_);
    for (const Bucket& bucket : before) {
        Bucket& target = *bucketOf(bucket.begin);
        target.rows += bucket.rows;
        for (const auto& [level, rows] : bucket.levels) target.levels[level] += rows;
    }
}

} // namespace timeline
