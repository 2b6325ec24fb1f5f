#include "hosts/viewer/document/row_order.h"

#include "timeline/counts/counted_logs.h"

#include <gmock/gmock.h>

#include <chrono>

namespace viewer {
namespace {

using timeline::IndexRow;

class RowOrderTest : public CountedLogs {
protected:
    /// A log whose rows come each so many milliseconds, from a number of them after midnight on.
    void addRows(const std::string& process, int rows, int first, int apart)
    {
        std::string lines;
        for (int row = 0; row < rows; ++row) {
            const int at = first + row * apart;
            char stamp[24];
            std::snprintf(stamp, sizeof stamp, "%02d:%02d:%02d:%03d", at / 3'600'000,
                          at / 60'000 % 60, at / 1000 % 60, at % 1000);
            lines += std::string(stamp) + ",Conv,12,CallFlow,3,row\n";
        }
        add(process, lines);
    }

    void read()
    {
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
        for (auto cursor = timeline.begin(); const IndexRow* row = cursor.next();)
            expected.push_back(row);
    }

    RowOrder made(std::size_t rowsOfStep = 100'000) const
    {
        RowOrder order(timeline);
        while (!order.build(timeline, rowsOfStep)) {
        }
        return order;
    }

    std::vector<const IndexRow*> expected; ///< in the order of time
};

TEST_F(RowOrderTest, HasTheRowsOfATimelineInItsOrderFromEveryNumberOn)
{
    addRows("A", 2500, 1000, 7);
    addRows("B", 1, 5000, 1);
    addRows("C", 1900, 3000, 10);
    add("D", "");
    addRows("E", 900, 1000, 14);
    read();
    const RowOrder order = made(333);
    ASSERT_EQ(5301u, order.size());
    for (std::size_t row = 0; row < order.size(); row += 13) {
        RowOrder::Walk walk = order.from(timeline, row);
        ASSERT_EQ(expected[row], walk.peek()) << row;
        for (std::size_t at = row; at < std::min(row + 3, order.size()); ++at)
            ASSERT_EQ(expected[at], walk.next()) << row;
    }
    EXPECT_EQ(nullptr, order.from(timeline, order.size()).next());
}

TEST_F(RowOrderTest, FindsOneOfManyRowsOfAMomentAtOnce)
{
    addRows("A", 200'000, 1000, 0);
    read();
    const RowOrder order = made();
    const auto begin = std::chrono::steady_clock::now();
    for (std::size_t row = 190'000; row < 200'000; ++row)
        ASSERT_EQ(row, order.find(timeline, *expected[row]));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
}

TEST_F(RowOrderTest, FindsTheNumberOfEveryRow)
{
    addRows("A", 700, 1000, 5);
    addRows("B", 700, 1000, 5);
    addRows("C", 300, 0, 0);
    read();
    const RowOrder order = made();
    for (std::size_t row = 0; row < expected.size(); ++row)
        ASSERT_EQ(row, order.find(timeline, *expected[row]));
    IndexRow other = *expected[3];
    other.stand(other.source(), 999'999);
    EXPECT_FALSE(order.find(timeline, other).has_value());
    other.stand(77, 0);
    EXPECT_FALSE(order.find(timeline, other).has_value());
}

TEST_F(RowOrderTest, FindsTheFirstRowOfAMoment)
{
    addRows("A", 10, 1000, 1000);
    addRows("B", 10, 1500, 1000);
    read();
    const RowOrder order = made();
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    EXPECT_EQ(0u, order.firstFrom(timeline, day));
    EXPECT_EQ(0u, order.firstFrom(timeline, day + 1000));
    EXPECT_EQ(1u, order.firstFrom(timeline, day + 1001));
    EXPECT_EQ(2u, order.firstFrom(timeline, day + 2000));
    EXPECT_EQ(20u, order.firstFrom(timeline, day + 60'000));
    EXPECT_EQ(std::pair(day + 1000, day + 10'500), order.span(timeline));
}

TEST_F(RowOrderTest, KnowsTheRowsThatWereThereWhenItWasBegun)
{
    addRows("A", 10, 1000, 1000);
    read();
    const RowOrder order = made();
    addRows("B", 10, 500, 1000);
    timeline::Progress progress;
    timeline.read(timeline::Filter(), progress);
    EXPECT_EQ(10u, order.size());
    RowOrder::Walk walk = order.from(timeline, 0);
    for (std::size_t row = 0; row < 10; ++row) EXPECT_EQ(expected[row], walk.next());
    EXPECT_EQ(nullptr, walk.next());
}

TEST_F(RowOrderTest, OfNothingHasNoRows)
{
    const RowOrder order = made();
    EXPECT_EQ(0u, order.size());
    EXPECT_EQ(nullptr, order.from(timeline, 0).next());
    EXPECT_EQ(0u, order.firstFrom(timeline, 0));
    EXPECT_FALSE(order.span(timeline).has_value());
}

} // namespace
} // namespace viewer
