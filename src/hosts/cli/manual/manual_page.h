#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <string>

namespace cli {

/// The manual page of the program, in troff with the man macros.
///
/// These pages are made of the texts that `--help` shows, and their date is not that of the build,
/// so that they come out the same in each. A tool that makes such pages of what a program prints
/// knows the options of one command; this program has a tree of commands.
std::string manualPage(const DescribedCommand& program);

/// The page of one of the program's commands, with the commands below it.
std::string manualPage(const DescribedCommand& program, const DescribedCommand& command);

/// What the page of a command is called, such as "orvandiag-gather".
std::string pageName(const DescribedCommand& command);

} // namespace cli
