#include "backends/site/database/lock_patience.h"

#include <algorithm>
#include <thread>

namespace {

using namespace std::chrono_literals;

constexpr auto pauseBetweenRuns = 3s;
constexpr auto longestNap = 50ms;

} // namespace

void LockPatience::begin()
{
    const auto now = Clock::now();
    if (!oneRun_ && now - latest_ >= pauseBetweenRuns) {
        left_ = whole_;
        told_ = false;
    }
    latest_ = now;
}

bool LockPatience::wait(int tries)
{
    const auto before = Clock::now();
    if (left_ <= Clock::duration::zero()) {
        latest_ = before;
        return false;
    }
    const Clock::duration nap = std::min<Clock::duration>(longestNap, 1ms * (tries + 1));
    std::this_thread::sleep_for(std::min(nap, left_));
    latest_ = Clock::now();
    left_ -= latest_ - before;
    if (listener_ && !told_ && whole_ - left_ >= untilNotice) {
        told_ = true;
        listener_();
    }
    return true;
}
