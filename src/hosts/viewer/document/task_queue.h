#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace viewer {

/// A thread that does all that it is asked for, one after the other. What waits when it ends is
/// still done: it may be a person's work that is to be written.
class TaskQueue {
public:
    TaskQueue();
    ~TaskQueue();

    void add(std::function<void()> task);

private:
    void run(const std::stop_token& stop);

    std::mutex asking_; ///< of the tasks
    std::condition_variable_any asked_;
    std::deque<std::function<void()>> tasks_;
    std::jthread thread_;
};

} // namespace viewer
