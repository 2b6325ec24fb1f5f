#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Those of `known` that a person may have meant by a name that is none of them: at most three, the
/// nearest first, without care of case. A name that holds all of the typed one is near, too.
std::vector<std::string> nearNames(std::string_view typed, const std::vector<std::string>& known);

/// The same as an end of a sentence, such as `; near it are "A - B" and "A - C"`; empty for none.
std::string nearNamesHint(std::string_view typed, const std::vector<std::string>& known);

} // namespace cli
