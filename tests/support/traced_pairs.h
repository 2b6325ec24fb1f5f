#pragma once

#include "support/test_tool.h"

#include <string>
#include <vector>

/// What the tool's log says of traced routines that were entered and not left, or left and not
/// entered: "Entering [module]routine_0", "Exiting [module]routine_-1". Empty when all is in pairs.
std::vector<std::string> tracesOutOfPairs(TestTool& tool);
