#pragma once

#include <chrono>
#include <functional>
#include <utility>

/// How long statements wait, all together, while another program holds their database.
///
/// The tool logs a failed statement and goes on with the next, so that a wait for each would add up
/// to minutes. Statements that follow each other closely are one run and share one patience; after
/// a pause, such as a person's between two actions, there is a new one. A program that does one
/// thing and ends is one run throughout.
class LockPatience {
public:
    using Clock = std::chrono::steady_clock;

    /// How long a person watches a program that waits before the program says so.
    static constexpr std::chrono::seconds untilNotice{1};

    explicit LockPatience(std::chrono::milliseconds whole) : whole_(whole), left_(whole) {}

    LockPatience(const LockPatience&) = delete;
    LockPatience& operator=(const LockPatience&) = delete;

    /// No pause brings a new patience any more.
    void holdForOneRun() { oneRun_ = true; }

    /// `listener` hears of each run that has waited for `untilNotice`, once.
    void onLongWait(std::function<void()> listener) { listener_ = std::move(listener); }

    /// Notes that a statement begins.
    void begin();

    /// Waits a little, the longer the more `tries` there were; false, at once, when the run's
    /// patience has come to its end.
    bool wait(int tries);

    std::chrono::milliseconds whole() const { return whole_; }

private:
    std::chrono::milliseconds whole_;
    Clock::duration left_;
    bool oneRun_ = false;
    bool told_ = false; ///< the listener has heard of this run
    std::function<void()> listener_;
    Clock::time_point latest_ = Clock::now(); ///< when a statement of the run was last at work
};
