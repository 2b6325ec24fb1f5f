#include "hosts/viewer/document/hit_finder.h"

#include "hosts/viewer/document/place_walk.h"
#include "hosts/viewer/document/row_line.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

namespace viewer {

namespace {

using Clock = std::chrono::steady_clock;
using timeline::IndexRow;
using timeline::Timeline;

constexpr std::size_t rowsFoundAtOnce = 16; ///< between two looks at the clock
constexpr std::size_t bytesFoundAtOnce = 64 << 10;
constexpr std::chrono::milliseconds stepLength{2};
constexpr std::chrono::milliseconds firstPart{50}; ///< of hits that take longer

/// Looks at the rows on show from a place to the last.
class Looking {
public:
    Looking(std::shared_ptr<const View> view, std::shared_ptr<const timeline::TextPattern> pattern,
            std::size_t place)
        : view_(std::move(view)), pattern_(std::move(pattern)), walk_(*view_, place)
    {}

    /// Goes on behind the hits until a moment; true at the end.
    bool look(const Timeline& timeline, Clock::time_point until, RowSet& hits)
    {
        std::size_t rows = 0;
        bytes_ = 0;
        while (hits.size() < view_->size()) {
            hits.append(hit(timeline, walk_.next(timeline)));
            if (++rows < rowsFoundAtOnce && bytes_ < bytesFoundAtOnce) continue;
            if (Clock::now() >= until) return false;
            rows = 0;
            bytes_ = 0;
        }
        return true;
    }

private:
    bool hit(const Timeline& timeline, const IndexRow& row)
    {
        try {
            timeline.record(row, record_);
        } catch (const RunTimeError&) {
            return false; // the row itself tells why
        }
        bytes_ += std::max(record_.whole.size(), record_.trace.size());
        auto& search = searches_[record_.codePage];
        if (!search) search = pattern_->searchIn(record_.codePage);
        return anyLineOf(record_, room_,
                         [&](std::string_view line) { return search->occursIn(line); });
    }

    std::shared_ptr<const View> view_;
    std::shared_ptr<const timeline::TextPattern> pattern_;
    PlaceWalk walk_;
    timeline::Record record_;
    std::string room_;
    std::size_t bytes_ = 0; ///< that were searched since the last look at the clock
    std::map<const CodePage*, std::unique_ptr<timeline::PatternSearch>> searches_;
};

} // namespace

HitFinder::HitFinder(SharedTimeline& timeline, Told told)
    : timeline_(timeline), told_(std::move(told)),
      thread_([this](const std::stop_token& stop) { run(stop); })
{}

HitFinder::~HitFinder() = default;

void HitFinder::find(Wish wish)
{
    const std::lock_guard lock(asking_);
    // What was never begun has found nothing, but may have gone on from what has.
    if (wish.before && wish_ && wish_->number == wish.before->number) {
        const auto before = wish_->before;
        if (before) wish.before->same = std::min(wish.before->same, before->same);
        if (before)
            wish.before->number = before->number;
        else
            wish.before.reset();
    }
    wish_ = std::move(wish);
    asked_.notify_all();
}

bool HitFinder::isGivenUp(const std::stop_token& stop) const
{
    if (stop.stop_requested()) return true;
    const std::lock_guard lock(asking_);
    return wish_.has_value();
}

void HitFinder::run(const std::stop_token& stop)
{
    for (;;) {
        Wish wish;
        {
            std::unique_lock lock(asking_);
            if (!asked_.wait(lock, stop, [this] { return wish_.has_value(); })) return;
            wish = *std::exchange(wish_, std::nullopt);
        }
        if (stop.stop_requested()) return;
        answer(wish, stop);
    }
}

void HitFinder::answer(const Wish& wish, const std::stop_token& stop)
{
    if (wish.before && wish.before->number == hits_.number)
        hits_.rows.truncate(wish.before->same);
    else
        hits_.rows = RowSet();
    hits_.number = wish.number;
    hits_.complete = false;
    std::unique_ptr<Looking> looking;
    if (wish.pattern && wish.view->order)
        looking = std::make_unique<Looking>(wish.view, wish.pattern, hits_.rows.size());
    auto partLength = firstPart;
    auto nextPart = Clock::now() + partLength;
    while (looking && !hits_.complete) {
        if (isGivenUp(stop)) return;
        timeline_.work([&](const Timeline& rows) {
            hits_.complete = looking->look(rows, Clock::now() + stepLength, hits_.rows);
        });
        if (hits_.complete || Clock::now() < nextPart) continue;
        told_(std::make_shared<Hits>(hits_));
        partLength *= 2;
        nextPart = Clock::now() + partLength;
    }
    hits_.complete = true;
    told_(std::make_shared<Hits>(hits_));
}

} // namespace viewer
