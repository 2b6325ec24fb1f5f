#pragma once

#include "sample/random.h"

#include <filesystem>
#include <string_view>

namespace sample {

/// Writes the Windows event logs Application, System and Security into `folder`, a JSON object a
/// line, oldest first: a few hundred events over the coverage. Raises as `OutputFile`.
void writeEventLogs(const std::filesystem::path& folder, std::string_view computer, Random& random);

} // namespace sample
