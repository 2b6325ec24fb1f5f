#include "hosts/viewer/document/shared_timeline.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace viewer {

namespace {

unsigned readingThreads()
{
    return std::max(std::thread::hardware_concurrency(), 1U);
}

} // namespace

void SharedTimeline::add(std::vector<std::unique_ptr<timeline::Source>> sources)
{
    const std::lock_guard lock(turn_);
    reading_.reset();
    for (auto& source : sources) timeline_.add(std::move(source));
    reading_ = std::make_unique<timeline::BackgroundReading>(timeline_, timeline::Filter(),
                                                             readingThreads());
}

void SharedTimeline::use(const Look& looking)
{
    const std::lock_guard lock(turn_);
    if (reading_)
        reading_->look(looking);
    else
        looking(timeline_);
}

void SharedTimeline::look(const Look& looking)
{
    ++lookers_;
    struct Gone {
        std::atomic<int>& lookers;
        ~Gone()
        {
            --lookers;
            lookers.notify_all();
        }
    } const gone{lookers_};
    use(looking);
}

void SharedTimeline::work(const Look& step)
{
    for (int lookers = lookers_; lookers > 0; lookers = lookers_) lookers_.wait(lookers);
    const auto begin = std::chrono::steady_clock::now();
    use(step);
    const auto taken = std::chrono::steady_clock::now() - begin;
    if (!state().ended) std::this_thread::sleep_for(taken);
}

timeline::BackgroundReading::State SharedTimeline::state() const
{
    const std::lock_guard lock(turn_);
    if (reading_) return reading_->state();
    timeline::BackgroundReading::State none;
    none.ended = true;
    return none;
}

void SharedTimeline::cancel()
{
    const std::lock_guard lock(turn_);
    if (reading_) reading_->cancel();
}

} // namespace viewer
