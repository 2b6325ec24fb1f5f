#include "hosts/viewer/support/test_calls.h"

#include <cstdio>
#include <random>

namespace viewer {

std::string callLine(int millisecondsOfDay, const std::string& callId, int level,
                     const std::string& trace)
{
    char stamp[24];
    std::snprintf(stamp, sizeof stamp, "%02d:%02d:%02d:%03d", millisecondsOfDay / 3'600'000,
                  millisecondsOfDay / 60'000 % 60, millisecondsOfDay / 1000 % 60,
                  millisecondsOfDay % 1000);
    return std::string(stamp) + ",Conv,12,t1,7," + callId + ",CallFlow," + std::to_string(level) +
           "," + trace + "\r\n";
}

CallRows someCall(std::size_t rows, std::size_t lanes, timeline::Moment first)
{
    std::mt19937 random(static_cast<unsigned>(rows + lanes));
    CallRows call;
    call.id = "A";
    call.complete = true;
    for (std::size_t lane = 0; lane < lanes; ++lane)
        call.lanes.push_back("process " + std::to_string(lane));
    timeline::Moment moment = first;
    for (std::size_t row = 0; row < rows; ++row) {
        CallRow added;
        if (random() % 3 != 0) moment += random() % 40;
        added.index.moment = moment;
        added.index.stand(0, row);
        added.lane = static_cast<std::uint16_t>(random() % lanes);
        const unsigned level = random() % 30;
        added.severity = level == 0   ? Severity::error
                         : level == 1 ? Severity::warning
                                      : Severity::none;
        call.rows.push_back(added);
    }
    return call;
}

} // namespace viewer
