#pragma once

#include "hosts/common/page_layout.h"
#include "hosts/mmc/sheets/control_view.h"

#include <memory>
#include <vector>

namespace mmc {

/// The views of a page, by the index of their control; null for a control that nobody sees.
using ControlViews = std::vector<std::unique_ptr<ControlView>>;

/// Puts the windows of a page where they belong on an area of a size in pixels: from top to bottom,
/// what grows taking the height that the others leave. Where they need more than there is, the
/// room between them shrinks first.
///
/// The height of the band at the top; 0 for a page without one.
int placeViews(const PageLayout& layout, const ControlViews& views, DialogUnits units, SIZE area);

} // namespace mmc
