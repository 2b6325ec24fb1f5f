#include "hosts/cli/reading/bar_chart.h"

#include "hosts/common/shown_width.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace cli {
namespace {

using timeline::Moment;

constexpr Moment minute = 60'000;
const Moment day = timeline::dayOf(2025, 2, 20);

/// 2,000 rows in the first bucket with errors and warnings, and a single one in the last.
timeline::Histogram rowsOver(Moment span)
{
    timeline::Histogram histogram(day, day + span, 10);
    for (int row = 0; row < 2'000; ++row) histogram.add(day, row < 3 ? 0 : row < 8 ? 1 : 7);
    histogram.add(day + span, 7);
    return histogram;
}

std::vector<std::string> linesOf(const timeline::Histogram& histogram, std::size_t width)
{
    std::vector<std::string> lines;
    std::istringstream stream(barChart(histogram, width, false));
    for (std::string line; std::getline(stream, line);) {
        line.erase(line.find_last_not_of(' ') + 1);
        lines.push_back(line);
    }
    return lines;
}

TEST(BarChart, ShowsMomentsBarsAndNumbers)
{
    EXPECT_EQ("2025-02-20 00:00  !+#######################   2,000 (3 errors, 5 warnings)",
              linesOf(rowsOver(50 * minute), 80).front());
    EXPECT_EQ("2025-02-20 00:50  #                           1",
              linesOf(rowsOver(50 * minute), 80).back());
}

TEST(BarChart, IsNoWiderThanATerminal)
{
    for (const Moment span : {9 * Moment{100}, 50 * minute, 3 * timeline::millisecondsPerDay,
                              90 * timeline::millisecondsPerDay}) {
        const timeline::Histogram histogram = rowsOver(span);
        for (std::size_t width = 22; width <= 100; ++width)
            for (const std::string& line : linesOf(histogram, width))
                EXPECT_GE(width, shownWidth(line)) << line;
    }
}

TEST(BarChart, GivesUpWhatTellsLeastInANarrowTerminal)
{
    const timeline::Histogram histogram = rowsOver(50 * minute);
    EXPECT_EQ("2025-02-20 00:00  !+#########   2,000 (3 errors, 5 warnings)",
              linesOf(histogram, 66).front());
    EXPECT_EQ("2025-02-20 00:00  !+###########   2,000", linesOf(histogram, 39).front());
    EXPECT_EQ("00:00  !+###########   2,000", linesOf(histogram, 28).front());
    const timeline::Histogram days = rowsOver(3 * timeline::millisecondsPerDay);
    EXPECT_EQ("02-20 00:00  !+#", linesOf(days, 22).front().substr(0, 16));
}

} // namespace
} // namespace cli
