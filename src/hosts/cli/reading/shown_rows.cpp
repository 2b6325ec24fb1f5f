#include "hosts/cli/reading/shown_rows.h"

#include "timeline/index/nearly_sorted.h"

#include <algorithm>
#include <limits>
#include <map>

namespace cli {

namespace {

using timeline::Filter;
using timeline::IndexRow;
using timeline::Moment;
using timeline::Record;
using timeline::SourceRows;
using timeline::Timeline;

struct StandsEarlier {
    bool operator()(const IndexRow& one, const IndexRow& other) const
    {
        return one.line != other.line ? one.line < other.line : one.place < other.place;
    }
};

/// Lets rows through with the lines that belong to them, as a source does that has the filter.
class RowSieve {
public:
    RowSieve(const Timeline& timeline, const Filter& filter, std::vector<IndexRow>& chosen)
        : timeline_(timeline), filter_(filter), chosen_(chosen)
    {}

    void add(const IndexRow& row)
    {
        timeline_.record(row, record_);
        if (!row.belongsToRowBefore() || !open_ || row.source() != source_) begin(row);
        if (!taken_) return;
        search_->look(record_.whole.empty() ? record_.trace : record_.whole);
        chosen_.push_back(row);
    }

    /// Takes the last row back when its lines lack what is searched for.
    void finish()
    {
        if (open_ && taken_ && !search_->fits()) chosen_.resize(begin_);
        open_ = false;
    }

private:
    void begin(const IndexRow& row)
    {
        finish();
        open_ = true;
        source_ = row.source();
        begin_ = chosen_.size();
        taken_ = filter_.takesFields(record_);
        search_ = &searches_.try_emplace(record_.codePage, filter_, record_.codePage).first->second;
        search_->begin();
    }

    const Timeline& timeline_;
    const Filter& filter_;
    std::vector<IndexRow>& chosen_;
    std::map<const CodePage*, Filter::Search> searches_;
    Filter::Search* search_ = nullptr;
    Record record_;
    timeline::SourceNumber source_ = 0;
    std::size_t begin_ = 0;
    bool open_ = false;
    bool taken_ = false;
};

/// The earliest that a row can have which a source has not read yet, as the stamps of a log go back
/// by less than a second; the end of time for a source that was read to its end.
Moment earliestUnread(const SourceRows& rows, std::size_t enough)
{
    if (rows.size() < enough) return std::numeric_limits<Moment>::max();
    const Moment last = rows.back().moment;
    return last == timeline::noMoment ? last : last - last % 1000;
}

} // namespace

ShownRows::ShownRows(const Timeline& timeline) : timeline_(timeline), count_(timeline.size()) {}

/// Puts the rows of a log that stands alone in its own order, unless time has the same one. A trace
/// database holds the logs of several processes, one behind the other: it goes by time.
void ShownRows::orderByLog() const
{
    if (chosen_ || timeline_.sourceCount() != 1) return;
    if (timeline_.source(0).facts().kind == timeline::SourceKind::traceDatabase) return;
    const SourceRows& rows = timeline_.rowsOf(0);
    if (std::is_sorted(rows.begin(), rows.end(), StandsEarlier())) return;
    chosen_.emplace(rows.begin(), rows.end());
    timeline::sortNearlySorted(chosen_->begin(), chosen_->end(), StandsEarlier());
}

void ShownRows::choose(const Filter& filter)
{
    std::vector<IndexRow> chosen;
    RowSieve sieve(timeline_, filter, chosen);
    Walk rows = walk();
    while (const IndexRow* row = rows.next())
        if (filter.takesMoment(row->moment)) sieve.add(*row);
    sieve.finish();
    chosen_ = std::move(chosen);
    skipped_ = 0;
    count_ = chosen_->size();
}

void ShownRows::keepFirst(std::size_t count)
{
    count_ = std::min(count_, count);
}

void ShownRows::keepLast(std::size_t count)
{
    if (count_ <= count) return;
    skipped_ += count_ - count;
    count_ = count;
}

ShownRows::Walk::Walk(const ShownRows& rows) : rows_(rows), left_(rows.count_)
{
    rows.orderByLog();
    if (rows.chosen_ || rows.timeline_.sourceCount() == 1) {
        position_ = rows.skipped_;
        return;
    }
    cursor_ = rows.timeline_.begin();
    for (std::size_t skipped = 0; skipped < rows.skipped_; ++skipped) cursor_->next();
}

const IndexRow* ShownRows::Walk::step()
{
    if (cursor_) return cursor_->next();
    if (rows_.chosen_) return &(*rows_.chosen_)[position_++];
    return &rows_.timeline_.rowsOf(0)[position_++];
}

const IndexRow* ShownRows::Walk::next()
{
    if (left_ == 0) return nullptr;
    --left_;
    return stepAhead();
}

/// Tells the timeline which rows come, where that makes it read them faster.
const IndexRow* ShownRows::Walk::stepAhead()
{
    if (nextAhead_ < ahead_.size()) return ahead_[nextAhead_++];
    const std::size_t count = std::min(rows_.timeline_.rowsAhead(), left_ + 1);
    if (count == 0) return step();
    ahead_.clear();
    while (ahead_.size() < count) ahead_.push_back(step());
    rows_.timeline_.expect(ahead_);
    nextAhead_ = 1;
    return ahead_.front();
}

Moment lastMomentOf(const Timeline& timeline)
{
    Moment last = timeline::noMoment;
    for (std::size_t source = 0; source < timeline.sourceCount(); ++source)
        if (const SourceRows& rows = timeline.rowsOf(source); !rows.empty())
            last = std::max(last, rows.back().moment);
    return last;
}

void readFirstRows(Timeline& timeline, const Filter& filter, timeline::Progress& progress,
                   std::size_t count)
{
    constexpr std::size_t fewest = 256;
    for (progress.enough = std::max(count, fewest);; progress.enough *= 2) {
        timeline.read(filter, progress);
        Moment unread = std::numeric_limits<Moment>::max();
        for (std::size_t source = 0; source < timeline.sourceCount(); ++source)
            unread = std::min(unread, earliestUnread(timeline.rowsOf(source), progress.enough));
        if (unread == std::numeric_limits<Moment>::max() || progress.cancelled) return;
        // A log alone is shown in its own order.
        if (timeline.sourceCount() == 1) return;
        Timeline::Cursor rows = timeline.begin();
        const IndexRow* last = nullptr;
        for (std::size_t at = 0; at < count; ++at) last = rows.next();
        if (last != nullptr && last->moment < unread) return;
    }
}

} // namespace cli
