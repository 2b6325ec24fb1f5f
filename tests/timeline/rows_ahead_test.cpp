#include "timeline/rows_ahead.h"

#include "runtime/run_time_error.h"
#include "timeline/sources/source.h"

#include <gtest/gtest.h>

#include <deque>

namespace timeline {
namespace {

/// Lines as long as they are told, and the order in which they were asked for.
class ToldLines final : public Source {
public:
    ToldLines(SourceNumber number, std::string& asked, std::size_t length)
        : number_(number), asked_(asked), length_(length)
    {}

    const SourceFacts& facts() const override { return facts_; }
    void read(const Filter&, SourceRows&, Progress&) override {}
    void record(const IndexRow&, Record&) override {}
    void letGo() override { asked_ += '|'; }

    bool appendLine(const IndexRow& row, std::string& bytes) override
    {
        asked_ += std::to_string(number_) + "." + std::to_string(row.line) + " ";
        if (row.line == failing) throw RunTimeError(57, "the device has failed");
        if (!hasLines) return false;
        bytes += std::to_string(number_) + "." + std::to_string(row.line);
        bytes.append(length_, 'x');
        return true;
    }

    std::uint32_t failing = 0;
    bool hasLines = true;

private:
    SourceNumber number_;
    std::string& asked_;
    std::size_t length_;
    SourceFacts facts_;
};

class RowsAheadTest : public testing::Test {
protected:
    RowsAheadTest() { makeSources(0); }

    void makeSources(std::size_t length)
    {
        sources.clear();
        for (SourceNumber number = 0; number < 3; ++number)
            sources.emplace_back(number, asked, length);
    }

    /// Rows of the three sources in turn.
    std::vector<const IndexRow*> inTurn(std::uint32_t lines)
    {
        rows.clear();
        for (std::uint32_t line = 1; line <= lines; ++line)
            for (SourceNumber number = 0; number < 3; ++number) {
                IndexRow& row = rows.emplace_back();
                row.line = line;
                row.stand(number, line * 100);
            }
        std::vector<const IndexRow*> expected;
        for (const IndexRow& row : rows) expected.push_back(&row);
        return expected;
    }

    std::string line(std::size_t row)
    {
        return std::string(ahead.line(rows[row]).value_or("none"));
    }

    std::string asked;
    std::deque<ToldLines> sources;
    std::deque<IndexRow> rows;
    RowsAhead ahead{[this](SourceNumber number) -> Source& { return sources[number]; }};
};

TEST_F(RowsAheadTest, ReadsTheLinesOfOneSourceTogetherAndGivesThemInTheirOrder)
{
    ahead.expect(inTurn(2));
    EXPECT_EQ("", asked) << "nothing is read before it is asked for";
    std::string given;
    for (std::size_t row = 0; row < 6; ++row) given += line(row) + " ";
    EXPECT_EQ("0.1 1.1 2.1 0.2 1.2 2.2 ", given);
    EXPECT_EQ("0.1 0.2 |1.1 1.2 |2.1 2.2 |", asked);
}

TEST_F(RowsAheadTest, TakesRowsThatArePassedOver)
{
    ahead.expect(inTurn(2));
    EXPECT_EQ("2.1", line(2));
    EXPECT_EQ("1.2 |2.1 2.2 |", asked.substr(asked.size() - 14)) << asked;
    EXPECT_EQ("2.2", line(5));
    EXPECT_EQ("none", line(1)) << "it is behind";
}

TEST_F(RowsAheadTest, HasNoLineOfARowThatItWasNotToldOf)
{
    EXPECT_FALSE(ahead.line(IndexRow()));
    ahead.expect(inTurn(1));
    IndexRow other = rows[0];
    other.line = 77;
    EXPECT_FALSE(ahead.line(other));
    EXPECT_EQ("", asked);
    ahead.clear();
    EXPECT_EQ("none", line(0));
}

TEST_F(RowsAheadTest, LeavesWhatCanNotBeReadToWhoeverAsksForIt)
{
    sources[1].failing = 2;
    sources[2].hasLines = false;
    ahead.expect(inTurn(2));
    std::string given;
    for (std::size_t row = 0; row < 6; ++row) given += line(row) + " ";
    EXPECT_EQ("0.1 1.1 none 0.2 none none ", given);
}

TEST_F(RowsAheadTest, AsksForMoreRowsAtATimeAsLongAsTheyHaveRoom)
{
    const std::size_t first = ahead.usualCount();
    ahead.expect(inTurn(1));
    line(0);
    const std::size_t second = ahead.usualCount();
    EXPECT_LT(first, second);
    makeSources(5U << 20);
    ahead.expect(inTurn(3));
    EXPECT_EQ(3 + (5U << 20), line(0).size());
    EXPECT_EQ("none", line(8)) << "sixteen megabytes are full";
    EXPECT_GT(second, ahead.usualCount());
}

} // namespace
} // namespace timeline
