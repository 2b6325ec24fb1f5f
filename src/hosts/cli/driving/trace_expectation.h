#pragma once

#include "hosts/cli/driving/flag_words.h"
#include "hosts/common/server_access.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

class TreeView;
struct ToolContext;

namespace cli {

/// What a trace operation is to leave on the server, found without the routines that it runs: their
/// failures show in what they leave alone.
struct TraceExpectation {
    std::map<std::string, std::int32_t> words;                   ///< of every component
    std::map<std::pair<std::string, std::string>, bool> records; ///< by group and macro trace
    std::vector<ReportedEvent> events;

    /// What the definitions ask for and no server can give, such as "no component Lamp".
    std::vector<std::string> impossible;
};

/// The macro traces' page, with its ticks as they are to be applied. Words and records are those
/// of the present.
TraceExpectation expectedOfMacroTraces(ToolContext& tool, const TreeView& tree,
                                       const std::vector<FlagWords>& present);

/// The micro traces' page.
TraceExpectation expectedOfMicroTraces(ToolContext& tool, const TreeView& tree,
                                       const std::vector<FlagWords>& present);

/// The reset to the default.
TraceExpectation expectedOfReset(ToolContext& tool, const std::vector<FlagWords>& present);

/// Whether a macro trace is recorded as on.
bool isRecordedAsOn(ToolContext& tool, const std::string& group, const std::string& trace);

} // namespace cli
