#pragma once

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// The one of `known` that a person names: the one that is written so, or else the only one that
/// differs in the case of its letters alone. Nothing where there is none.
///
/// Raises CommandFailure, which names them, where several differ from it in case alone.
std::optional<std::string> matchingName(const std::string& typed,
                                        const std::vector<std::string>& known);

} // namespace cli
