#pragma once

#include <cstdint>

class ResultView;
class View;
struct ToolContext;

/// The list of a log's lines. Nothing here raises: what fails is logged, and the rest is put in
/// all the same.
namespace mdlSnapIn {

/// The size, in bytes, of the largest log that is shown.
constexpr std::int64_t largestShownLog = 2'500'000;

/// A row for each line of a log that is not empty. A log that is missing, or larger
/// than `largestShownLog`, gives a message box and no rows. The status bar of `view` tells how far
/// the reading is.
void populateListViewDiagLog(ToolContext& tool, ResultView& resultView, View& view);

/// The list's headers, in the interface language. Its columns are made already.
void nameLogLineColumns(ToolContext& tool, ResultView& resultView);

} // namespace mdlSnapIn
