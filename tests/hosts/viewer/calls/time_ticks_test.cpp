#include "hosts/viewer/calls/time_ticks.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

constexpr timeline::Moment aSecond = 1000;
constexpr timeline::Moment anHour = 3'600'000;

TEST(TimeTicks, StandWhereAClockHasRoundNumbers)
{
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    struct Case {
        const char* because;
        timeline::Moment from;
        timeline::Moment length;
        int most;
        timeline::Moment step;
        const char* first;
    };
    const Case cases[] = {
        {"milliseconds", day + 15 * anHour + 1, 9, 10, 1, "15:00:00.001"},
        {"parts of a second", day + 15 * anHour + 30, 900, 5, 200, "15:00:00.200"},
        {"seconds", day + 15 * anHour + 300, 25 * aSecond, 5, 5 * aSecond, "15:00:05"},
        {"quarters of an hour", day + 14 * anHour + 1, 2 * anHour, 8, anHour / 4, "14:15"},
        {"six hours", day, 24 * anHour, 4, 6 * anHour, "00:00"},
        {"days", day + anHour, 6 * 24 * anHour, 6, 24 * anHour, "2025-02-21"},
        {"weeks and more", day, 100 * 24 * anHour, 10, 10 * 24 * anHour, nullptr},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.because);
        const auto ticks =
            TimeTicks::between(static_cast<double>(each.from),
                               static_cast<double>(each.from + each.length), each.most);
        EXPECT_EQ(each.step, ticks.step);
        ASSERT_FALSE(ticks.moments.empty());
        EXPECT_LE(ticks.moments.size(), static_cast<std::size_t>(each.most) + 1);
        EXPECT_GE(ticks.moments.front(), each.from);
        EXPECT_LE(ticks.moments.back(), each.from + each.length);
        if (each.first != nullptr) {
            EXPECT_EQ(each.first, ticks.text(ticks.moments.front()).toStdString());
        }
        for (const timeline::Moment moment : ticks.moments) EXPECT_EQ(0, moment % each.step);
    }
}

} // namespace
} // namespace viewer
