#pragma once

#include <optional>

/// Whether what a program writes to standard error comes to a terminal.
bool errorsGoToATerminal();

/// How many characters a line of that terminal takes; nothing where there is none, or it does not
/// tell.
std::optional<int> widthOfErrorTerminal();
