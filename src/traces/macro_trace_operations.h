#pragma once

#include "platform/xml.h"

class TreeView;
struct ToolContext;

namespace mdlTraces {

/// Applies a person's ticks to the server. The tree has groups as roots and their macro traces
/// below, all nodes in the order of the catalogue.
///
/// First the bits of each unticked macro trace that was recorded as on are flipped, then those of
/// every ticked one are set, so that a level that two share stays on while one of them is. Each is
/// recorded; then the default flags come back and the log manager is told. Raises nothing.
void configureMacroTrace(ToolContext& tool, const TreeView& tree);

/// Sets all levels of a TRACE in the flags of its components.
void enableMacroTrace(ToolContext& tool, const XmlElementPtr& traceNode);

/// Flips all levels of a TRACE: one that is off already comes out on, and one listed twice stays.
void disableMacroTrace(ToolContext& tool, const XmlElementPtr& traceNode);

} // namespace mdlTraces
