#pragma once

#include "hosts/cli/open_tool.h"
#include "hosts/cli/output.h"

#include <optional>
#include <string>
#include <vector>

class GatherWizard;

/// What a gather left, as paths of this machine.
struct GatherResult {
    std::string destination;
    std::optional<std::string> database;
    std::optional<std::string> cabinet;
    std::vector<std::string> files;     ///< names in the destination, sorted
    std::optional<std::string> failure; ///< why something is missing
    bool destinationMade = true;        ///< false when the run began without one
    bool cancelled = false;
};

/// Sees to it that a gather can write to its destination. Raises CommandFailure, and changes
/// nothing.
void requireUsableDestination(OpenTool& tool, const std::string& destination);

/// Lets a wizard run, with a progress bar on the terminal; Ctrl-C is its Cancel. Raises
/// CommandFailure when the wizard does not come to its end.
GatherResult runGather(OpenTool& tool, GatherWizard& wizard);

/// Prints the result, and raises CommandFailure when something is missing from it.
void report(Output& output, const GatherResult& result);
