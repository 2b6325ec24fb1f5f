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

/// Who is counted here is let before those who work.
class SharedTimeline::Turn {
public:
    explicit Turn(SharedTimeline& timeline) : lookers_(timeline.lookers_)
    {
        ++lookers_;
        lock_ = std::unique_lock(timeline.turn_);
    }
    ~Turn()
    {
        lock_.unlock();
        --lookers_;
        lookers_.notify_all();
    }

private:
    std::atomic<int>& lookers_;
    std::unique_lock<std::mutex> lock_;
};

/// A place in the row of those who work: a mutex alone would go again and again to who had it last.
class SharedTimeline::Step {
public:
    explicit Step(SharedTimeline& timeline) : done_(timeline.stepsDone_)
    {
        const std::uint64_t number = timeline.steps_++;
        for (std::uint64_t done = done_; done != number; done = done_) done_.wait(done);
    }
    ~Step()
    {
        ++done_;
        done_.notify_all();
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

private:
    std::atomic<std::uint64_t>& done_;
};

void SharedTimeline::add(std::vector<std::unique_ptr<timeline::Source>> sources)
{
    const Turn turn(*this);
    if (const auto reading = this->reading()) {
        reading->cancel();
        reading->wait();
    }
    for (auto& source : sources) timeline_.add(std::move(source));
    auto reading = std::make_shared<timeline::BackgroundReading>(timeline_, timeline::Filter(),
                                                                 readingThreads());
    const std::lock_guard lock(keeping_);
    reading_.swap(reading);
}

/// Whoever has the turn.
void SharedTimeline::use(const Look& looking)
{
    if (const auto reading = this->reading())
        reading->look(looking);
    else
        looking(timeline_);
}

void SharedTimeline::look(const Look& looking)
{
    const Turn turn(*this);
    use(looking);
}

void SharedTimeline::work(const Look& step)
{
    std::chrono::steady_clock::duration taken{};
    {
        const Step turn(*this);
        for (int lookers = lookers_; lookers > 0; lookers = lookers_) lookers_.wait(lookers);
        const auto begin = std::chrono::steady_clock::now();
        const std::lock_guard lock(turn_);
        use(step);
        taken = std::chrono::steady_clock::now() - begin;
    }
    if (!state().ended) std::this_thread::sleep_for(taken);
}

std::shared_ptr<timeline::BackgroundReading> SharedTimeline::reading() const
{
    const std::lock_guard lock(keeping_);
    return reading_;
}

timeline::BackgroundReading::State SharedTimeline::state() const
{
    if (const auto reading = this->reading()) return reading->state();
    timeline::BackgroundReading::State none;
    none.ended = true;
    return none;
}

void SharedTimeline::cancel()
{
    if (const auto reading = this->reading()) reading->cancel();
}

} // namespace viewer
