#pragma once

#include "hosts/common/sentence.h"

#include <optional>

class GatherReport;
struct ToolContext;

/// Why the logs in the server's log folder are not listed, as far as was seen; nothing when they
/// are. A folder that can't be listed looks like an empty one.
std::optional<Sentence> logFolderTrouble(const ToolContext& tool, const GatherReport& report);
