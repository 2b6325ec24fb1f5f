#pragma once

#include "hosts/common/health/examined_database.h"
#include "hosts/common/health/finding.h"
#include "hosts/common/tool_on_server.h"
#include "runtime/run_time_error.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A server under examination: the tool on it, which only looks and is not loaded, and what one
/// check learnt that others go on from.
class ExaminedServer final : public ToolOnServer {
public:
    /// `server`, opened for a look, and `desktop` outlive this.
    ExaminedServer(ServerAccess& server, Desktop& desktop)
        : ToolOnServer(server, ServerUse::look, desktop), directory(server.database())
    {
        forgetContext();
    }

    FileSystem& files() { return context().platform.files; }
    Registry& registryKeys() { return context().platform.registry; }

    /// A file or folder in the tool's own folder, as a path of the tool.
    std::string besideTool(const std::string& name);

    ExaminedDatabase directory;

    /// The components of the diagnostic grid; nothing until it was read.
    std::optional<std::vector<std::string>> gridComponents;
};

/// What checks answer.
namespace health {

HealthReport well(Sentence detail);
HealthReport lacking(HealthState state, Sentence detail, std::string_view remedy);

/// Of what can't be looked at because something else is not in order; no remedy, as that has one.
HealthReport notLookedAt(std::string_view why, std::vector<std::string> inserts = {});

/// An error's text as a part of a sentence: without its full stop.
std::string clauseOf(const RunTimeError& error);

/// Names for a sentence: the first few, and how many more there are.
std::string listed(const std::vector<std::string>& names);

} // namespace health
