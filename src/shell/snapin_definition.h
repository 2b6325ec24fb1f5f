#pragma once

#include "console/snap_in_definition.h"

/// What the snap-in declares to the console: its nodes, views, menus and task pad.
///
/// A text that ends in "*" is a placeholder until the code replaces it.
SnapInDefinition snapinDefinition();

/// What the node of the processes shows until it is opened.
constexpr const char* processesPlaceholder = "Processes*";
