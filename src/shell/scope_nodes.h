#pragma once

class ScopeItem;
class ScopeTree;
struct ToolContext;

/// The nodes that the snap-in puts into the console's scope tree. Nothing here raises: what fails
/// is logged, and the rest is put in all the same.
namespace mdlSnapIn {

/// The `kind` of a scope node says how it is opened.
constexpr const char* kindProcesses = "Processes";
constexpr const char* kindLogProcess = "LogProcess";
constexpr const char* kindLogFile = "LogFile";

/// Adds a node for each process that the log manager knows, in the registry's order.
void populateScopeProcesses(ToolContext& tool, ScopeTree& scopeItems, ScopeItem& parentNode);

/// Renews the log nodes of one process, after half a second in which the log manager may act: the
/// log in use first, then the others against the order of the folder.
void populateScopeAllLogs(ToolContext& tool, ScopeTree& scopeItems, ScopeItem& processNode);

} // namespace mdlSnapIn
