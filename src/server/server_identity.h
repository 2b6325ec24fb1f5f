#pragma once

#include "runtime/integer16.h"

#include <string>

struct ToolContext;

/// Which release of the server is installed; zeros and the empty text where none is.
struct ServerVersion {
    Integer16 major;
    Integer16 minor;
    Integer16 release;
    Integer16 build;
    std::string version;
};

namespace mdlOrvan {

/// Whether a server's log lines carry thread, port and call id. Each part is compared by itself, so
/// that a server 3.0 is taken for one without them.
bool logsExtendedFields(const ServerVersion& server);

/// Reads the installed release. A number past 16 bits is logged and stays 0. Raises nothing.
ServerVersion getVersion(ToolContext& tool);

} // namespace mdlOrvan
