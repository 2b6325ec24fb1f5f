#include "timeline/lines/passable_lines.h"

#include "timeline/lines/day_carry.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace timeline {
namespace {

constexpr std::int32_t noon = 12 * 3600;

PassableLines passable(const std::string& lines, std::size_t place, std::int32_t lastSecond = noon)
{
    LineBuffer buffer(lines.size());
    lines.copy(buffer.bytes.get(), lines.size());
    buffer.findEnds(0, lines.size());
    PassableLines found;
    findPassableLines({lines, buffer.ends.get(), buffer.endCount}, place, lastSecond, found);
    return found;
}

TEST(PassableLines, AreThoseInFrontOfTheLastClockBeforeAPlace)
{
    const std::string row = "12:00:01:000,Conv,12,Rule,7,one\n";
    const std::string lines = row + "more\n" + row + row;
    EXPECT_EQ(2 * row.size() + 5, passable(lines, lines.size()).bytes);
    EXPECT_EQ(3u, passable(lines, lines.size()).count);
    EXPECT_EQ(row.size() + 5, passable(lines, row.size() + 5).bytes)
        << "the line that begins at the place is one of them";
    EXPECT_EQ(0u, passable(lines, row.size() + 4).bytes);
}

TEST(PassableLines, EndWhereTheClockGoesBack)
{
    const std::string row = "12:00:01:000,Conv,12,Rule,7,one\n";
    const std::string lines = row + row + "12:00:00:999,Conv,12,Rule,7,two\n" + row + row;
    EXPECT_EQ(row.size(), passable(lines, lines.size()).bytes);
    EXPECT_EQ(0u, passable(lines, lines.size(), noon + 2).bytes);
    EXPECT_EQ(0u, passable(lines, lines.size(), noon + 2).count);
}

TEST(PassableLines, EndInFrontOfNoTimeThatNoDayHas)
{
    const std::string row = "12:00:01:000,Conv,12,Rule,7,one\n";
    for (const std::string none : {"24:00:00:000", "12:60:00:000", "12:00:60:000"}) {
        const std::string lines = row + row + none + ",Conv,12,Rule,7,two\n";
        EXPECT_EQ(row.size(), passable(lines, lines.size()).bytes) << none;
    }
}

TEST(PassableLines, EndInFrontOfALineWithADateAsWell)
{
    const std::string row = "12:00:01:000,Conv,12,Rule,7,one\n";
    const std::string dated = "2025-02-20 10:00:00,Conv,12,Rule,7,one\n";
    const std::string lines = row + dated + row;
    EXPECT_EQ(row.size(), passable(lines, lines.size()).bytes)
        << "the day of those behind depends on it";
    EXPECT_EQ(row.size() + dated.size(), passable(row + dated + dated + row, 200).bytes);
}

TEST(PassableLines, TellWhichAreEmpty)
{
    const std::string row = "12:00:01:000,Conv,12,Rule,7,one\n";
    const std::string lines = row + "\n\r\n more of the row\n" + row + row;
    EXPECT_EQ((std::vector<std::uint32_t>{1, 2}), passable(lines, lines.size()).empty);
    EXPECT_EQ(5u, passable(lines, lines.size()).count);
}

TEST(PassableLines, LeaveTheDayOfThoseBehindThemAsItIs)
{
    std::mt19937 random(5);
    const auto clock = [&](int from) {
        char text[24];
        const int second = from + static_cast<int>(random() % 4);
        std::snprintf(text, sizeof text, "%02d:%02d:%02d:000", second / 3600, second / 60 % 60,
                      second % 60);
        return std::string(text);
    };
    int passedAny = 0;
    for (int round = 0; round < 5000; ++round) {
        std::vector<std::string> lines;
        int from = noon;
        for (auto count = random() % 60; count > 0; --count) {
            const auto kind = random() % 40;
            from += static_cast<int>(random() % 8);
            std::string line = clock(from) + ",Conv,1";
            if (kind == 0) line = "2025-02-21 " + line.substr(0, 8) + ",Conv";
            if (kind == 1) line = "12:61" + line.substr(5);
            if (kind < 6 && kind > 1) line = "  further of it";
            if (kind == 6) line = "";
            if (kind == 7) from -= 20;
            lines.push_back(line + (line.empty() ? "" : std::string(random() % 100, 'x')));
        }
        std::string all;
        for (const std::string& line : lines) all += line + "\n";
        const std::size_t place = random() % (all.size() + 1);
        const PassableLines found = passable(all, place);
        ASSERT_TRUE(found.bytes == 0 || found.bytes <= place);
        if (found.bytes == 0) continue;
        ++passedAny;
        DayCarry whole(dayOf(2025, 2, 20) + Moment{noon} * 1000);
        DayCarry without = whole;
        std::size_t at = 0;
        std::uint32_t number = 0;
        Stamp stamp;
        for (; at < found.bytes; at += lines[number++].size() + 1)
            if (readStamp(lines[number], stamp)) whole.at(stamp);
        ASSERT_EQ(found.bytes, at);
        ASSERT_EQ(found.count, number);
        ASSERT_TRUE(readStamp(lines[number], stamp));
        ASSERT_EQ(whole.at(stamp), without.at(stamp)) << all;
    }
    EXPECT_GT(passedAny, 1000);
}

} // namespace
} // namespace timeline
