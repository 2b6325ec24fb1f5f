#pragma once

#include <string>

class TreeView;
struct ToolContext;

namespace mdlTraces {

/// Whether a level is on in a component's current flags. Level 31 always tests false: its mask is
/// negative, and the test asks for a number above 0. Raises nothing; a level outside 0 to 31 is
/// logged and false.
bool isTraceLevelSet(ToolContext& tool, int level, const std::string& componentName);

/// Applies a person's ticks to the server. The tree has components as roots, whose texts hold the
/// component's name in the first pair of parentheses, and their levels below, whose texts begin
/// with the level's number.
///
/// A component's word is made of its ticks alone: what is not shown is cleared. Then the default
/// flags come back and the log manager is told. Raises nothing.
void configureMicroTrace(ToolContext& tool, const TreeView& tree);

} // namespace mdlTraces
