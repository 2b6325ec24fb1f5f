#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

/// The help of a command, such as {"gather", "frame"}, as `--help` of it shows it; without a name,
/// that of the program. Raises UsageError for a command that there is not.
std::string helpOf(const CLI::App& program, const std::vector<std::string>& command);

/// What is shown where nothing is asked for: how the program is used, and the commands that one
/// starts with.
std::string shortUsage(const CLI::App& program);

} // namespace cli
