#include "timeline/counts/histogram.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

const Moment noon = dayOf(2025, 2, 20) + 12 * 3'600'000;

TEST(Histogram, HasBucketsOfAWidthThatAClockHas)
{
    const struct {
        const char* because;
        Moment span;
        std::size_t most;
        Moment width;
    } cases[] = {
        {"a moment alone", 0, 40, 1},
        {"a second", 999, 40, 50},
        {"a minute", 59'999, 40, 2000},
        {"an hour", 3'599'999, 40, 120'000},
        {"a day in hours", 86'399'999, 24, 3'600'000},
        {"a month", 30 * millisecondsPerDay, 40, millisecondsPerDay},
        {"ten years", 3650 * millisecondsPerDay, 40, 128 * millisecondsPerDay},
        {"as few as can be", 86'399'999, 2, 12 * 3'600'000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const Histogram histogram(noon, noon + c.span, c.most);
        EXPECT_EQ(c.width, histogram.width());
        EXPECT_GE(c.most, histogram.buckets().size());
    }
}

TEST(Histogram, ReachesFurtherWithoutLosingWhatItCounted)
{
    for (const Moment length : {Moment{1}, Moment{300}, Moment{40'000}, 3 * millisecondsPerDay}) {
        SCOPED_TRACE(length);
        Histogram grown(noon, noon + 100, 40);
        for (Moment at = 0; at <= 100; ++at) grown.add(noon + at, 3);
        grown.cover(noon - length, noon + 100 + length, 40);
        EXPECT_GE(40u, grown.buckets().size());
        EXPECT_EQ(0, grown.width() % 5) << "whole buckets of before lie in one of now";
        grown.add(noon - length, 0);
        grown.add(noon + 100 + length, 0);
        Histogram whole = grown;
        for (Moment at = 0; at <= 100; ++at) whole.remove(noon + at, 3);
        std::uint64_t left = 0;
        for (const auto& bucket : whole.buckets()) {
            left += bucket.rows;
            EXPECT_EQ(0u, bucket.levels.count(3)) << "each row was taken back where it was counted";
        }
        EXPECT_EQ(2u, left);
    }
}

TEST(Histogram, BeginsWhereTheClockDoes)
{
    Histogram histogram(noon + 61'500, noon + 30 * 60'000, 40);
    EXPECT_EQ(60'000, histogram.width());
    EXPECT_EQ(noon + 60'000, histogram.buckets().front().begin);
    EXPECT_EQ(noon + 30 * 60'000, histogram.buckets().back().begin);
    const Histogram early(-1, 0, 2);
    EXPECT_EQ(-1, early.buckets().front().begin) << "moments before 1970 as well";
}

TEST(Histogram, CountsEachRowInItsBucketByItsLevel)
{
    Histogram histogram(noon, noon + 9999, 10);
    histogram.add(noon, 0);
    histogram.add(noon + 999, 7);
    histogram.add(noon + 500, 7);
    histogram.add(noon + 9999, 1);
    histogram.add(noon - 1, 3);
    histogram.add(noon + 10'000, 3);
    const auto& buckets = histogram.buckets();
    ASSERT_EQ(10u, buckets.size());
    EXPECT_EQ(3u, buckets[0].rows);
    EXPECT_EQ((std::map<std::int16_t, std::uint64_t>{{0, 1}, {7, 2}}), buckets[0].levels);
    EXPECT_EQ(0u, buckets[5].rows);
    EXPECT_EQ(1u, buckets[9].rows);
}

} // namespace
} // namespace timeline
