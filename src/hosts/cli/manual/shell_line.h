#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// How a part of a shell's command line is quoted.
enum class Quote { none, single, twofold };

/// A command line as somebody types it in a shell, up to the cursor.
struct ShellLine {
    std::vector<std::string> words; ///< before the last, as the program would get them
    std::string last;               ///< the word at the cursor; empty where a new one begins
    Quote quote = Quote::none;      ///< at the beginning of what the shell replaces
    std::string kept;               ///< of `last` what stands before that
};

/// Reads the command at the end of a line, without what is assigned before it. Quotes, backslashes,
/// ~ and variables of the environment are taken as shells take them; nothing is run, so that
/// a command to be substituted is a word. `replaced` is the end of the line that the shell replaces
/// by a candidate.
ShellLine readShellLine(std::string_view line, std::string_view replaced);

/// A text as bash has to read it behind an opened quote of that kind, or without one.
std::string quotedForBash(std::string_view text, Quote quote);

} // namespace cli
