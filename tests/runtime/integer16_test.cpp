#include "runtime/integer16.h"

#include "support/error_of.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

TEST(Integer16, StartsAtZero)
{
    EXPECT_EQ(0, Integer16().value());
}

TEST(Integer16, TakesWhatSixteenBitsHoldAndRaisesOverflowForOthers)
{
    struct Case {
        const char* because;
        int value;
        int error;
    };
    const Case cases[] = {
        {"the largest", 32767, 0},           {"one past the largest", 32768, 6},
        {"the smallest", -32768, 0},         {"one past the smallest", -32769, 6},
        {"the largest of ints", INT_MAX, 6}, {"the smallest of ints", INT_MIN, 6},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        int held = c.value;
        EXPECT_EQ(c.error, errorOf([&] { held = Integer16(c.value).value(); }));
        EXPECT_EQ(c.value, held);
    }
}

TEST(Integer16, KeepsItsValueWhenCountingPastItsEnds)
{
    Integer16 high(32767);
    EXPECT_EQ(6, errorOf([&] { ++high; }));
    EXPECT_EQ(32767, high.value());
    EXPECT_EQ(6, errorOf([&] { high += INT_MAX; }));
    EXPECT_EQ(32767, high.value());

    Integer16 low(-32768);
    EXPECT_EQ(6, errorOf([&] { --low; }));
    EXPECT_EQ(-32768, low.value());
    EXPECT_EQ(6, errorOf([&] { low -= INT_MAX; }));
    EXPECT_EQ(-32768, low.value());
}

TEST(Integer16, CountsUpAndDown)
{
    Integer16 counter(5);
    EXPECT_EQ(6, (++counter).value());
    EXPECT_EQ(5, (--counter).value());
    EXPECT_EQ(105, (counter += 100).value());
    EXPECT_EQ(-895, (counter -= 1000).value());
}

TEST(Multiply16, OverflowsWhereSixteenBitsEnd)
{
    EXPECT_EQ(32400, multiply16(9, 3600).value());
    EXPECT_EQ(6, errorOf([] { multiply16(10, 3600); }));
    EXPECT_EQ(-32768, multiply16(-8, 4096).value());
    EXPECT_EQ(6, errorOf([] { multiply16(8, 4096); }));
    EXPECT_EQ(6, errorOf([] { multiply16(-32768, -32768); }));
}

} // namespace
