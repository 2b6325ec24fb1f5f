#include "hosts/viewer/calls/call_search.h"

#include "hosts/viewer/calls/call_sources.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace viewer {

namespace {

using timeline::Column;
using timeline::IndexRow;
using timeline::Timeline;

constexpr std::size_t rowsInTurn = 128; ///< that are looked at in a direction
constexpr std::uint16_t mostLanes = std::numeric_limits<std::uint16_t>::max();

} // namespace

CallSearch::CallSearch(const Timeline& timeline, std::shared_ptr<const RowOrder> order,
                       std::string id, timeline::Moment around)
    : order_(std::move(order)), id_(std::move(id)), around_(around)
{
    beginAnew(timeline);
}

void CallSearch::beginAnew(const Timeline& timeline)
{
    hasCalls_ = sourcesWithCalls(timeline);
    begin_ = end_ = order_->firstFrom(timeline, around_);
    down_ = order_->from(timeline, begin_);
    before_.clear();
    behind_.clear();
}

void CallSearch::growTo(const Timeline& timeline, std::shared_ptr<const RowOrder> order,
                        std::size_t same)
{
    order_ = std::move(order);
    if (same < begin_) return beginAnew(timeline);
    hasCalls_ = sourcesWithCalls(timeline);
    // Rows of other numbers are looked at again: those that came stand among them.
    const auto isSame = [same](const Found& found) { return found.number < same; };
    before_.erase(before_.begin(), std::find_if(before_.begin(), before_.end(), isSame));
    behind_.erase(std::find_if_not(behind_.begin(), behind_.end(), isSame), behind_.end());
    end_ = std::min(end_, same);
    down_ = order_->from(timeline, end_);
}

bool CallSearch::isDone() const
{
    return (begin_ == 0 && end_ == order_->size()) || count() >= mostRows;
}

bool CallSearch::goOn(const Timeline& timeline, std::chrono::steady_clock::time_point until)
{
    while (!isDone()) {
        lookDown(timeline);
        lookUp(timeline);
        if (std::chrono::steady_clock::now() >= until) break;
    }
    return isDone();
}

void CallSearch::lookDown(const Timeline& timeline)
{
    const std::size_t end = std::min(end_ + rowsInTurn, order_->size());
    for (; end_ < end; ++end_)
        if (const auto found = look(timeline, *down_->next())) behind_.push_back({*found, end_});
}

/// Rows are walked downwards in either direction.
void CallSearch::lookUp(const Timeline& timeline)
{
    const std::size_t first = begin_ - std::min(begin_, rowsInTurn);
    RowOrder::Walk walk = order_->from(timeline, first);
    block_.clear();
    for (std::size_t row = first; row < begin_; ++row)
        if (const auto found = look(timeline, *walk.next())) block_.push_back({*found, row});
    before_.insert(before_.end(), block_.rbegin(), block_.rend());
    begin_ = first;
}

std::optional<CallRow> CallSearch::look(const Timeline& timeline, const IndexRow& row)
{
    if (row.belongsToRowBefore() || !hasCalls_[row.source()]) return std::nullopt;
    try {
        timeline.record(row, record_);
    } catch (const RunTimeError&) {
        return std::nullopt; // the row itself tells why, wherever it is shown
    }
    if (record_.callId.empty() || valueOf(record_, Column::callId) != id_) return std::nullopt;
    std::string process = valueOf(record_, Column::process);
    auto lane = lanes_.find(process);
    if (lane == lanes_.end()) {
        // More processes than there are numbers share the last lane.
        const auto number =
            static_cast<std::uint16_t>(std::min<std::size_t>(processes_.size(), mostLanes));
        if (processes_.size() <= mostLanes) processes_.push_back(process);
        lane = lanes_.emplace(std::move(process), number).first;
    }
    return CallRow{row, lane->second, severityOf(record_)};
}

CallRows CallSearch::rows() const
{
    CallRows found;
    found.id = id_;
    found.rows.reserve(count());
    for (auto at = before_.rbegin(); at != before_.rend(); ++at) found.rows.push_back(at->row);
    for (const Found& each : behind_) found.rows.push_back(each.row);
    // A lane's number is that of its process among those whose rows were found, until all are put
    // in order.
    constexpr std::size_t unknown = std::numeric_limits<std::size_t>::max();
    std::vector<std::size_t> places(processes_.size(), unknown);
    for (CallRow& row : found.rows) {
        std::size_t& place = places[row.lane];
        if (place == unknown) {
            place = found.lanes.size();
            found.lanes.push_back(processes_[row.lane]);
        }
        row.lane = static_cast<std::uint16_t>(place);
    }
    const std::size_t all = order_->size();
    found.complete = isDone();
    found.leftOut = found.complete && end_ - begin_ < all;
    found.share = all == 0 ? 1.0 : static_cast<double>(end_ - begin_) / static_cast<double>(all);
    return found;
}

} // namespace viewer
