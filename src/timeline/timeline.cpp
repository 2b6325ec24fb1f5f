#include "timeline/timeline.h"

#include "runtime/run_time_error.h"
#include "timeline/index/nearly_sorted.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <thread>

namespace timeline {

namespace {

struct IsEarlier {
    bool operator()(const IndexRow& one, const IndexRow& other) const
    {
        return one.moment != other.moment ? one.moment < other.moment : one.line < other.line;
    }
};

} // namespace

/// A source with the rows that were read of it.
struct Timeline::Part {
    std::unique_ptr<Source> source;
    SourceRows rows;
    std::uint32_t lastLine = 0;
    bool withdrawn = false;

    /// Adds rows behind the others, in the order in which they were read.
    void add(const IndexRow& row)
    {
        lastLine = std::max(lastLine, row.line);
        rows.push_back(row);
    }

    /// Reads on, and gives the sentence of what the source raised.
    std::string read(SourceNumber number, const Filter& filter, Progress& progress)
    {
        const std::size_t before = rows.size();
        std::string failure;
        try {
            source->read(filter, rows, progress);
        } catch (const RunTimeError& error) {
            failure = error.description();
        }
        for (std::size_t at = before; at < rows.size(); ++at) {
            rows[at].stand(number, rows[at].placeInSource());
            lastLine = std::max(lastLine, rows[at].line);
        }
        sortFrom(before);
        return failure;
    }

    /// Puts the rows from one on, which the last reading added, in their place among all.
    void sortFrom(std::size_t before)
    {
        const auto added = rows.begin() + static_cast<std::ptrdiff_t>(before);
        const IsEarlier isEarlier;
        sortNearlySorted(added, rows.end(), isEarlier);
        if (added == rows.begin() || added == rows.end() || !isEarlier(*added, added[-1])) return;
        const auto first = std::upper_bound(rows.begin(), added, *added, isEarlier);
        std::inplace_merge(first, added, rows.end(), isEarlier);
    }
};

Timeline::Timeline()
    : ahead_([this](SourceNumber number) -> Source& { return *parts_[number].source; })
{}
Timeline::~Timeline() = default;

void Timeline::add(std::unique_ptr<Source> source)
{
    if (parts_.size() == mostSources)
        throw RunTimeError(runTimeErrors::outOfMemory,
                           "no more than " + std::to_string(mostSources) + " logs can be read");
    parts_.emplace_back().source = std::move(source);
}

std::size_t Timeline::sourceCount() const
{
    return parts_.size();
}

Source& Timeline::source(std::size_t number) const
{
    return *parts_[number].source;
}

const SourceRows& Timeline::rowsOf(std::size_t number) const
{
    return parts_[number].rows;
}

void Timeline::read(const Filter& filter, Progress& progress, unsigned threads)
{
    ahead_.clear();
    progress.spareThread = threads > parts_.size();
    std::atomic<std::size_t> next{0};
    std::mutex telling;
    const auto work = [&] {
        for (std::size_t at = next++; at < parts_.size() && !progress.cancelled; at = next++) {
            std::string failure = parts_[at].read(static_cast<SourceNumber>(at), filter, progress);
            if (failure.empty()) continue;
            const std::lock_guard lock(telling);
            failures_.push_back(std::move(failure));
        }
    };
    std::vector<std::jthread> others;
    for (std::size_t at = 1; at < std::min<std::size_t>(threads, parts_.size()); ++at)
        others.emplace_back(work);
    work();
}

void Timeline::readOn(std::size_t number, const Filter& filter, Progress& progress,
                      std::vector<IndexRow>& rows)
{
    SourceRows read;
    const auto append = [&] {
        for (IndexRow& row : read) {
            row.stand(static_cast<SourceNumber>(number), row.placeInSource());
            rows.push_back(row);
        }
    };
    try {
        parts_[number].source->read(filter, read, progress);
    } catch (const RunTimeError&) {
        append();
        throw;
    }
    append();
}

void Timeline::keep(const std::vector<IndexRow>& rows)
{
    std::map<SourceNumber, std::size_t> before; ///< rows of each source that has some of these
    for (const IndexRow& row : rows) {
        Part& part = parts_[row.source()];
        before.try_emplace(row.source(), part.rows.size());
        part.add(row);
    }
    for (const auto& [source, size] : before) parts_[source].sortFrom(size);
}

std::uint32_t Timeline::lastLineOf(std::size_t number) const
{
    return parts_[number].lastLine;
}

void Timeline::withdraw(std::size_t number)
{
    parts_[number].withdrawn = true;
}

bool Timeline::isWithdrawn(std::size_t number) const
{
    return parts_[number].withdrawn;
}

void Timeline::exchange(std::size_t number, std::unique_ptr<Source> source)
{
    ahead_.clear();
    parts_[number] = Part();
    parts_[number].source = std::move(source);
}

void Timeline::forgetRows()
{
    ahead_.clear();
    for (Part& part : parts_) SourceRows().swap(part.rows);
}

std::size_t Timeline::size() const
{
    std::size_t rows = 0;
    for (const Part& part : parts_) rows += part.rows.size();
    return rows;
}

void Timeline::record(const IndexRow& row, Record& record) const
{
    Source& source = *parts_[row.source()].source;
    if (const auto line = ahead_.line(row)) {
        source.recordOfLine(row, *line, record);
        return;
    }
    const auto known = std::find(quick_.begin(), quick_.end(), row.source());
    if (known == quick_.end()) {
        if (quick_.size() == mostQuickSources) {
            parts_[quick_.front()].source->letGo();
            quick_.erase(quick_.begin());
        }
        quick_.push_back(row.source());
    } else if (known + 1 != quick_.end()) {
        std::rotate(known, known + 1, quick_.end());
    }
    source.record(row, record);
}

std::size_t Timeline::rowsAhead() const
{
    return parts_.size() > mostQuickSources ? ahead_.usualCount() : 0;
}

void Timeline::expect(const std::vector<const IndexRow*>& rows) const
{
    ahead_.expect(rows);
}

Timeline::Cursor Timeline::begin() const
{
    return Cursor(*this, noMoment);
}

Timeline::Cursor Timeline::from(Moment moment) const
{
    return Cursor(*this, moment);
}

Timeline::Cursor::Cursor(const Timeline& timeline, Moment moment)
    : timeline_(&timeline), positions_(timeline.parts_.size())
{
    for (std::size_t source = 0; source < positions_.size(); ++source) {
        const SourceRows& rows = timeline.parts_[source].rows;
        const auto first = std::partition_point(
            rows.begin(), rows.end(), [&](const IndexRow& row) { return row.moment < moment; });
        positions_[source] = static_cast<std::size_t>(first - rows.begin());
        if (first != rows.end())
            heads_.push_back({first->moment, static_cast<std::uint32_t>(source)});
    }
    std::make_heap(heads_.begin(), heads_.end(), isLater);
}

bool Timeline::Cursor::isLater(const Head& one, const Head& other)
{
    return one.moment != other.moment ? one.moment > other.moment : one.source > other.source;
}

const IndexRow* Timeline::Cursor::next()
{
    if (heads_.empty()) return nullptr;
    Head& first = heads_.front();
    const SourceRows& rows = timeline_->parts_[first.source].rows;
    std::size_t& position = positions_[first.source];
    const IndexRow& row = rows[position++];
    const bool atEnd = position == rows.size();
    if (!atEnd && rows[position].moment == first.moment) return &row;
    if (heads_.size() == 1) {
        if (atEnd)
            heads_.clear();
        else
            first.moment = rows[position].moment;
        return &row;
    }
    std::pop_heap(heads_.begin(), heads_.end(), isLater);
    if (atEnd) {
        heads_.pop_back();
    } else {
        heads_.back().moment = rows[position].moment;
        std::push_heap(heads_.begin(), heads_.end(), isLater);
    }
    return &row;
}

} // namespace timeline
