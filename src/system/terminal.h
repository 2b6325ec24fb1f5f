#pragma once

#include <optional>

/// Lets the bytes that the program writes to its standard output and error arrive as they are, and
/// be taken for UTF-8 by a terminal of the system's own, with escape sequences where it knows them.
/// When the program ends, the terminal is as it was.
void writeUtf8ToTerminals();

/// Whether what a program writes to standard error comes to a terminal, and one that knows escape
/// sequences.
bool errorsGoToATerminal();

/// How many characters a line of that terminal takes; nothing where there is none, or it does not
/// tell.
std::optional<int> widthOfErrorTerminal();

/// The same of standard output.
bool outputGoesToATerminal();
std::optional<int> widthOfOutputTerminal();
