#include "hosts/viewer/files/row_writing.h"

#include <QMetaObject>

#include <chrono>
#include <utility>

namespace viewer {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds writingStep{2};
constexpr std::chrono::milliseconds betweenTellings{100};

} // namespace

// What the thread tells comes as an event of this one, or never, when this is gone by then.
RowWriting::RowWriting(SharedTimeline& timeline, RowsToWrite rows,
                       std::unique_ptr<RowTarget> target, QObject* parent)
    : QObject(parent), timeline_(timeline), total_(rows.count()), reading_(std::move(rows)),
      target_(std::move(target)), thread_([this](const std::stop_token& stop) { run(stop); })
{}

RowWriting::~RowWriting() = default;

void RowWriting::cancel()
{
    thread_.request_stop();
}

std::optional<double> RowWriting::share() const
{
    const std::size_t written = written_;
    if (written == total_) return std::nullopt;
    return static_cast<double>(written) / static_cast<double>(total_);
}

void RowWriting::run(const std::stop_token& stop)
{
    const bool done = target_->begin() && write(stop) && target_->finish();
    QMetaObject::invokeMethod(
        this, [this, done] { emit ended(done); }, Qt::QueuedConnection);
}

/// Reads some rows while it has the timeline's turn, and writes them while others may have it.
/// False where it was given up, or failed.
bool RowWriting::write(const std::stop_token& stop)
{
    auto nextTelling = Clock::now() + betweenTellings;
    for (bool all = false; !all;) {
        if (stop.stop_requested()) {
            target_->giveUp();
            return false;
        }
        timeline_.work([&](const timeline::Timeline& rows) {
            all = reading_.goOn(rows, Clock::now() + writingStep);
        });
        const RowTarget::Taken taken = target_->take(reading_.text());
        if (taken != RowTarget::Taken::goOn) return taken == RowTarget::Taken::enough;
        written_ = reading_.rowsRead();
        if (Clock::now() < nextTelling) continue;
        nextTelling = Clock::now() + betweenTellings;
        QMetaObject::invokeMethod(this, &RowWriting::went, Qt::QueuedConnection);
    }
    return true;
}

} // namespace viewer
