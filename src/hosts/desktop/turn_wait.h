#pragma once

#include "backends/site/site_turn.h"

#include <optional>
#include <string>

class QWidget;

namespace desktop {

/// Takes the turn to change a site, and goes on painting while another program has it. After a
/// second a box over `window` says who that is; its Cancel gives the wait up.
///
/// None when the person gave it up, or the program is to end. Raises what `SiteTurn` raises.
std::optional<SiteTurn> waitForTurn(const std::string& siteFolder, QWidget* window);

} // namespace desktop
