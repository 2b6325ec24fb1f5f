#pragma once

#include "sample/server_model.h"

#include <span>
#include <string_view>

namespace sample {

/// One trace of a scenario: who says what, and how many milliseconds after the trace before it.
///
/// The text holds names in braces that the occurrence fills in: see `Occurrence`.
struct Step {
    Component component;
    int level;
    int earliest;
    int latest;
    std::string_view text;
};

/// Something that happens on the server, told by the traces it leaves in the processes it passes.
struct Scenario {
    std::span<const Step> steps;
    int dayWeight;   ///< how often in working hours, against the others
    int nightWeight; ///< and outside of them
    bool onPort;     ///< a call: takes a port and has a call id
};

/// Calls, from the ringing port to the last lamp.
std::span<const Scenario> callScenarios();

/// What goes on without a caller: synchronisation, heartbeats, figures.
std::span<const Scenario> serviceScenarios();

} // namespace sample
