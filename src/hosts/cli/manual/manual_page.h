#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <string>

namespace cli {

/// The manual page of the program, in troff with the man macros and a table of tbl.
///
/// It is made of the texts that `--help` shows, and has no date, so that it comes out the same in
/// every build. A tool that makes such pages of what a program prints knows the options of one
/// command; this program has a tree of commands, on one page.
std::string manualPage(const DescribedCommand& program);

} // namespace cli
