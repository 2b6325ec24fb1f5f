#pragma once

struct ToolContext;

namespace mdlInitialize {

/// Fills the global context, in a fixed order. Raises nothing; the eleventh error leaves the rest
/// of the context as it is.
void initGlobalVariables(ToolContext& tool);

} // namespace mdlInitialize
