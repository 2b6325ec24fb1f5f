#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Calls `then` once, when a painting of a widget for which `ready` holds is over.
class AfterPainting final : public QObject {
public:
    AfterPainting(QWidget& widget, std::function<bool()> ready, std::function<void()> then)
        : QObject(&widget), ready_(std::move(ready)), then_(std::move(then))
    {
        widget.installEventFilter(this);
        widget.update();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !called_ && ready_()) {
            called_ = true;
            // The event comes before the painting, and this once the whole window is painted.
            QTimer::singleShot(0, this, [this] {
                then_();
                deleteLater();
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<bool()> ready_;
    std::function<void()> then_;
    bool called_ = false;
};
