#pragma once

struct ToolContext;

/// The wish to end a gather. It stands until somebody takes it back: the pipeline does so when it
/// has ended its walk. Nothing here raises.
namespace mdlLogs {

/// Whether a cancel was asked for.
bool cancelCurrentProcess(ToolContext& tool);

/// Asks for a cancel, or takes it back.
void cancelCurrentProcess(ToolContext& tool, bool cancel);

} // namespace mdlLogs
