#pragma once

#include "timeline/record.h"

#include <functional>
#include <string>
#include <string_view>

namespace viewer {

/// Calls with each line that a row is searched in, until one is found to do: the line as it stands
/// in its file, or where there is none one of its fields, as the server writes it, with the further
/// lines of its trace. `room` is used again.
bool anyLineOf(const timeline::Record& record, std::string& room,
               const std::function<bool(std::string_view)>& does);

} // namespace viewer
