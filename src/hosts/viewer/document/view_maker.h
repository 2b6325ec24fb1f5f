#pragma once

#include "hosts/viewer/document/row_asking.h"
#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/document/view.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace viewer {

/// Makes views of a timeline on a thread of its own, and counts what they show.
///
/// All that takes long is done here in steps of some milliseconds, between which the rows are free
/// for whoever shows them. A view of a choice comes in parts, the first rows at once.
class ViewMaker {
public:
    /// What a view is asked for.
    struct Wish {
        std::uint64_t number = 0; ///< by which its view is known
        bool anew = false;        ///< of the rows that are there now, instead of those of the last
                                  ///< view
        timeline::Choice choice;  ///< one that makes sense
    };

    /// Are called on the maker's thread: with each view, and with the counts of the last complete
    /// one. Counts of a view may come more than once, as more becomes known of its rows.
    struct Told {
        std::function<void(std::shared_ptr<const View>)> view;
        std::function<void(std::shared_ptr<const RowCounts>)> counts;
    };

    /// The timeline outlives the maker.
    ViewMaker(SharedTimeline& timeline, Told told);
    ~ViewMaker();

    /// Makes a view. One that is being made is given up, and its wish with it but for `anew`.
    void make(Wish wish);

    /// Makes a view of the last wish with rows that were kept since, once the one that is being
    /// made is told. It takes as long as those rows do, however many there were.
    void grow();

private:
    void run(const std::stop_token& stop);
    bool waitForWish(const std::stop_token& stop);
    void learnNames(const std::stop_token& stop);
    std::shared_ptr<const RowOrder> makeOrder(const std::stop_token& stop);
    void growOrder(const std::stop_token& stop);
    bool growView(const std::stop_token& stop);
    std::shared_ptr<RowOrder> held(std::unique_ptr<RowOrder> order) const;
    bool makeView(const std::stop_token& stop, bool countsAlone);
    void tell(const RowAsking* asking, bool complete,
              std::optional<std::size_t> same = std::nullopt);
    bool isGivenUp(const std::stop_token& stop) const;
    bool isToGrow() const;

    SharedTimeline& timeline_;
    Told told_;
    mutable std::mutex wishing_; ///< of the wishes
    std::condition_variable_any asked_;
    std::optional<Wish> wish_;
    bool grow_ = false; ///< whether a grown view is wished for
    // What follows is the thread's own.
    Wish last_; ///< that is being answered, or was
    std::shared_ptr<const RowOrder> order_;
    RowNames names_;
    bool namesKnown_ = true;            ///< of all rows of the order
    bool grows_ = false;                ///< whether what is being answered is a wish to grow
    std::unique_ptr<RowAsking> asking_; ///< that asked all rows of the order; null for none
    std::jthread thread_;
};

} // namespace viewer
