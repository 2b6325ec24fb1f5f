#pragma once

#include "hosts/common/health/finding.h"
#include "hosts/common/server_access.h"

#include <functional>
#include <memory>
#include <vector>

/// Looks at a server as the tool would, and tells what is there, what is missing and what to do.
/// Nothing is written: no log, no event, no value, no file.
namespace health {

/// Opens the server for a look. May raise a run-time error: that is a finding, too.
using OpenServer = std::function<std::unique_ptr<ServerAccess>()>;

/// Every check, always all and in the same order, whatever a check comes to: one that raises an
/// error is told as its own finding, and one that needs what was not found as not looked at. A
/// database that does not answer is waited for as long as anywhere, once.
std::vector<Finding> examine(const OpenServer& open);

} // namespace health
