#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <string>

namespace cli {

/// A script that completes the program's commands and options in bash, with nothing but bash.
std::string bashCompletion(const DescribedCommand& program);

} // namespace cli
