#include "hosts/viewer/calls/call_counting.h"

#include "hosts/viewer/calls/call_sources.h"
#include "runtime/run_time_error.h"

#include <utility>

namespace viewer {

namespace {

constexpr std::size_t rowsCountedAtOnce = 16; ///< between two looks at the clock

} // namespace

CallCounting::CallCounting(const timeline::Timeline& timeline, std::shared_ptr<const View> view)
    : view_(std::move(view)), walk_(*view_, 0), hasCalls_(sourcesWithCalls(timeline)),
      counter_(timeline, mostCalls)
{}

bool CallCounting::goOn(const timeline::Timeline& timeline,
                        std::chrono::steady_clock::time_point until)
{
    while (looked_ < view_->size()) {
        const timeline::IndexRow& row = walk_.next(timeline);
        ++looked_;
        if (hasCalls_[row.source()]) {
            try {
                counter_.add(row);
            } catch (const RunTimeError&) {
                // The row itself tells why, wherever it is shown.
            }
        }
        if (looked_ % rowsCountedAtOnce == 0 && std::chrono::steady_clock::now() >= until) break;
    }
    return looked_ == view_->size();
}

CallList CallCounting::list() const
{
    CallList list;
    list.calls = counter_.calls();
    list.complete = looked_ == view_->size();
    list.share =
        list.complete ? 1.0 : static_cast<double>(looked_) / static_cast<double>(view_->size());
    list.leftOut = counter_.leftOut();
    return list;
}

} // namespace viewer
