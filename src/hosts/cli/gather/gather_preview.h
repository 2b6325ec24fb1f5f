#pragma once

#include "hosts/cli/gather/gather_run.h"

#include <optional>

namespace cli {

class GatherWizard;

/// Tells what a gather would take, how large it is and how much room there is, and gathers nothing.
/// Its frame is told where it has one. Raises CommandFailure for a gather that would be refused.
void preview(OpenTool& tool, GatherWizard& wizard, const std::optional<FrameEnds>& frame,
             Output& output);

} // namespace cli
