#pragma once

#include <QWidget>

namespace desktop {

/// What this window adds of its own to a page of the tool, below the tool's controls.
class PageAddition : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows what holds now. Called each time the page comes on show.
    virtual void renew() = 0;
};

} // namespace desktop
