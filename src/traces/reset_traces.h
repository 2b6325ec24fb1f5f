#pragma once

struct ToolContext;

namespace mdlTraces {

/// Gives every component at least its default flags. Writes each component once, also when nothing
/// changes. Raises nothing.
void enableStandardTraces(ToolContext& tool);

/// Leaves every component with exactly its default flags, records every macro trace that the
/// registry knows as off, and tells the log manager. Raises nothing.
void disableAllTraces(ToolContext& tool);

} // namespace mdlTraces
