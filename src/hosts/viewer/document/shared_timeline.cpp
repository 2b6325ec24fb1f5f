#include "hosts/viewer/document/shared_timeline.h"

#include "timeline/follow/follower.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

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

std::size_t SharedTimeline::add(std::vector<std::unique_ptr<timeline::Source>> sources)
{
    const Turn turn(*this);
    if (const auto reading = this->reading()) {
        reading->cancel();
        reading->wait();
    }
    const std::size_t first = timeline_.sourceCount();
    for (auto& source : sources) timeline_.add(std::move(source));
    if (holdsBack_) timeline::holdBackHalfLines(timeline_);
    ++additions_;
    auto reading = std::make_shared<timeline::BackgroundReading>(timeline_, timeline::Filter(),
                                                                 readingThreads());
    const std::lock_guard lock(keeping_);
    reading_.swap(reading);
    return first;
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

bool SharedTimeline::change(const std::function<void(timeline::Timeline&)>& step)
{
    const Step turn(*this);
    for (int lookers = lookers_; lookers > 0; lookers = lookers_) lookers_.wait(lookers);
    const std::lock_guard lock(turn_);
    if (!state().ended) return false;
    step(timeline_);
    return true;
}

std::weak_ptr<const void> SharedTimeline::withdraw(timeline::Timeline& timeline, std::size_t number)
{
    timeline.withdraw(number);
    return std::exchange(held_, std::make_shared<int>());
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
