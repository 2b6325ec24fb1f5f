#pragma once

#include "system/end_signals.h"

#include <QObject>

#include <functional>

/// Hears, while it lives, that the program is to end from outside of its window: by SIGTERM, SIGHUP
/// or SIGINT, or because the session ends. A signal that was ignored before stays ignored.
///
/// A second signal ends the program in the usual way, should the first one not be heard. There is
/// one at a time.
class EndWish final : public QObject {
public:
    /// Calls `wished` from the event loop. Needs the application object.
    explicit EndWish(std::function<void()> wished);

    /// Whether the wish was made.
    bool made() const { return made_; }

    /// Whether a signal has come, also while the event loop waits for work to end. False without
    /// an `EndWish`.
    static bool signalled();

private:
    void hear();

    std::function<void()> wished_;
    bool made_ = false;
    EndSignals signals_;
};
