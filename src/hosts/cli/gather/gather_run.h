#pragma once

#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"

#include <optional>
#include <string>

struct GatherOutcome;

namespace cli {

class GatherWizard;

/// The ends of a time frame as `--json` tells them: ISO 8601, with the zone of the server's clock.
struct FrameEnds {
    std::string from;
    std::string to;
};

/// Adds the frame to a result, where there is one.
void addFrame(Json& result, const std::optional<FrameEnds>& frame);

/// Sees to it that a gather can write to its destination. Raises CommandFailure, and changes
/// nothing.
void requireUsableDestination(OpenTool& tool, const std::string& destination);

/// Sees to it that a gather of this wizard, at its progress page, would begin now. Raises
/// CommandFailure with what it would be refused with, and changes nothing.
void requireBeginning(OpenTool& tool, GatherWizard& wizard);

/// Lets a wizard run, with a progress bar on the terminal; Ctrl-C is its Cancel. Raises
/// CommandFailure when the wizard does not come to its end.
GatherOutcome runGather(OpenTool& tool, GatherWizard& wizard);

/// Prints the result, with its frame where it has one, and raises CommandFailure when something is
/// missing from it.
void report(Output& output, const GatherOutcome& outcome, const std::optional<FrameEnds>& frame);

} // namespace cli
