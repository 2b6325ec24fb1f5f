#pragma once

#include "controls/sheet_page.h"
#include "hosts/desktop/sheets/control_view.h"

#include <memory>

namespace desktop {

/// The view of a control, with a widget of its kind; null for a timer, which is not seen.
std::unique_ptr<ControlView> makeControlView(const PageControl& declared, QWidget* parent,
                                             const ActOnControl& act);

} // namespace desktop
