#include "hosts/viewer/calls/lane_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace viewer {

namespace {

constexpr int reachOfSight = 6; ///< pixels beyond the margins in which a dot is still seen

double momentOf(const CallRow& row, const TimeScale& scale)
{
    return row.index.moment == timeline::noMoment ? scale.first()
                                                  : static_cast<double>(row.index.moment);
}

/// Errors before warnings before others.
int rankOf(Severity severity)
{
    return severity == Severity::error ? 2 : severity == Severity::warning ? 1 : 0;
}

} // namespace

double LaneLayout::xOf(const CallRow& row, const TimeScale& scale)
{
    return scale.xOf(momentOf(row, scale));
}

std::optional<std::pair<timeline::Moment, timeline::Moment>>
LaneLayout::timesOf(const CallRows& rows)
{
    const auto first = std::find_if(rows.rows.begin(), rows.rows.end(), [](const CallRow& row) {
        return row.index.moment != timeline::noMoment;
    });
    if (first == rows.rows.end()) return std::nullopt;
    return std::pair(first->index.moment, rows.rows.back().index.moment);
}

LaneLayout::LaneLayout(const CallRows& rows, const TimeScale& scale) : lanes_(rows.lanes.size())
{
    const double from = scale.momentAt(scale.xOf(scale.from()) - reachOfSight);
    const double to = scale.momentAt(scale.xOf(scale.to()) + reachOfSight);
    // Rows are in the order of time, those without one first.
    const auto begin =
        std::lower_bound(rows.rows.begin(), rows.rows.end(), from,
                         [&](const CallRow& row, double at) { return momentOf(row, scale) < at; });
    for (auto row = begin; row != rows.rows.end() && momentOf(*row, scale) <= to; ++row) {
        auto& dots = lanes_[row->lane];
        const auto x = static_cast<int>(std::lround(xOf(*row, scale)));
        if (dots.empty() || x >= dots.back().x + cell) dots.push_back({x, 0, 0, Severity::none});
        Dot& dot = dots.back();
        if (dot.count++ == 0 || rankOf(row->severity) > rankOf(dot.severity)) {
            dot.row = static_cast<std::size_t>(row - rows.rows.begin());
            dot.severity = row->severity;
        }
    }
}

std::optional<LaneLayout::Dot> LaneLayout::dotAt(std::size_t lane, int x, int reach) const
{
    if (lane >= lanes_.size()) return std::nullopt;
    const auto& dots = lanes_[lane];
    const auto nearest =
        std::min_element(dots.begin(), dots.end(), [x](const Dot& a, const Dot& b) {
            return std::abs(a.x - x) < std::abs(b.x - x);
        });
    if (nearest == dots.end() || std::abs(nearest->x - x) > reach) return std::nullopt;
    return *nearest;
}

} // namespace viewer
