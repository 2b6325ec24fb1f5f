#pragma once

class ResultView;
struct ToolContext;

namespace mdlSnapIn {

/// Gives the root's task pad its texts, in the interface language, and its symbols. Raises nothing:
/// what fails is logged, and the rest is put in all the same.
void populateTaskPadDefault(ToolContext& tool, ResultView& resultView);

} // namespace mdlSnapIn
