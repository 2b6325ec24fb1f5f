#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <string>

namespace cli {

/// The manual page of the program, in troff with the man macros and a table of tbl.
///
/// It is made of the texts that `--help` shows, and has no date, so that it comes out the same in
/// every build.
std::string manualPage(const DescribedCommand& program);

} // namespace cli
