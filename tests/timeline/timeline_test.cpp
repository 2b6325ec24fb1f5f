#include "timeline/timeline.h"

#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

#include <utility>

namespace timeline {
namespace {

/// Rows as they are told, of a source without a file.
class ToldSource final : public Source {
public:
    explicit ToldSource(std::vector<std::vector<Moment>> parts) : parts_(std::move(parts)) {}

    const SourceFacts& facts() const override { return facts_; }

    void read(const Filter&, SourceRows& rows, Progress&) override
    {
        if (next_ == parts_.size()) return;
        for (const Moment moment : parts_[next_++]) {
            if (moment == failing) throw RunTimeError(57, "the device has failed");
            IndexRow& row = rows.emplace_back();
            row.moment = moment;
            row.line = ++lines_;
        }
    }

    void record(const IndexRow& row, Record& record) override
    {
        record.moment = row.moment;
        ++asked;
    }

    void letGo() override { ++letGoes; }

    static constexpr Moment failing = -77;
    int asked = 0;
    int letGoes = 0;

private:
    std::vector<std::vector<Moment>> parts_;
    std::size_t next_ = 0;
    std::uint32_t lines_ = 0;
    SourceFacts facts_;
};

class TimelineTest : public testing::Test {
protected:
    ToldSource& add(std::vector<std::vector<Moment>> parts)
    {
        auto source = std::make_unique<ToldSource>(std::move(parts));
        ToldSource& added = *source;
        timeline.add(std::move(source));
        return added;
    }

    void read(unsigned threads = 1) { timeline.read(Filter(), progress, threads); }

    using Rows = std::vector<std::pair<Moment, int>>;

    /// Moment and source of each row.
    static Rows rowsFrom(Timeline::Cursor cursor)
    {
        Rows rows;
        while (const IndexRow* row = cursor.next()) rows.emplace_back(row->moment, row->source());
        return rows;
    }

    Timeline timeline;
    Progress progress;
};

TEST_F(TimelineTest, HasNothingWithoutSources)
{
    read();
    EXPECT_EQ(0u, timeline.size());
    EXPECT_EQ(Rows{}, rowsFrom(timeline.begin()));
}

TEST_F(TimelineTest, MergesByMomentThenSource)
{
    add({{1, 5, 5, 9}});
    add({{5, 6}});
    add({{}});
    add({{0, 5}});
    read(3);
    EXPECT_EQ((Rows{{0, 3}, {1, 0}, {5, 0}, {5, 0}, {5, 1}, {5, 3}, {6, 1}, {9, 0}}),
              rowsFrom(timeline.begin()));
    EXPECT_EQ(8u, timeline.size());
}

TEST_F(TimelineTest, PutsRowsOfASourceInTheOrderOfTime)
{
    add({{5, 3, 3, 9, 1}});
    read();
    std::vector<std::uint32_t> lines;
    for (auto cursor = timeline.begin(); const IndexRow* row = cursor.next();)
        lines.push_back(row->line);
    EXPECT_EQ((std::vector<std::uint32_t>{5, 2, 3, 1, 4}), lines);
}

TEST_F(TimelineTest, BeginsAtAMoment)
{
    add({{1, 5, 9}});
    add({{noMoment, 5, 6}});
    read();
    EXPECT_EQ((Rows{{5, 0}, {5, 1}, {6, 1}, {9, 0}}), rowsFrom(timeline.from(2)));
    EXPECT_EQ(Rows{}, rowsFrom(timeline.from(10)));
    EXPECT_EQ(6u, rowsFrom(timeline.from(noMoment)).size());
}

TEST_F(TimelineTest, TakesInWhatIsReadLater)
{
    add({{1, 5}, {2, 7}});
    add({{}, {3}});
    read();
    EXPECT_EQ(2u, timeline.size());
    read();
    EXPECT_EQ((Rows{{1, 0}, {2, 0}, {3, 1}, {5, 0}, {7, 0}}), rowsFrom(timeline.begin()));
}

TEST_F(TimelineTest, ReadsTheOthersWhenOneFails)
{
    add({{1, ToldSource::failing}});
    add({{2}});
    read();
    EXPECT_EQ(std::vector<std::string>{"the device has failed"}, timeline.failures());
    EXPECT_EQ((Rows{{1, 0}, {2, 1}}), rowsFrom(timeline.begin())) << "what was read stays";
}

TEST_F(TimelineTest, KeepsFewSourcesQuick)
{
    std::vector<ToldSource*> sources;
    for (Moment number = 0; number < 100; ++number) sources.push_back(&add({{number}}));
    read();
    Record record;
    for (auto cursor = timeline.begin(); const IndexRow* row = cursor.next();)
        timeline.record(*row, record);
    int letGoes = 0;
    for (const ToldSource* source : sources) {
        EXPECT_EQ(1, source->asked);
        letGoes += source->letGoes;
    }
    EXPECT_EQ(36, letGoes);
    EXPECT_EQ(1, sources[0]->letGoes);
    EXPECT_EQ(0, sources[99]->letGoes);
}

} // namespace
} // namespace timeline
