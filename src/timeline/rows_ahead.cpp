#include "timeline/rows_ahead.h"

#include "runtime/run_time_error.h"
#include "timeline/sources/source.h"

#include <algorithm>
#include <numeric>

namespace timeline {

namespace {

constexpr std::size_t mostBytes = 16U << 20;

bool isSame(const IndexRow& one, const IndexRow& other)
{
    return one.place == other.place && one.line == other.line;
}

} // namespace

void RowsAhead::expect(const std::vector<const IndexRow*>& rows)
{
    rows_.clear();
    for (const IndexRow* row : rows) rows_.push_back(*row);
    lines_.clear();
    next_ = 0;
}

std::optional<std::string_view> RowsAhead::line(const IndexRow& row)
{
    std::size_t at = next_;
    while (at < rows_.size() && !isSame(rows_[at], row)) ++at;
    if (at >= rows_.size()) return std::nullopt;
    next_ = at;
    if (lines_.empty()) readLines();
    ++next_;
    const Line& line = lines_[at];
    if (!line.isRead) return std::nullopt;
    return std::string_view(bytes_).substr(line.begin, line.length);
}

/// Reads the lines from the next row on, by source and place.
void RowsAhead::readLines()
{
    lines_.assign(rows_.size(), {});
    bytes_.clear();
    std::vector<std::size_t> order(rows_.size() - next_);
    std::iota(order.begin(), order.end(), next_);
    std::sort(order.begin(), order.end(), [this](std::size_t one, std::size_t other) {
        return rows_[one].place < rows_[other].place;
    });
    Source* source = nullptr;
    for (const std::size_t at : order) {
        Source& itsSource = sourceOf_(rows_[at].source());
        if (source != nullptr && source != &itsSource) source->letGo();
        source = &itsSource;
        Line& line = lines_[at];
        line.begin = bytes_.size();
        try {
            line.isRead = source->appendLine(rows_[at], bytes_);
        } catch (const RunTimeError&) {
            // Whoever asks for the row reads it again, and is told.
        }
        line.length = bytes_.size() - line.begin;
        if (bytes_.size() > mostBytes) break;
    }
    if (source != nullptr) source->letGo();
    count_ = bytes_.size() > mostBytes ? std::max(fewest, count_ / 2) : std::min(most, count_ * 2);
}

} // namespace timeline
