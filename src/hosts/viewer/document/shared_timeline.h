#pragma once

#include "timeline/background_reading.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace viewer {

/// A timeline that several threads use in turn: it is read on one of its own, another shows its
/// rows, others ask all of them something.
class SharedTimeline {
public:
    using Look = std::function<void(const timeline::Timeline&)>;

    /// Adds sources behind the others, and reads them; the rows that are there stay. Gives the
    /// number of the first.
    std::size_t add(std::vector<std::unique_ptr<timeline::Source>> sources);

    /// Calls with the rows so far, before anybody who waits in `work`. For the thread that shows
    /// rows.
    void look(const Look& looking);

    /// The same for a short step of something that takes many, once nobody wishes to look. Those
    /// who work take turns, a step each. While the timeline is read, half of the time is left to
    /// that.
    void work(const Look& step);

    /// Calls with the timeline itself for a short change, once nobody wishes to look. False,
    /// without the call, while the timeline is read.
    bool change(const std::function<void(timeline::Timeline&)>& step);

    /// How often sources were added.
    std::size_t additions() const { return additions_; }

    /// Whether a last line that has no end waits until it is whole, in sources that are added.
    void holdBackHalfLines(bool hold) { holdsBack_ = hold; }

    /// For whoever counts rows, in `look`, `work` or `change`: what he holds for as long as he may
    /// ask for those that were there.
    std::shared_ptr<const void> hold() const { return held_; }

    /// Withdraws the rows of a source, in `change`. Nobody asks for them any more once what this
    /// gives has expired.
    std::weak_ptr<const void> withdraw(timeline::Timeline& timeline, std::size_t number);

    /// How far the reading is; ended where there was none. Waits for nobody.
    timeline::BackgroundReading::State state() const;

    /// Ends the reading after a row; the rows so far stay. Waits for nobody.
    void cancel();

private:
    class Turn;
    class Step;

    void use(const Look& looking);
    std::shared_ptr<timeline::BackgroundReading> reading() const;

    timeline::Timeline timeline_;
    std::shared_ptr<const void> held_ = std::make_shared<int>();
    std::atomic<std::size_t> additions_{0};
    std::atomic<bool> holdsBack_{false};
    std::mutex turn_;                         ///< whoever holds it may use the timeline
    std::atomic<int> lookers_{0};             ///< that have the turn before those who work
    std::atomic<std::uint64_t> steps_{0};     ///< that were wished for
    std::atomic<std::uint64_t> stepsDone_{0}; ///< the number of the one whose turn it is
    mutable std::mutex keeping_;              ///< of the pointer
    std::shared_ptr<timeline::BackgroundReading> reading_;
};

} // namespace viewer
