#include "hosts/viewer/document/newest_task.h"

#include <utility>

namespace viewer {

NewestTask::NewestTask() : thread_([this](const std::stop_token& stop) { run(stop); }) {}

NewestTask::~NewestTask() = default;

void NewestTask::start(Task task)
{
    const std::lock_guard lock(asking_);
    task_ = std::move(task);
    asked_.notify_all();
}

void NewestTask::run(const std::stop_token& stop)
{
    const GivenUp givenUp = [this, &stop] {
        if (stop.stop_requested()) return true;
        const std::lock_guard lock(asking_);
        return task_.has_value();
    };
    for (;;) {
        Task task;
        {
            std::unique_lock lock(asking_);
            if (!asked_.wait(lock, stop, [this] { return task_.has_value(); })) return;
            task = *std::exchange(task_, std::nullopt);
        }
        if (stop.stop_requested()) return;
        task(givenUp);
    }
}

} // namespace viewer
