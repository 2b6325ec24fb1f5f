#include "hosts/cli/gather/frame_arguments.h"

#include "hosts/cli/command.h"
#include "hosts/cli/pacific_times.h"

#include <gmock/gmock.h>

namespace cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Now = timeline::MomentParts;

const Now thursday = {2025, 2, 20, 15, 23, 7};

/// A frame as "start +hours", with what differs behind a blank.
std::string entered(const FrameWords& words, const Now& now = thursday)
{
    SiteTimes times = pacificTimes(now);
    const FrameEntry entry = FrameRequest(words).entry(times);
    return sortableDateTime(entry.start) + " +" + entry.hours +
           (entry.difference.empty() ? "" : " " + entry.difference);
}

FrameWords fromWithHours(const char* from, const char* hours)
{
    return {from, {}, hours, {}};
}

FrameWords fromTo(const char* from, const char* to)
{
    return {from, to, {}, {}};
}

FrameWords lastOf(const char* span)
{
    return {{}, {}, {}, span};
}

std::string refusalOf(const FrameWords& words, const Now& now = thursday)
{
    try {
        entered(words, now);
        return "taken";
    } catch (const UsageError& error) {
        return error.what();
    }
}

constexpr const char* wider =
    " wider than asked for, as a frame has whole hours from a whole minute on";

TEST(FrameRequest, WithHoursIsWhatThePageTakes)
{
    EXPECT_EQ("2025-02-20 14:42:00 +2", entered(fromWithHours("2025-02-20 14:42", "2")));
    EXPECT_EQ("2025-02-20 14:42:00 +2", entered(fromWithHours("2025-02-20T14:42", "2")));
    EXPECT_EQ("2025-02-19 15:00:00 +999", entered(fromWithHours("yesterday 15:00", "999")));
    EXPECT_EQ("2025-02-20 00:00:00 +1", entered(fromWithHours("today", "1")));
    EXPECT_EQ("2025-02-20 15:00:00 +1", entered(fromWithHours("15:00", "1")));
    EXPECT_EQ("2025-02-20 15:00:00 +1", entered(fromWithHours("2025-02-20T23:00Z", "1")));
    EXPECT_EQ("2024-02-29 23:30:00 +1", entered(fromWithHours("2024-02-29 23:30", "1")));
}

TEST(FrameRequest, WithHoursLetsTheSecondsGoAndSaysSo)
{
    EXPECT_EQ("2025-02-20 14:42:00 +1 a frame starts at a whole minute",
              entered(fromWithHours("2025-02-20 14:42:59.999", "1")));
    EXPECT_EQ("2025-02-20 13:23:00 +1 a frame starts at a whole minute",
              entered(fromWithHours("2 hours ago", "1")));
}

TEST(FrameRequest, IsToldUnlessItIsTypedAsThePageHasIt)
{
    SiteTimes times = pacificTimes(thursday);
    EXPECT_FALSE(FrameRequest(fromWithHours("2025-02-20 14:42", "2")).entry(times).told);
    for (const char* from : {"today", "15:00", "2 hours ago", "2025-02-20T23:00Z"})
        EXPECT_TRUE(FrameRequest(fromWithHours(from, "2")).entry(times).told) << from;
    EXPECT_TRUE(FrameRequest(lastOf("2h")).entry(times).told);
}

TEST(FrameRequest, ToATimeIsAsWideAsItHasToBe)
{
    EXPECT_EQ("2025-02-20 13:00:00 +2", entered(fromTo("2025-02-20 13:00", "2025-02-20 15:00")));
    EXPECT_EQ("2025-02-20 13:00:00 +1" + std::string(wider), entered(fromTo("13:00", "13:05")));
    EXPECT_EQ("2025-02-20 13:00:00 +2" + std::string(wider),
              entered(fromTo("13:00:30", "14:00:30")));
    EXPECT_EQ("2025-02-19 00:00:00 +24", entered(fromTo("yesterday", "yesterday")));
    EXPECT_EQ("2025-02-19 00:00:00 +48", entered(fromTo("yesterday", "today")));
    EXPECT_EQ("2025-01-31 00:00:00 +48", entered(fromTo("2025-01-31", "2025-02-01")));
    EXPECT_EQ("2025-02-20 15:00:00 +1" + std::string(wider), entered(fromTo("15:00", "now")));
    EXPECT_EQ("2025-01-10 00:00:00 +999", entered(fromTo("2025-01-10", "2025-02-20 15:00")));
}

TEST(FrameRequest, OfTheLastHoursHoldsThemToThisSecond)
{
    EXPECT_EQ("2025-02-20 13:23:00 +3" + std::string(wider), entered(lastOf("2h")));
    EXPECT_EQ("2025-02-20 13:23:00 +2", entered(lastOf("2 hours"), {2025, 2, 20, 15, 23, 0}));
    EXPECT_EQ("2025-02-19 15:23:00 +24", entered(lastOf("1d"), {2025, 2, 20, 15, 23, 0}));
    EXPECT_EQ("2025-01-01 00:00:00 +1" + std::string(wider),
              entered(lastOf("5m"), {2025, 1, 1, 0, 5, 0}));
}

TEST(FrameRequest, HoldsTheHoursThatPassedWhereTheClockIsPutForward)
{
    EXPECT_EQ("2025-03-09 01:00:00 +3", entered(lastOf("2h"), {2025, 3, 9, 4, 0, 0}));
    EXPECT_EQ("2025-03-09 01:00:00 +3",
              entered(fromTo("2025-03-09T09:00Z", "2025-03-09T11:00Z"), {2025, 3, 9, 12}));
    EXPECT_EQ("2025-03-09 02:30:00 +1 the site's clock skips 2025-03-09 02:30",
              entered(fromWithHours("2025-03-09 02:30", "1"), {2025, 3, 9, 12}));
}

TEST(FrameRequest, HoldsEachTimeThatWasShownWhereTheClockIsPutBack)
{
    EXPECT_EQ("2025-11-02 01:00:00 +2", entered(lastOf("3h"), {2025, 11, 2, 3, 0, 0}))
        << "of the first hour after one, too";
    // Half past one, be it the first or the second one: an hour before it was one, and two it was
    // nearly since.
    EXPECT_EQ("2025-11-02 00:30:00 +2" + std::string(wider),
              entered(lastOf("1h"), {2025, 11, 2, 1, 30, 0}));
    EXPECT_EQ("2025-11-02 01:30:00 +1 the site's clock shows 2025-11-02 01:30 twice",
              entered(fromWithHours("2025-11-02 01:30", "1"), {2025, 11, 2, 12}));
}

TEST(FrameRequest, RefusesWhatDoesNotGoTogether)
{
    const struct {
        FrameWords words;
        const char* told;
    } cases[] = {
        {{"today", {}, {}, "2h"}, "--last is a frame by itself"},
        {{{}, "now", {}, "2h"}, "--last is a frame by itself"},
        {{{}, {}, "2", "2h"}, "--last is a frame by itself"},
        {{"today", "now", "2", {}}, "--to-time and --hours both say"},
        {{"today", {}, {}, {}}, "--from needs an end"},
        {{{}, "now", {}, {}}, "--to-time needs a --from"},
        {{{}, {}, "3", {}}, "--hours needs a --from; for the hours until now there is --last 3h"},
        {{{}, {}, "", {}}, "--hours needs a --from; for the hours until now there is --last 2h"},
    };
    for (const auto& c : cases) EXPECT_THAT(refusalOf(c.words), StartsWith(c.told));
    EXPECT_TRUE(FrameRequest({}).isDefault());
}

TEST(FrameRequest, RefusesWhatIsNoTimeAndNamesTheOption)
{
    EXPECT_THAT(refusalOf(fromWithHours("noon", "1")), StartsWith("--from: \"noon\" is no time"));
    EXPECT_THAT(refusalOf(fromWithHours("", "1")), StartsWith("--from: \"\" is no time"));
    EXPECT_THAT(refusalOf(fromWithHours("2025-02-29 12:00", "1")), HasSubstr("is no time"));
    EXPECT_THAT(refusalOf(fromTo("today", "later")), StartsWith("--to-time: \"later\" is no time"));
    EXPECT_THAT(refusalOf(lastOf("2")), StartsWith("--last: \"2\" is no span of time"));
    EXPECT_THAT(refusalOf(lastOf("-2h")), StartsWith("--last: \"-2h\" is no span of time"));
    EXPECT_THAT(refusalOf(lastOf("")), StartsWith("--last: \"\" is no span of time"));
    for (const char* hours : {"0", "000", "1000", "0.5", "two", "-1", "+1", " 1", ""})
        EXPECT_THAT(refusalOf(fromWithHours("today", hours)), StartsWith("--hours takes a whole"));
}

TEST(FrameRequest, RefusesAFrameThatIsNone)
{
    EXPECT_EQ("the time frame ends no later than it starts: 2025-02-20 15:00 to 2025-02-20 14:00 "
              "PST (UTC-08:00)",
              refusalOf(fromTo("15:00", "14:00")));
    EXPECT_THAT(refusalOf(fromTo("now", "now")), StartsWith("the time frame ends no later"));
    EXPECT_THAT(refusalOf(lastOf("0s")), StartsWith("the time frame ends no later"));
    EXPECT_EQ("a time frame has 999 hours at most, and 2025-01-01 00:00 to 2025-02-20 00:00 PST "
              "(UTC-08:00) has 1200",
              refusalOf(fromTo("2025-01-01", "2025-02-20 00:00")));
    EXPECT_THAT(refusalOf(fromWithHours("0099-12-31 23:00", "1")), HasSubstr("100 to 9999"));
}

} // namespace
} // namespace cli
