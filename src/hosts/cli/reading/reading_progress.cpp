#include "hosts/cli/reading/reading_progress.h"

#include "hosts/cli/terminal/progress_line.h"
#include "system/terminal.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace cli {

namespace {

constexpr auto silentAtFirst = std::chrono::milliseconds(400);
constexpr auto betweenUpdates = std::chrono::milliseconds(100);

void showUntil(const std::stop_token& stop, const timeline::Progress& progress)
{
    std::mutex mutex;
    std::condition_variable_any ended;
    std::unique_lock lock(mutex);
    ProgressLine line;
    auto wait = silentAtFirst;
    while (!ended.wait_for(lock, stop, wait, [&] { return stop.stop_requested(); })) {
        const auto total = static_cast<double>(progress.total.load());
        if (total > 0) line.show(static_cast<double>(progress.done.load()) / total, "reading");
        wait = betweenUpdates;
    }
}

} // namespace

ReadingProgress::ReadingProgress(const timeline::Progress& progress)
{
    if (!errorsGoToATerminal()) return;
    thread_ = std::jthread([&progress](const std::stop_token& stop) { showUntil(stop, progress); });
}

ReadingProgress::~ReadingProgress() = default;

} // namespace cli
