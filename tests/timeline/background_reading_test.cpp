#include "timeline/background_reading.h"

#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

namespace timeline {
namespace {

constexpr std::size_t endless = 1'000'000'000;

/// Rows a millisecond apart, of which those behind some may have to be let through first.
class CountedSource final : public Source {
public:
    CountedSource(Moment first, std::size_t count) : first_(first), count_(count) {}

    const SourceFacts& facts() const override { return facts_; }

    void read(const Filter& filter, SourceRows& rows, Progress& progress) override
    {
        progress.total += count_ - given_;
        while (given_ < count_ && !progress.cancelled && rows.size() < progress.enough) {
            if (given_ == failsAt) throw RunTimeError(57, "the device has failed");
            if (given_ >= letThrough) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                continue;
            }
            const Moment moment = first_ + static_cast<Moment>(given_++);
            ++progress.done;
            if (!filter.takesMoment(moment)) continue;
            rows.emplace_back().moment = moment;
            rows.back().line = static_cast<std::uint32_t>(given_);
        }
    }

    void record(const IndexRow& row, Record& record) override { record.moment = row.moment; }

    std::atomic<std::size_t> letThrough{endless};
    std::size_t failsAt = endless;

private:
    Moment first_;
    std::size_t count_;
    std::size_t given_ = 0;
    SourceFacts facts_;
};

struct BackgroundReadingTest : testing::Test {
    CountedSource& add(Moment first, std::size_t count)
    {
        auto source = std::make_unique<CountedSource>(first, count);
        CountedSource& added = *source;
        timeline.add(std::move(source));
        return added;
    }

    /// Waits until so many rows are told of, or the reading has ended.
    static BackgroundReading::State waitForRows(const BackgroundReading& reading, std::size_t rows)
    {
        for (;;) {
            const auto state = reading.state();
            if (state.rows >= rows || state.ended) return state;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    static std::vector<Moment> momentsOf(const Timeline& timeline)
    {
        std::vector<Moment> moments;
        Record record;
        auto rows = timeline.begin();
        while (const IndexRow* row = rows.next()) {
            timeline.record(*row, record);
            moments.push_back(record.moment);
        }
        return moments;
    }

    Timeline timeline;
};

TEST_F(BackgroundReadingTest, EndsWithAllRowsByTime)
{
    add(5'000, 30'000);
    add(0, 40'000);
    BackgroundReading reading(timeline, Filter());
    reading.wait();
    const auto state = reading.state();
    EXPECT_TRUE(state.ended);
    EXPECT_EQ(70'000u, state.rows);
    EXPECT_EQ(70'000u, state.done);
    EXPECT_EQ(70'000u, state.total);
    const auto moments = momentsOf(timeline);
    EXPECT_EQ(70'000u, moments.size());
    EXPECT_TRUE(std::is_sorted(moments.begin(), moments.end()));
}

TEST_F(BackgroundReadingTest, OfNothingEnds)
{
    BackgroundReading reading(timeline, Filter());
    reading.wait();
    EXPECT_EQ(0u, reading.state().rows);
}

TEST_F(BackgroundReadingTest, ShowsTheFirstRowsOfEachSourceBeforeItsEnd)
{
    CountedSource& slow = add(0, 50'000);
    slow.letThrough = 2'000;
    add(100, 50'000);
    BackgroundReading reading(timeline, Filter());
    const auto state = waitForRows(reading, 2'000);
    EXPECT_FALSE(state.ended);
    EXPECT_GT(state.total, state.done);
    std::vector<Moment> moments;
    reading.look([&](const Timeline& rows) { moments = momentsOf(rows); });
    ASSERT_LE(2'000u, moments.size());
    EXPECT_TRUE(std::is_sorted(moments.begin(), moments.end()));
    EXPECT_EQ(100, moments[100]);
    EXPECT_EQ(100, moments[101]) << "that of the other source";
    slow.letThrough = endless;
    reading.wait();
    EXPECT_EQ(100'000u, reading.state().rows);
    EXPECT_EQ(100'000u, reading.state().done);
}

TEST_F(BackgroundReadingTest, GoesOnHoweverOftenSomebodyLooks)
{
    add(0, 300'000);
    add(0, 200'000);
    BackgroundReading reading(timeline, Filter(), 2);
    std::vector<std::jthread> others;
    for (int other = 0; other < 2; ++other)
        others.emplace_back([&] {
            for (std::size_t before = 0; !reading.state().ended;) {
                reading.look([&](const Timeline& rows) {
                    EXPECT_LE(before, rows.size());
                    before = rows.size();
                });
                std::this_thread::sleep_for(std::chrono::microseconds(200));
            }
        });
    reading.wait();
    EXPECT_EQ(500'000u, reading.state().rows);
    EXPECT_EQ(500'000u, reading.state().done);
}

TEST_F(BackgroundReadingTest, GoesOnWhenALookFails)
{
    add(0, 100'000);
    BackgroundReading reading(timeline, Filter());
    EXPECT_THROW(reading.look([](const Timeline&) { throw RunTimeError(5, "none"); }),
                 RunTimeError);
    reading.wait();
    EXPECT_EQ(100'000u, reading.state().rows);
}

TEST_F(BackgroundReadingTest, LeavesTheRowsSoFarWhenCancelled)
{
    CountedSource& slow = add(0, 50'000);
    slow.letThrough = 5'000;
    BackgroundReading reading(timeline, Filter());
    waitForRows(reading, 1'024);
    reading.cancel();
    reading.wait();
    const auto state = reading.state();
    EXPECT_LE(1'024u, state.rows);
    EXPECT_GE(5'000u, state.rows);
    EXPECT_EQ(state.rows, timeline.size());
    EXPECT_EQ(state.rows, state.done);
}

TEST_F(BackgroundReadingTest, IsCancelledByItsEnd)
{
    add(0, 50'000).letThrough = 5'000;
    {
        const BackgroundReading reading(timeline, Filter());
        waitForRows(reading, 1'024);
    }
    EXPECT_GE(5'000u, timeline.size());
}

TEST_F(BackgroundReadingTest, TellsAFailureOnceAndReadsTheOthers)
{
    add(0, 100'000).failsAt = 1'500;
    add(0, 60'000);
    BackgroundReading reading(timeline, Filter());
    reading.wait();
    const auto state = reading.state();
    EXPECT_EQ(std::vector<std::string>{"the device has failed"}, state.failures);
    EXPECT_EQ(61'500u, state.rows);
}

TEST_F(BackgroundReadingTest, KeepsToItsFilter)
{
    add(0, 100'000);
    Choice choice;
    choice.since = 99'990;
    BackgroundReading reading(timeline, Filter(choice));
    reading.wait();
    EXPECT_EQ(10u, reading.state().rows);
    EXPECT_EQ(100'000u, reading.state().done);
}

} // namespace
} // namespace timeline
