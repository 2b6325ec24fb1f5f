#include "hosts/cli/naming/matching_name.h"

#include "hosts/cli/command.h"

#include <gtest/gtest.h>

namespace cli {
namespace {

TEST(MatchingName, IsTheOneThatIsWrittenSoBeforeAnyInAnotherCase)
{
    EXPECT_EQ("callflow", matchingName("callflow", {"CallFlow", "callflow", "CALLFLOW"}));
    EXPECT_EQ("CallFlow", matchingName("CallFlow", {"CallFlow", "callflow"}));
}

TEST(MatchingName, IsTheOnlyOneThatDiffersInCase)
{
    EXPECT_EQ("CallFlow", matchingName("cALLfLOW", {"Conversation", "CallFlow"}));
    EXPECT_EQ("\xC3\x9C"
              "bergabe",
              matchingName("\xC3\xBC"
                           "bergabe",
                           {"\xC3\x9C"
                            "bergabe"}));
    EXPECT_EQ("A - B", matchingName("a - b", {"A - B", "A - B"})) << "twice the same is one";
}

TEST(MatchingName, IsNoneWhereNoneIsWrittenSo)
{
    EXPECT_EQ(std::nullopt, matchingName("CallFlo", {"CallFlow"}));
    EXPECT_EQ(std::nullopt, matchingName("", {"CallFlow"}));
    EXPECT_EQ(std::nullopt, matchingName("CallFlow", {}));
}

TEST(MatchingName, IsRefusedWhereSeveralDifferInCaseAlone)
{
    try {
        matchingName("callflow", {"CallFlow", "Timer", "CALLFLOW"});
        ADD_FAILURE() << "nothing was refused";
    } catch (const CommandFailure& failure) {
        EXPECT_STREQ("\"callflow\" may be CallFlow or CALLFLOW; write it as it stands there",
                     failure.what());
    }
}

} // namespace
} // namespace cli
