#include "hosts/common/look/end_wish.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

/// How often a signal is asked for where nothing tells of it.
constexpr std::chrono::milliseconds untilAskedAgain{200};

} // namespace

EndWish::EndWish(std::function<void()> wished) : wished_(std::move(wished))
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &EndWish::hear);
    if (signals_.descriptor() < 0) {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this, timer] {
            if (!EndSignals::came()) return;
            timer->stop();
            hear();
        });
        timer->start(untilAskedAgain);
        return;
    }
    auto* notifier = new QSocketNotifier(signals_.descriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        signals_.take();
        hear();
    });
}

bool EndWish::signalled()
{
    return EndSignals::came();
}

void EndWish::hear()
{
    made_ = true;
    wished_();
}
