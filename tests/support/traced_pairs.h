#pragma once

#include "support/test_tool.h"

#include <string>
#include <vector>

/// What the tool's log says of traced routines that were entered and not left, or left and not
/// entered: "Entering [module]routine_0", "Exiting [module]routine_-1". Empty when all is in pairs;
/// a routine that counted too many errors is left by that.
std::vector<std::string> tracesOutOfPairs(TestTool& tool);

/// Those of `procNames`, each "[module]routine", that the log has no entry of.
std::vector<std::string> notTraced(TestTool& tool, const std::vector<std::string>& procNames);
