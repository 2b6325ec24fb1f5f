#pragma once

#include <string>

namespace cli {

/// Whether the system takes no path of that length, or no name of the length of one in it.
bool isTooLong(const std::string& path);

/// A path as a message shows it: of a long one the beginning and the end.
std::string shortened(const std::string& path);

/// Raises CommandFailure for a path that is too long, of `what`, such as "the site".
void requireShortEnough(const std::string& what, const std::string& path);

} // namespace cli
