#pragma once

#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <string>
#include <vector>

struct ToolContext;

namespace cli {

/// What the macro trace "GROUP - TRACE" turns on, in whatever case: as the first trace database
/// among the sources defines it that does, for the server may define it otherwise by now; else as
/// the server of the tool does.
///
/// `tool` is null where there is no server. Sentences of definitions that can't be read, and of
/// trace databases that disagree, are added to `notes`. Raises CommandFailure where nobody knows
/// the name; 57.
std::vector<timeline::ComponentLevels> findMacroTrace(const std::string& name,
                                                      const timeline::Timeline& timeline,
                                                      ToolContext* tool,
                                                      std::vector<std::string>& notes);

} // namespace cli
