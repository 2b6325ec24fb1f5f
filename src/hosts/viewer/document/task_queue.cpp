#include "hosts/viewer/document/task_queue.h"

#include <utility>

namespace viewer {

TaskQueue::TaskQueue() : thread_([this](const std::stop_token& stop) { run(stop); }) {}

TaskQueue::~TaskQueue() = default;

void TaskQueue::add(std::function<void()> task)
{
    const std::lock_guard lock(asking_);
    tasks_.push_back(std::move(task));
    asked_.notify_all();
}

void TaskQueue::run(const std::stop_token& stop)
{
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock lock(asking_);
            if (!asked_.wait(lock, stop, [this] { return !tasks_.empty(); })) return;
            task = std::move(tasks_.front());
            tasks_.pop_front();
        }
        task();
    }
}

} // namespace viewer
