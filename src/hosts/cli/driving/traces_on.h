#pragma once

#include "timeline/moment.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

class OpenTool;

struct MacroTraceOn {
    std::string group;
    std::string trace;
    /// From when on it is known to have been on without a break, by the server's clock: it may
    /// have been on before. Nothing where neither the events nor the record tell.
    std::optional<timeline::Moment> since;
};

/// Levels of a component that are on and not by default.
struct LevelsOn {
    std::string component;
    std::vector<int> levels;
};

struct TracesOn {
    std::vector<MacroTraceOn> macroTraces;
    /// Nothing where the server's database can't be read. Since when they are on nobody notes.
    std::optional<std::vector<LevelsOn>> levels;
};

/// What is on now.
TracesOn tracesOn(OpenTool& tool);

} // namespace cli
