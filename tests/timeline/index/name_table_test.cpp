#include "timeline/index/name_table.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

TEST(NameTable, GivesEachTextOneNumber)
{
    NameTable names;
    EXPECT_EQ(0, names.numberOf(""));
    const auto first = names.numberOf("CallFlow");
    const auto second = names.numberOf("RuleEngine");
    EXPECT_NE(first, second);
    EXPECT_EQ(first, names.numberOf(std::string("Call") + "Flow"));
    EXPECT_EQ(second, names.numberOf("RuleEngine"));
    EXPECT_EQ("CallFlow", names.text(first));
    EXPECT_EQ("", names.text(0));
    EXPECT_EQ(3u, names.size());
}

TEST(NameTable, HasOneNumberForAllThatItHasNoRoomFor)
{
    NameTable names;
    for (int number = 0; number < 65'534; ++number) names.numberOf(std::to_string(number));
    EXPECT_EQ(NameTable::other, names.numberOf("one more"));
    EXPECT_EQ(NameTable::other, names.numberOf("and another"));
    EXPECT_EQ("", names.text(NameTable::other));
    EXPECT_EQ("65533", names.text(names.numberOf("65533")));
    EXPECT_EQ(65'535u, names.size());
}

} // namespace
} // namespace timeline
