#include "hosts/cli/naming/near_names.h"

#include <gmock/gmock.h>

namespace cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> traces = {"Call Flow - Transfers", "Call Flow - Transfer",
                                         "Call Flow - Diverts", "Mail - Delivery"};
const std::vector<std::string> commands = {"sample", "status", "tree",  "logs",  "read",
                                           "cycle",  "macro",  "micro", "gather"};

TEST(NearNames, AreAFewSlipsAway)
{
    const struct {
        const char* because;
        const char* typed;
        const char* meant;
    } cases[] = {
        {"two letters changed places", "statsu", "status"},
        {"so they did at the beginning", "rtee", "tree"},
        {"a letter is missing", "gathr", "gather"},
        {"a letter too many", "marco", "macro"},
        {"another letter", "reat", "read"},
        {"in another case", "STATSU", "status"},
        {"one slip in two letters is told apart still", "gahter", "gather"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_THAT(nearNames(c.typed, commands), ElementsAre(c.meant));
    }
}

TEST(NearNames, ASwapIsOneSlipAndTwoChangesAreTwo)
{
    EXPECT_THAT(nearNames("ab", {"ba"}), ElementsAre("ba"));
    EXPECT_THAT(nearNames("ab", {"cd"}), IsEmpty());
    EXPECT_THAT(nearNames("abc", {"acb"}), ElementsAre("acb"));
    EXPECT_THAT(nearNames("abc", {"ade"}), IsEmpty());
}

TEST(NearNames, AreTheNearestAlone)
{
    EXPECT_THAT(nearNames("call flow - transfres", traces), ElementsAre("Call Flow - Transfers"));
    EXPECT_THAT(nearNames("Mail-Delivery", traces), ElementsAre("Mail - Delivery"));
}

TEST(NearNames, AreAllOfOneDistanceInTheirOrderUpToThree)
{
    EXPECT_THAT(nearNames("micra", commands), ElementsAre("micro"));
    EXPECT_THAT(nearNames("macrt", {"macra", "macro", "micro"}), ElementsAre("macra", "macro"));
    EXPECT_THAT(nearNames("FRX", {"DEU", "FRC", "FRA", "FRB", "FRD"}),
                ElementsAre("FRC", "FRA", "FRB"));
}

TEST(NearNames, AreNoneOfWhatIsTooFar)
{
    EXPECT_THAT(nearNames("xyzzy", commands), IsEmpty());
    EXPECT_THAT(nearNames("stxxxs", commands), IsEmpty());
    EXPECT_THAT(nearNames("Call Flow - Xyzzy quux", traces), IsEmpty());
}

TEST(NearNames, AreThoseThatHoldTheTypedOneWhereNothingIsNearer)
{
    EXPECT_THAT(nearNames("DIVERTS", traces), ElementsAre("Call Flow - Diverts"));
    EXPECT_THAT(nearNames("log", {"log-folder", "logs"}), ElementsAre("logs"));
    EXPECT_EQ(3u,
              nearNames("call flow", {"1 call flow", "2 call flow", "3 call flow", "4 call flow"})
                  .size());
    EXPECT_THAT(nearNames("es", {"settings of messages"}), IsEmpty()) << "part of too much";
}

TEST(NearNames, CountLettersAndNotBytes)
{
    EXPECT_THAT(nearNames("\xC3\xA9\xC3\xA8\xC3\xAA", {"\xC3\xA9\xC3\xA8\xC3\xA0"}),
                ElementsAre("\xC3\xA9\xC3\xA8\xC3\xA0"));
    EXPECT_THAT(nearNames("\xC3\xA9\xC3\xA8", {"\xC3\xA0\xC3\xAC"}), IsEmpty());
    EXPECT_THAT(nearNames("a\xFF"
                          "b",
                          {"a\xFE"
                           "b"}),
                ElementsAre("a\xFE"
                            "b"));
}

TEST(NearNames, AreNoneOfNothingAndOfWhatNobodyTypes)
{
    EXPECT_THAT(nearNames("", traces), IsEmpty());
    EXPECT_THAT(nearNames("a", {"b", "ab"}), IsEmpty()) << "near to anything";
    EXPECT_THAT(nearNames(std::string(100'000, 'x'), traces), IsEmpty());
    EXPECT_THAT(nearNames("abc", {std::string(100'000, 'x')}), IsEmpty());
    EXPECT_THAT(nearNames("abc", {}), IsEmpty());
}

TEST(NearNames, ComeOnceEach)
{
    EXPECT_THAT(nearNames("Z - T", {"Z - T2", "Z - T2"}), ElementsAre("Z - T2"));
}

TEST(NearNames, AreOfferedAtTheEndOfASentence)
{
    EXPECT_EQ("; did you mean status?", didYouMean("statsu", commands));
    EXPECT_EQ("; did you mean \"Mail - Delivery\"?", didYouMean("delivery", traces));
    EXPECT_EQ("", didYouMean("xyzzy", commands));
    EXPECT_EQ("; status lists them", didYouMean("xyzzy", commands, "; status lists them"));
}

TEST(NamesToChoose, StandWithTheirLastWordAndQuotedWhereAShellWouldTakeThemApart)
{
    EXPECT_EQ("", namesToChoose({}));
    EXPECT_EQ("--json", namesToChoose({"--json"}));
    EXPECT_EQ("A or CallFlow:3", namesToChoose({"A", "CallFlow:3"}));
    EXPECT_EQ("\"A - B\", \"a;b\" or \"\"", namesToChoose({"A - B", "a;b", ""}));
}

} // namespace
} // namespace cli
