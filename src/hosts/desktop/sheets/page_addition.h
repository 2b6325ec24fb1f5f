#pragma once

#include "hosts/desktop/sheets/control_view.h"

#include <QWidget>

namespace desktop {

/// What this window adds of its own to a page of the tool, below the tool's controls.
class PageAddition : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows what holds now. Called each time the page comes on show.
    virtual void renew() = 0;

    /// A control of the page shows something else now.
    virtual void controlsChanged() {}

    /// Runs what the person does here to the page's controls; the page sets it.
    ActOnControl act;
};

} // namespace desktop
