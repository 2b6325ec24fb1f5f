#pragma once

namespace cli {

class GatherWizard;
class OpenTool;
class Output;

/// Tells what a gather would take, how large it is and how much room there is, and gathers nothing.
/// Raises CommandFailure for a gather that would be refused.
void preview(OpenTool& tool, GatherWizard& wizard, Output& output);

} // namespace cli
