#include "hosts/viewer/calls/call_counting.h"

#include "hosts/viewer/calls/call_sources.h"
#include "runtime/run_time_error.h"

#include <utility>

namespace viewer {

namespace {

constexpr std::size_t rowsCountedAtOnce = 16; ///< between two looks at the clock

} // namespace

CallCounting::CallCounting(const timeline::Timeline& timeline, std::shared_ptr<const View> view)
    : view_(std::move(view)), walk_(*view_, 0)
{
    beginAnew(timeline);
}

void CallCounting::beginAnew(const timeline::Timeline& timeline)
{
    walk_ = PlaceWalk(*view_, 0);
    looked_ = 0;
    anyNew_ = true;
    walkBefore_.reset();
    before_.reset();
    hasCalls_ = sourcesWithCalls(timeline);
    counter_.emplace(timeline, mostCalls);
}

void CallCounting::growTo(const timeline::Timeline& timeline, std::shared_ptr<const View> view,
                          std::size_t same)
{
    before_ = std::exchange(view_, std::move(view));
    walkBefore_.emplace(*before_, same);
    nextBefore_ = same;
    walk_ = PlaceWalk(*view_, same);
    looked_ = same;
    anyNew_ = false;
    hasCalls_ = sourcesWithCalls(timeline);
}

/// Whether a row was on show before: those that were come in the same order. Where a row of before
/// is on show now or is no more, as a line that came made it pass the filter or not, they do not.
CallCounting::Known CallCounting::known(const timeline::Timeline& timeline,
                                        const timeline::IndexRow& row)
{
    if (!before_ || !before_->order->has(row)) return Known::no;
    if (nextBefore_ == before_->size()) return Known::otherwise;
    ++nextBefore_;
    return walkBefore_->next(timeline).place == row.place ? Known::yes : Known::otherwise;
}

void CallCounting::count(const timeline::IndexRow& row)
{
    anyNew_ = true;
    if (!hasCalls_[row.source()]) return;
    try {
        counter_->add(row);
    } catch (const RunTimeError&) {
        // The row itself tells why, wherever it is shown.
    }
}

bool CallCounting::goOn(const timeline::Timeline& timeline,
                        std::chrono::steady_clock::time_point until)
{
    for (std::size_t rows = 1; looked_ < view_->size(); ++rows) {
        const timeline::IndexRow& row = walk_.next(timeline);
        ++looked_;
        const Known known = this->known(timeline, row);
        if (known == Known::no) count(row);
        // What was counted too much can't be taken back.
        if (known == Known::otherwise) beginAnew(timeline);
        if (rows % rowsCountedAtOnce == 0 && std::chrono::steady_clock::now() >= until) break;
    }
    if (looked_ < view_->size()) return false;
    if (before_ && nextBefore_ < before_->size()) {
        beginAnew(timeline); // rows of before are on show no more
        return view_->size() == 0;
    }
    walkBefore_.reset();
    before_.reset();
    return true;
}

CallList CallCounting::list() const
{
    CallList list;
    list.calls = counter_->calls();
    list.complete = looked_ == view_->size();
    list.share =
        list.complete ? 1.0 : static_cast<double>(looked_) / static_cast<double>(view_->size());
    list.leftOut = counter_->leftOut();
    return list;
}

} // namespace viewer
