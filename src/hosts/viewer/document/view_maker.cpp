#include "hosts/viewer/document/view_maker.h"

#include <chrono>
#include <utility>

namespace viewer {

namespace {

using timeline::Timeline;
using Clock = std::chrono::steady_clock;

/// That are put in order in some five milliseconds. Each step interrupts the reading, which puts
/// what it has read so far in its place then, so that many short ones would keep the first rows
/// waiting.
constexpr std::size_t rowsOfStep = 100'000;
constexpr std::chrono::milliseconds stepLength{2};
constexpr std::chrono::milliseconds firstPart{30}; ///< of a view that takes longer

} // namespace

ViewMaker::ViewMaker(SharedTimeline& timeline, Told told)
    : timeline_(timeline), told_(std::move(told)),
      thread_([this](const std::stop_token& stop) { run(stop); })
{}

ViewMaker::~ViewMaker() = default;

void ViewMaker::make(Wish wish)
{
    const std::lock_guard lock(wishing_);
    wish.anew = wish.anew || (wish_ && wish_->anew);
    wish_ = std::move(wish);
    asked_.notify_all();
}

void ViewMaker::grow()
{
    const std::lock_guard lock(wishing_);
    grow_ = true;
    asked_.notify_all();
}

bool ViewMaker::isToGrow() const
{
    const std::lock_guard lock(wishing_);
    return grow_;
}

bool ViewMaker::isGivenUp(const std::stop_token& stop) const
{
    if (stop.stop_requested()) return true;
    const std::lock_guard lock(wishing_);
    return wish_.has_value();
}

void ViewMaker::run(const std::stop_token& stop)
{
    while (waitForWish(stop)) {
        const bool anew = last_.anew || !order_;
        if (anew) {
            auto order = makeOrder(stop);
            if (!order) {
                // The next wish still needs the order of these rows.
                const std::lock_guard lock(wishing_);
                if (wish_) wish_->anew = true;
                continue;
            }
            order_ = std::move(order);
            asking_.reset();
            namesKnown_ = false;
            timeline_.work([this](const Timeline& rows) { names_.check(rows); });
        } else if (grows_) {
            growOrder(stop);
        }
        last_.anew = false;
        const bool grown = !anew && grows_ && asking_;
        if (grown ? growView(stop) : makeView(stop, false)) learnNames(stop);
    }
}

/// Takes the next wish; false when there will be none.
bool ViewMaker::waitForWish(const std::stop_token& stop)
{
    std::unique_lock lock(wishing_);
    if (!asked_.wait(lock, stop, [this] { return wish_.has_value() || grow_; })) return false;
    grows_ = std::exchange(grow_, false);
    if (wish_) {
        last_ = *std::exchange(wish_, std::nullopt);
        asking_.reset();
    }
    return !stop.stop_requested();
}

/// Learns the names of rows while nothing else is to be done, and counts by them then. What is
/// still read comes with a new wish.
void ViewMaker::learnNames(const std::stop_token& stop)
{
    if (namesKnown_ || !timeline_.state().ended) return;
    for (bool known = false; !known;) {
        if (isGivenUp(stop) || isToGrow()) return;
        timeline_.work([&](const Timeline& rows) { known = names_.learn(rows); });
    }
    namesKnown_ = true;
    makeView(stop, true);
}

/// Null where it was given up.
std::shared_ptr<const RowOrder> ViewMaker::makeOrder(const std::stop_token& stop)
{
    std::shared_ptr<RowOrder> order;
    timeline_.work([&](const Timeline& rows) { order = held(std::make_unique<RowOrder>(rows)); });
    for (bool built = false; !built;) {
        if (isGivenUp(stop)) return nullptr;
        timeline_.work([&](const Timeline& rows) { built = order->build(rows, rowsOfStep); });
    }
    return order;
}

/// The order, for as long as anybody uses it one who holds its rows.
std::shared_ptr<RowOrder> ViewMaker::held(std::unique_ptr<RowOrder> order) const
{
    return {order.release(), [held = timeline_.hold()](const RowOrder* gone) { delete gone; }};
}

/// Adds the rows that came to the order.
void ViewMaker::growOrder(const std::stop_token& stop)
{
    std::shared_ptr<RowOrder> order;
    timeline_.work([&](const Timeline& rows) {
        order = held(std::make_unique<RowOrder>(*order_, rows));
        const auto& first = order->growth().firstOfSource;
        for (std::size_t source = 0; source < first.size(); ++source)
            names_.forgetFrom(rows, source, first[source]);
    });
    for (bool built = false; !built && !stop.stop_requested();)
        timeline_.work([&](const Timeline& rows) { built = order->build(rows, rowsOfStep); });
    if (!stop.stop_requested()) order_ = std::move(order);
}

/// Makes the view and counts of the grown order from those of before; false where it was given up.
bool ViewMaker::growView(const std::stop_token& stop)
{
    std::unique_ptr<RowAsking> asking = std::move(asking_);
    for (bool known = !namesKnown_; !known;) {
        if (isGivenUp(stop)) return false;
        timeline_.work([&](const Timeline& rows) { known = names_.learn(rows); });
    }
    timeline_.work([&](const Timeline& rows) { asking->growTo(rows, order_); });
    for (bool asked = false; !asked;) {
        if (isGivenUp(stop)) return false;
        timeline_.work(
            [&](const Timeline& rows) { asked = asking->ask(rows, Clock::now() + stepLength); });
    }
    const bool everything = timeline::Filter(last_.choice).letsAllThrough();
    tell(everything ? nullptr : asking.get(), true, asking->same());
    told_.counts(std::make_shared<RowCounts>(asking->counts()));
    asking_ = std::move(asking);
    return true;
}

/// Makes the view and its counts, or the counts alone; false where it was given up.
bool ViewMaker::makeView(const std::stop_token& stop, bool countsAlone)
{
    const bool everything = timeline::Filter(last_.choice).letsAllThrough();
    if (everything && !countsAlone) tell(nullptr, true);
    std::unique_ptr<RowAsking> asking;
    timeline_.work([&](const Timeline& rows) {
        asking = std::make_unique<RowAsking>(rows, order_, last_.choice, names_, namesKnown_);
    });
    auto partLength = firstPart;
    auto nextPart = Clock::now() + partLength;
    for (bool asked = false; !asked;) {
        if (isGivenUp(stop)) return false;
        timeline_.work(
            [&](const Timeline& rows) { asked = asking->ask(rows, Clock::now() + stepLength); });
        if (asked || everything || countsAlone || Clock::now() < nextPart) continue;
        tell(asking.get(), false);
        partLength *= 2;
        nextPart = Clock::now() + partLength;
    }
    if (!everything && !countsAlone) tell(asking.get(), true);
    told_.counts(std::make_shared<RowCounts>(asking->counts()));
    asking_ = std::move(asking);
    return true;
}

/// Tells of a view of what was asked so far; of all rows where nothing is. `same` is of one that
/// grew.
void ViewMaker::tell(const RowAsking* asking, bool complete, std::optional<std::size_t> same)
{
    auto view = std::make_shared<View>();
    view->order = order_;
    if (asking != nullptr) view->chosen = asking->taken();
    view->wish = last_.number;
    view->complete = complete;
    if (same) view->grownFrom = view->placeOf(*same);
    told_.view(std::move(view));
}

} // namespace viewer
