#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace cli {

/// The command that was parsed, down to the innermost, such as "orvandiag gather frame"; as much of
/// it as was understood.
std::string chosenCommand(const CLI::App& app);

/// Names the first word that stands where a command or an option should and is none, with what it
/// may have been meant for; empty when a command is there. For a request for help, which is of
/// nothing then.
std::string unknownCommand(const CLI::App& app);

/// What makes no sense in a command line that could not be read, in one sentence: words that
/// nothing takes, in the order in which they were typed, before what is missing, as the one is
/// often why the other is.
std::string wrongUsage(const CLI::App& app, const CLI::ParseError& error);

/// Whether there is neither a command nor a word that could have been meant for one.
bool namesNothing(const CLI::App& app);

} // namespace cli
