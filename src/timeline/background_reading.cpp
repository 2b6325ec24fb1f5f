#include "timeline/background_reading.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace timeline {

namespace {

constexpr std::size_t firstRows = 1024; ///< of each source

} // namespace

BackgroundReading::BackgroundReading(Timeline& timeline, Filter filter, unsigned threads)
    : timeline_(timeline), filter_(std::move(filter)), threads_(threads)
{
    slice_.enough = firstRows;
    thread_ = std::jthread([this] { readAll(); });
}

BackgroundReading::~BackgroundReading()
{
    cancel();
}

void BackgroundReading::readAll()
{
    try {
        while (!cancelled_ && !readSlice()) tell(false);
    } catch (const std::exception& error) {
        tellFailure(error.what());
    }
    tell(true);
}

/// Reads until each source has enough rows, or somebody wishes to look. True when there is no more.
bool BackgroundReading::readSlice()
{
    std::unique_lock lock(reading_);
    looked_.wait(lock, [this] { return lookers_ == 0; });
    slice_.cancelled = false;
    // Whoever came before this was set has to be seen here, as his wish is gone with it.
    if (lookers_ > 0 || cancelled_) return false;
    timeline_.read(filter_, slice_, threads_);
    if (slice_.cancelled) return false;
    bool more = false;
    for (std::size_t at = 0; at < timeline_.sourceCount(); ++at)
        more = more || timeline_.rowsOf(at).size() >= slice_.enough;
    slice_.enough *= 2;
    return !more;
}

/// Adds what the slice read to the state.
void BackgroundReading::tell(bool ended)
{
    std::size_t rows = 0;
    std::vector<std::string> failures;
    {
        const std::lock_guard lock(reading_);
        rows = timeline_.size();
        failures = timeline_.failures();
    }
    for (const std::string& failure : failures) tellFailure(failure);
    const std::lock_guard lock(telling_);
    state_.total = std::max(state_.total, state_.done + slice_.total.exchange(0));
    state_.done += slice_.done.exchange(0);
    state_.rows = rows;
    state_.ended = ended;
    if (ended) ended_.notify_all();
}

/// A source that fails does so in each slice.
void BackgroundReading::tellFailure(const std::string& sentence)
{
    const std::lock_guard lock(telling_);
    auto& told = state_.failures;
    if (std::find(told.begin(), told.end(), sentence) == told.end()) told.push_back(sentence);
}

BackgroundReading::State BackgroundReading::state() const
{
    const std::lock_guard lock(telling_);
    State state = state_;
    state.total = std::max(state.total, state.done + slice_.total);
    state.done += slice_.done;
    return state;
}

void BackgroundReading::look(const std::function<void(const Timeline&)>& looking)
{
    ++lookers_;
    slice_.cancelled = true;
    const std::lock_guard lock(reading_);
    // However the call ends, the reading goes on.
    struct Gone {
        BackgroundReading& reading;
        ~Gone()
        {
            --reading.lookers_;
            reading.looked_.notify_all();
        }
    } const gone{*this};
    looking(timeline_);
}

void BackgroundReading::cancel()
{
    cancelled_ = true;
    slice_.cancelled = true;
}

void BackgroundReading::wait()
{
    std::unique_lock lock(telling_);
    ended_.wait(lock, [this] { return state_.ended; });
}

} // namespace timeline
