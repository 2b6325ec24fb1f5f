#pragma once

#include <re2/re2.h>

#include <string>
#include <vector>

namespace timeline {

/// Texts of ASCII one of which, in whatever case of its letters, is in each line that an expression
/// of single bytes occurs in; none where there is no such text, or there are many.
std::vector<std::string> requiredTexts(const std::string& expression, const RE2::Options& options);

} // namespace timeline
