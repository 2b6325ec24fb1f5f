#include "timeline/index/nearly_sorted.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace timeline {
namespace {

TEST(NearlySorted, AreSortedHoweverMuchIsOutOfOrder)
{
    std::mt19937 random(17);
    for (int round = 0; round < 3000; ++round) {
        std::vector<int> numbers;
        const int noise = round % 3 == 0 ? 1000 : round % 7;
        for (auto size = random() % 200; size > 0; --size)
            numbers.push_back(static_cast<int>(numbers.size()) +
                              static_cast<int>(random() % static_cast<unsigned>(noise + 1)));
        if (round % 5 == 0) std::reverse(numbers.begin(), numbers.end());
        std::vector<int> expected = numbers;
        std::sort(expected.begin(), expected.end());
        sortNearlySorted(numbers.begin(), numbers.end(), std::less<>());
        ASSERT_EQ(expected, numbers);
    }
}

TEST(NearlySorted, TakeFewComparisonsWhereNeighboursAloneAreExchanged)
{
    std::vector<int> numbers;
    for (int number = 0; number < 10'000; ++number) numbers.push_back(number ^ 1);
    std::size_t comparisons = 0;
    sortNearlySorted(numbers.begin(), numbers.end(), [&](int one, int other) {
        ++comparisons;
        return one < other;
    });
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
    EXPECT_LT(comparisons, 2 * numbers.size());
}

} // namespace
} // namespace timeline
