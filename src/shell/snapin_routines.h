#pragma once

class ResultView;
class ScopeItem;
class ScopeTree;
class View;
struct ToolContext;

/// What the snap-in puts into the console's panes. Nothing here raises: what fails is logged, and
/// the rest is put in all the same.
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

/// A row for each log file of the process.
void populateListViewAllLogs(ToolContext& tool, ResultView& resultView);

/// The headers of a list of log files, in the interface language.
void nameLogFileColumns(ToolContext& tool, ResultView& resultView);

/// A row for each line of a log that is not empty. A log that is missing, or of more than
/// 2,500,000 bytes, gives a message box and no rows.
void populateListViewDiagLog(ToolContext& tool, ResultView& resultView, View& view);

/// The headers of a list of log lines, in the interface language. Its columns are made already.
void nameLogLineColumns(ToolContext& tool, ResultView& resultView);

/// Texts and symbols of the root's task pad.
void populateTaskPadDefault(ToolContext& tool, ResultView& resultView);

} // namespace mdlSnapIn
