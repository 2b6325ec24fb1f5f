#include "hosts/viewer/document/row_order.h"

#include <algorithm>

namespace viewer {

namespace {

using timeline::IndexRow;
using timeline::Moment;
using timeline::Timeline;

constexpr std::size_t leastStride = 1024;

} // namespace

RowOrder::RowOrder(const Timeline& timeline)
    : limits_(timeline.sourceCount()), lastLines_(limits_.size()), positions_(limits_.size())
{
    for (std::size_t source = 0; source < limits_.size(); ++source) {
        if (timeline.isWithdrawn(source)) continue;
        limits_[source] = static_cast<std::uint32_t>(timeline.rowsOf(source).size());
        lastLines_[source] = timeline.lastLineOf(source);
        size_ += limits_[source];
    }
    setStride();
    heads_ = Walk(timeline, *this, positions_).heads_;
}

RowOrder::RowOrder(const RowOrder& before, const Timeline& timeline)
    : limits_(before.limits_), lastLines_(before.lastLines_)
{
    limits_.resize(timeline.sourceCount());
    lastLines_.resize(limits_.size());
    positions_.resize(limits_.size());
    for (std::size_t source = 0; source < limits_.size(); ++source) {
        if (!timeline.isWithdrawn(source)) {
            limits_[source] = static_cast<std::uint32_t>(timeline.rowsOf(source).size());
            lastLines_[source] = timeline.lastLineOf(source);
        }
        size_ += limits_[source];
    }
    findGrowth(before, timeline);
    setStride();
    if (stride_ <= 2 * before.stride_) takeNotes(before);
    heads_ = Walk(timeline, *this, positions_).heads_;
}

void RowOrder::setStride()
{
    const std::size_t notes =
        mostNotes / (sizeof(std::uint32_t) * std::max<std::size_t>(1, limits_.size()));
    stride_ = std::max(leastStride, size_ / std::max<std::size_t>(1, notes));
}

/// Looks for the new rows of each source from its last row on: most, and often all of them, stand
/// behind those that it had.
void RowOrder::findGrowth(const RowOrder& before, const Timeline& timeline)
{
    growth_.firstOfSource = limits_;
    std::optional<Head> first; ///< of all new rows
    for (std::uint32_t source = 0; source < limits_.size(); ++source) {
        const std::uint32_t known = source < before.limits_.size() ? before.limits_[source] : 0;
        const timeline::SourceRows& rows = timeline.rowsOf(source);
        std::uint32_t& at = growth_.firstOfSource[source];
        for (std::uint32_t left = limits_[source] - known; left > 0;)
            if (!before.has(rows[--at])) --left;
        if (at == limits_[source]) continue;
        const Head head{rows[at].moment, source};
        if (!first || head < *first) first = head;
    }
    growth_.same = growth_.sameWhole = size_;
    if (!first) return;
    // No new row stands before it, so that what does is the same as it was.
    std::uint32_t position = growth_.firstOfSource[first->source];
    growth_.same = position;
    for (std::uint32_t source = 0; source < limits_.size(); ++source)
        if (source != first->source)
            growth_.same += countBefore(timeline, source, first->moment, source < first->source);
    growth_.sameWhole = growth_.same;
    const timeline::SourceRows& rows = timeline.rowsOf(first->source);
    for (; position > 0 && rows[position].belongsToRowBefore(); --position) --growth_.sameWhole;
}

/// Takes the notes over up to the one before the first new row, and goes on from there.
void RowOrder::takeNotes(const RowOrder& before)
{
    stride_ = before.stride_;
    const std::size_t sources = before.limits_.size();
    if (sources == 0 || before.notes_.empty()) return;
    const std::size_t last = std::min(growth_.same / stride_, before.notes_.size() / sources - 1);
    const auto note = [&](std::size_t number) {
        return before.notes_.begin() + static_cast<std::ptrdiff_t>(number * sources);
    };
    notes_.reserve((last + 2) * limits_.size());
    if (sources == limits_.size()) {
        notes_.assign(note(0), note(last));
    } else {
        for (std::size_t number = 0; number < last; ++number) {
            notes_.insert(notes_.end(), note(number), note(number + 1));
            notes_.resize((number + 1) * limits_.size()); // none of the new sources' rows
        }
    }
    std::copy(note(last), note(last + 1), positions_.begin());
    built_ = last * stride_;
}

bool RowOrder::build(const Timeline& timeline, std::size_t rows)
{
    Walk walk(timeline, *this, std::move(positions_), std::move(heads_));
    const std::size_t end = std::min(size_, built_ + rows);
    for (; built_ < end; ++built_) {
        if (built_ % stride_ == 0)
            notes_.insert(notes_.end(), walk.positions_.begin(), walk.positions_.end());
        walk.next();
    }
    positions_ = std::move(walk.positions_);
    heads_ = std::move(walk.heads_);
    if (built_ < size_) return false;
    std::vector<std::uint32_t>().swap(positions_);
    std::vector<Head>().swap(heads_);
    return true;
}

RowOrder::Walk RowOrder::from(const Timeline& timeline, std::size_t row) const
{
    const std::size_t note = row < size_ ? row / stride_ : size_ / stride_;
    const auto sources = static_cast<std::ptrdiff_t>(limits_.size());
    const auto first = notes_.begin() + static_cast<std::ptrdiff_t>(note) * sources;
    if (notes_.end() - first < sources) return Walk(timeline, *this, limits_);
    Walk walk(timeline, *this, {first, first + sources});
    for (std::size_t at = note * stride_; at < row; ++at) walk.next();
    return walk;
}

/// How many rows of a source stand before a moment, or at it.
std::size_t RowOrder::countBefore(const Timeline& timeline, std::uint32_t source, Moment moment,
                                  bool orAt) const
{
    const timeline::SourceRows& rows = timeline.rowsOf(source);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(limits_[source]);
    const auto first = std::partition_point(rows.begin(), end, [&](const IndexRow& row) {
        return row.moment < moment || (orAt && row.moment == moment);
    });
    return static_cast<std::size_t>(first - rows.begin());
}

std::size_t RowOrder::firstFrom(const Timeline& timeline, Moment moment) const
{
    std::size_t before = 0;
    for (std::uint32_t source = 0; source < limits_.size(); ++source)
        before += countBefore(timeline, source, moment, false);
    return before;
}

std::optional<std::size_t> RowOrder::find(const Timeline& timeline, const IndexRow& row) const
{
    if (row.source() >= limits_.size()) return std::nullopt;
    const timeline::SourceRows& rows = timeline.rowsOf(row.source());
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(limits_[row.source()]);
    const auto stands = [](const IndexRow& one) { return std::pair(one.moment, one.line); };
    // A moment may have millions of rows, as that of a log without times has; a line has one, but
    // where there are no lines.
    auto at = std::partition_point(
        rows.begin(), end, [&](const IndexRow& other) { return stands(other) < stands(row); });
    while (at != end && stands(*at) == stands(row) && at->place != row.place) ++at;
    if (at == end || at->place != row.place) return std::nullopt;
    auto before = static_cast<std::size_t>(at - rows.begin());
    for (std::uint32_t source = 0; source < limits_.size(); ++source)
        if (source != row.source())
            before += countBefore(timeline, source, row.moment, source < row.source());
    return before;
}

std::optional<std::pair<Moment, Moment>> RowOrder::span(const Timeline& timeline) const
{
    std::optional<std::pair<Moment, Moment>> span;
    for (std::uint32_t source = 0; source < limits_.size(); ++source) {
        const std::size_t first = countBefore(timeline, source, timeline::noMoment, true);
        if (first == limits_[source]) continue;
        const timeline::SourceRows& rows = timeline.rowsOf(source);
        const Moment from = rows[first].moment;
        const Moment to = rows[limits_[source] - 1].moment;
        if (!span)
            span.emplace(from, to);
        else
            span.emplace(std::min(span->first, from), std::max(span->second, to));
    }
    return span;
}

RowOrder::Walk::Walk(const Timeline& timeline, const RowOrder& order,
                     std::vector<std::uint32_t> positions)
    : timeline_(&timeline), order_(&order), positions_(std::move(positions))
{
    for (std::uint32_t source = 0; source < positions_.size(); ++source)
        if (positions_[source] < order.limits_[source])
            heads_.push_back({timeline.rowsOf(source)[positions_[source]].moment, source});
    // What is sorted is a heap.
    std::sort(heads_.begin(), heads_.end());
}

const IndexRow* RowOrder::Walk::peek() const
{
    if (heads_.empty()) return nullptr;
    const std::uint32_t source = heads_.front().source;
    return &timeline_->rowsOf(source)[positions_[source]];
}

const IndexRow* RowOrder::Walk::next()
{
    if (heads_.empty()) return nullptr;
    Head& first = heads_.front();
    const timeline::SourceRows& rows = timeline_->rowsOf(first.source);
    position_ = positions_[first.source];
    const IndexRow& row = rows[position_];
    if (++positions_[first.source] == order_->limits_[first.source]) {
        first = heads_.back();
        heads_.pop_back();
    } else {
        first.moment = rows[positions_[first.source]].moment;
    }
    sink();
    return &row;
}

/// Puts the first head where it belongs: mostly it stays, as a source has many rows of one moment.
void RowOrder::Walk::sink()
{
    for (std::size_t at = 0;;) {
        std::size_t least = at;
        for (const std::size_t child : {2 * at + 1, 2 * at + 2})
            if (child < heads_.size() && heads_[child] < heads_[least]) least = child;
        if (least == at) return;
        std::swap(heads_[at], heads_[least]);
        at = least;
    }
}

} // namespace viewer
