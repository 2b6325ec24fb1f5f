#pragma once

#include "hosts/cli/open_tool.h"

#include <memory>
#include <string>
#include <vector>

namespace cli {

/// Where the logs are that `read` was asked for.
struct FoundLogs {
    std::unique_ptr<OpenTool> tool; ///< null where logs are read without a server
    std::vector<std::string> paths; ///< of the machine; "-" is standard input
    bool missing = false;           ///< whether some were not found, each of which was told
};

/// Looks for logs by the names that a person typed: on the server, in its log folder or where a
/// path says, or on this machine where there is no server; without a name, the server's log folder.
/// Raises CommandFailure when none is found, and what opening the tool raises.
FoundLogs findLogs(const GlobalOptions& options, const std::vector<std::string>& logs);

} // namespace cli
