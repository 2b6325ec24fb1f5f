#pragma once

#include "sample/log_line.h"
#include "sample/log_plan.h"
#include "sample/occurrence.h"
#include "sample/scenarios.h"

#include <array>
#include <cstddef>
#include <functional>
#include <queue>
#include <vector>

namespace sample {

/// Three days of a server's life, as the lines that its processes write.
///
/// Calls and services happen as often as the hour of the day allows, run side by side, and are told
/// in the order of time. A few lines of each log are malformed.
class Traffic {
public:
    using Sink = std::function<void(const LogLine&)>;

    /// `lines`: how many lines the logs get in all, no fewer than the logs' own openings and
    /// damages; records of data files come on top.
    Traffic(Random& random, const std::vector<LogPeriod>& plan, std::size_t lines, Sink sink);

    /// Hands every line to the sink, those of one moment in the order of their making.
    void run();

private:
    struct Pending {
        Moment moment;
        std::size_t order;
        LogLine line;
    };
    struct Later {
        bool operator()(const Pending& one, const Pending& other) const
        {
            return one.moment != other.moment ? one.moment > other.moment : one.order > other.order;
        }
    };

    void add(LogLine line);
    void release(Moment before);

    void openLogs(const std::vector<LogPeriod>& plan);
    void damage(const LogPeriod& period);

    void happen(Moment moment);
    Moment play(const Scenario& scenario, Occurrence occurrence, Moment moment);
    LogLine lineOf(const Step& step, const Occurrence& occurrence, Moment moment);
    const Scenario& drawScenario(Moment moment);
    int drawPort(Moment moment);
    void fillUp(Moment from);

    Random& random_;
    std::size_t lines_;
    Sink sink_;
    std::vector<Scenario> scenarios_;
    std::priority_queue<Pending, std::vector<Pending>, Later> pending_;
    std::array<Moment, portCount> portFreeAt_{};
    History history_;
    std::size_t added_ = 0;   ///< lines of logs
    std::size_t ordered_ = 0; ///< lines of any kind
};

} // namespace sample
