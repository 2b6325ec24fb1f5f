#include "backends/common/folder_listing.h"

#include <gmock/gmock.h>

namespace {

TEST(SortedNames, AreSortedWithoutRegardToCaseEachOnce)
{
    EXPECT_THAT(sortedNames({"b", "C", "a", "É", "é", "a"}),
                testing::ElementsAre("a", "b", "C", "É", "é"));
}

TEST(SortedNames, LackWhatNoPathReaches)
{
    EXPECT_THAT(sortedNames({"a\\b", "c"}), testing::ElementsAre("c"));
}

} // namespace
