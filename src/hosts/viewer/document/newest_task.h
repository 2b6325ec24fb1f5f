#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace viewer {

/// A thread that does the newest of what it is asked for: what it was asked for before is given up.
class NewestTask {
public:
    /// Tells a task that it is given up, and should end with nothing told.
    using GivenUp = std::function<bool()>;
    using Task = std::function<void(const GivenUp& givenUp)>;

    NewestTask();
    ~NewestTask();

    /// What the task uses outlives the thread.
    void start(Task task);

private:
    void run(const std::stop_token& stop);

    std::mutex asking_; ///< of the task
    std::condition_variable_any asked_;
    std::optional<Task> task_;
    std::jthread thread_;
};

} // namespace viewer
