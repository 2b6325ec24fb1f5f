#pragma once

class ResultView;
struct ToolContext;

/// The list of a process's log files. Nothing here raises: what fails is logged, and the rest is
/// put in all the same.
namespace mdlSnapIn {

/// A row for each log file, formatted copies apart, of the process whose node shows the list.
void populateListViewAllLogs(ToolContext& tool, ResultView& resultView);

/// The list's headers, in the interface language.
void nameLogFileColumns(ToolContext& tool, ResultView& resultView);

} // namespace mdlSnapIn
