#include "hosts/cli/reading/near_names.h"

#include <gmock/gmock.h>

namespace cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> known = {"Call Flow - Transfers", "Call Flow - Transfer",
                                        "Call Flow - Diverts", "Mail - Delivery"};

TEST(NearNames, AreThoseOfAFewChangesTheNearestFirst)
{
    EXPECT_THAT(
        nearNames("call flow - transfres", known),
        ElementsAre("Call Flow - Transfers", "Call Flow - Transfer", "Call Flow - Diverts"));
    EXPECT_THAT(nearNames("Mail-Delivery", known), ElementsAre("Mail - Delivery"));
    EXPECT_THAT(nearNames("Call Flow - Xyzzy quux", known), IsEmpty());
}

TEST(NearNames, AreThoseThatHoldTheTypedOneAsWell)
{
    EXPECT_THAT(nearNames("DIVERTS", known), ElementsAre("Call Flow - Diverts"));
    EXPECT_EQ(3u,
              nearNames("call flow", {"1 call flow", "2 call flow", "3 call flow", "4 call flow"})
                  .size());
}

TEST(NearNames, AreNoneOfNothingAndOfWhatNobodyTypes)
{
    EXPECT_THAT(nearNames("", known), IsEmpty());
    EXPECT_THAT(nearNames(std::string(100'000, 'x'), known), IsEmpty());
    EXPECT_THAT(nearNames("a", {}), IsEmpty());
}

TEST(NearNames, ComeOnceEach)
{
    EXPECT_THAT(nearNames("Z - T", {"Z - T2", "Z - T2"}), ElementsAre("Z - T2"));
}

TEST(NearNames, EndASentence)
{
    EXPECT_EQ("; near it is \"Mail - Delivery\"", nearNamesHint("delivery", known));
    EXPECT_EQ("; near it are \"Call Flow - Transfer\" and \"Call Flow - Transfers\"",
              nearNamesHint("Call Flow - Transferx",
                            {"Call Flow - Transfer", "Call Flow - Transfers", "Mail - Delivery"}));
    EXPECT_EQ("", nearNamesHint("Xyzzy", known));
}

} // namespace
} // namespace cli
