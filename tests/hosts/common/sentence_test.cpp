#include "hosts/common/sentence.h"

#include <gtest/gtest.h>

namespace {

TEST(SentenceText, PutsEachInsertInItsPlace)
{
    EXPECT_EQ("b before a, a.", (Sentence{"%2 before %1, %1.", {"a", "b"}}.text()));
}

TEST(SentenceText, LeavesAMarkWithoutAnInsertAndMarksInsideInsertsAlone)
{
    EXPECT_EQ("100% of %2, %1.", (Sentence{"100% of %2, %1.", {"%1"}}.text()));
}

TEST(SentenceAsClause, LosesItsFullStopAndItsCapitalLetter)
{
    EXPECT_EQ("no cabinet was made", asClause({"No cabinet was made.", {}}));
}

TEST(SentenceAsClause, LeavesTheInsertAtItsHeadAsItIs)
{
    EXPECT_EQ("Data.txt has gone", asClause({"%1 has gone.", {"Data.txt"}}));
}

} // namespace
