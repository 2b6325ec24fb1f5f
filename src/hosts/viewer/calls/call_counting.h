#pragma once

#include "hosts/viewer/document/place_walk.h"
#include "hosts/viewer/document/view.h"
#include "timeline/counts/calls.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
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
///
/// Where rows come it goes on: those that it has counted are not read again.
class CallCounting {
public:
    /// The most calls that are listed.
    static constexpr std::size_t mostCalls = 100'000;

    CallCounting(const timeline::Timeline& timeline, std::shared_ptr<const View> view);

    /// Goes on until a moment; true when all rows were looked at.
    bool goOn(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// Goes on with a view that grew from this one, all of whose rows were counted, and has `same`
    /// places at the top as they were: `goOn` counts the rows that came.
    void growTo(const timeline::Timeline& timeline, std::shared_ptr<const View> view,
                std::size_t same);

    /// Whether a row was counted since it was made or grew.
    bool anyNew() const { return anyNew_; }

    /// The calls of the rows so far. Those that came with a view that grew stand behind the others.
    CallList list() const;

private:
    enum class Known { no, yes, otherwise };
    Known known(const timeline::Timeline& timeline, const timeline::IndexRow& row);
    void beginAnew(const timeline::Timeline& timeline);
    void count(const timeline::IndexRow& row);

    std::shared_ptr<const View> view_;
    PlaceWalk walk_;
    std::size_t looked_ = 0;
    std::shared_ptr<const View> before_;  ///< that it grew from; null where it did not
    std::optional<PlaceWalk> walkBefore_; ///< over those of its rows that are to come yet
    std::size_t nextBefore_ = 0;          ///< the place of the next of these
    bool anyNew_ = false;
    std::vector<bool> hasCalls_; ///< of each source, whether its rows may have call ids
    std::optional<timeline::CallCounter> counter_;
};

} // namespace viewer
