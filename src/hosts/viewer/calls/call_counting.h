#pragma once

#include "hosts/viewer/document/place_walk.h"
#include "hosts/viewer/document/view.h"
#include "timeline/counts/calls.h"

#include <chrono>
#include <memory>
#include <vector>

namespace viewer {

/// The calls of rows on show.
struct CallList {
    std::vector<timeline::Call> calls; ///< in the order of their first rows
    double share = 0;                  ///< of the rows that were looked at, from 0 to 1
    bool complete = false;             ///< whether all rows were
    bool leftOut = false;              ///< whether there are more calls than are listed
};

/// Counts the rows on show of each call, in steps that are as short as who asks wants them.
class CallCounting {
public:
    /// The most calls that are listed.
    static constexpr std::size_t mostCalls = 100'000;

    CallCounting(const timeline::Timeline& timeline, std::shared_ptr<const View> view);

    /// Goes on until a moment; true when all rows were looked at.
    bool goOn(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// The calls of the rows so far.
    CallList list() const;

private:
    std::shared_ptr<const View> view_;
    PlaceWalk walk_;
    std::size_t looked_ = 0;
    std::vector<bool> hasCalls_; ///< of each source, whether its rows may have call ids
    timeline::CallCounter counter_;
};

} // namespace viewer
