#include "hosts/desktop/window/end_wish.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <utility>

namespace desktop {

EndWish::EndWish(std::function<void()> wished) : wished_(std::move(wished))
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &EndWish::hear);
    if (signals_.descriptor() < 0) return;
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

} // namespace desktop
