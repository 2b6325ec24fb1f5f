#include "hosts/viewer/table/time_text.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

TEST(DifferenceText, TellsAsMuchAsThereIs)
{
    const struct {
        timeline::Moment length;
        const char* text;
    } rows[] = {
        {0, "+0.000"},
        {120, "+0.120"},
        {-1'005, "-1.005"},
        {62'000, "+1:02.000"},
        {-3'600'000, "-1:00:00.000"},
        {2 * timeline::millisecondsPerDay + 61'001, "+2 d 0:01:01.001"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.text, differenceText(1'000'000, 1'000'000 + row.length).toStdString());
}

TEST(DifferenceText, IsEmptyWhereAMomentIsNotKnown)
{
    EXPECT_EQ(QString(), differenceText(timeline::noMoment, 5));
    EXPECT_EQ(QString(), differenceText(5, timeline::noMoment));
    EXPECT_EQ(QString(), clockText(timeline::noMoment));
}

} // namespace
} // namespace viewer
