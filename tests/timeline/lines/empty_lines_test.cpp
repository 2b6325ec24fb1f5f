#include "timeline/lines/empty_lines.h"

#include <gtest/gtest.h>

#include <set>

namespace timeline {
namespace {

TEST(EmptyLines, AreCountedBeforeEachOtherLine)
{
    const std::set<std::uint32_t> empty = {1, 2, 5, 7, 8, 9, 20};
    EmptyLines lines;
    for (const std::uint32_t line : empty) lines.add(line);
    std::uint32_t before = 0;
    for (std::uint32_t line = 1; line < 30; ++line) {
        if (empty.contains(line))
            ++before;
        else
            EXPECT_EQ(before, lines.before(line)) << line;
    }
}

TEST(EmptyLines, OfNoneThereIsNone)
{
    EXPECT_EQ(0u, EmptyLines().before(1));
}

TEST(EmptyLines, TakeOverThoseOfFurtherLines)
{
    EmptyLines whole;
    EmptyLines front;
    EmptyLines rest;
    for (const std::uint32_t line : {2U, 9U, 10U}) {
        whole.add(line);
        front.add(line);
    }
    for (const std::uint32_t line : {1U, 2U, 5U}) {
        whole.add(10 + line);
        rest.add(line);
    }
    front.add(rest, 10);
    for (std::uint32_t line = 1; line < 20; ++line)
        EXPECT_EQ(whole.before(line), front.before(line));
}

} // namespace
} // namespace timeline
