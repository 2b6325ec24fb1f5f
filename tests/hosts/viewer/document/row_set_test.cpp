#include "hosts/viewer/document/row_set.h"

#include <gtest/gtest.h>

#include <random>

namespace viewer {
namespace {

/// A set and the plain list of its members, told of the same.
struct Told {
    RowSet set;
    std::vector<std::size_t> members;

    void tell(bool member, std::size_t rows)
    {
        if (member)
            for (std::size_t at = 0; at < rows; ++at) members.push_back(set.size() + at);
        set.append(member, rows);
    }
};

void expectSame(const Told& told)
{
    ASSERT_EQ(told.members.size(), told.set.count());
    for (std::size_t place = 0; place < told.members.size(); ++place) {
        ASSERT_EQ(told.members[place], told.set.at(place));
        ASSERT_TRUE(told.set.has(told.members[place]));
    }
    std::size_t before = 0;
    for (std::size_t row = 0; row <= told.set.size(); ++row) {
        ASSERT_EQ(before, told.set.countBefore(row)) << row;
        const bool member = before < told.members.size() && told.members[before] == row;
        ASSERT_EQ(member, told.set.has(row)) << row;
        const auto next = told.set.nextFrom(row);
        ASSERT_EQ(before < told.members.size(), next.has_value());
        if (next) {
            ASSERT_EQ(told.members[before], *next);
        }
        const auto last = told.set.lastBefore(row);
        ASSERT_EQ(before > 0, last.has_value());
        if (last) {
            ASSERT_EQ(told.members[before - 1], *last);
        }
        if (member) ++before;
    }
}

TEST(RowSet, IsEmptyAtFirst)
{
    const RowSet set;
    EXPECT_EQ(0u, set.size());
    EXPECT_EQ(0u, set.count());
    EXPECT_FALSE(set.has(0));
    EXPECT_FALSE(set.nextFrom(0).has_value());
    EXPECT_FALSE(set.lastBefore(5).has_value());
}

TEST(RowSet, FindsMembersAndTheirPlacesAtEveryBorder)
{
    std::mt19937 chance(7);
    for (const std::size_t longest : {1, 3, 70, 700}) {
        Told told;
        std::uniform_int_distribution<std::size_t> rows(1, longest);
        while (told.set.size() < 3000) told.tell(chance() % 3 == 0, rows(chance));
        SCOPED_TRACE(longest);
        expectSame(told);
    }
}

TEST(RowSet, GoesOnBehindWhatItKeepsOfItsRows)
{
    for (const std::size_t kept : {0, 1, 63, 64, 65, 511, 512, 513, 900}) {
        SCOPED_TRACE(kept);
        RowSet set;
        Told told;
        for (std::size_t row = 0; row < 1200; ++row) {
            set.append(row % 3 == 0);
            if (row < kept) told.tell(row % 3 == 0, 1);
        }
        set.truncate(kept);
        EXPECT_EQ(told.set.count(), set.count());
        told.tell(true, 600);
        set.append(true, 600);
        told.set = set;
        expectSame(told);
    }
}

TEST(RowSet, TakesWholeWordsAndBlocks)
{
    Told told;
    told.tell(true, 64);
    told.tell(false, 448);
    told.tell(true, 512);
    told.tell(true, 1);
    expectSame(told);
}

} // namespace
} // namespace viewer
