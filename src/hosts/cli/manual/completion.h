#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What may stand in a place of the command line.
struct Place {
    std::vector<std::string> words;  ///< commands, options, fixed values
    std::optional<Values> values;    ///< or a value of that kind
    std::string before;              ///< stands before each, such as "--site="
    std::string typed;               ///< the beginning of what shall stand there, behind it
    std::optional<std::string> site; ///< what the command line says of these so far
    std::optional<std::string> toolFolder;
};

/// The place behind `words`, the first of which is the program, where `last` is typed so far.
Place placeOf(const DescribedCommand& program, const std::vector<std::string>& words,
              const std::string& last);

/// Those of `candidates` that begin with `typed`, in their order and each once: in any case where
/// none does in this one. What a terminal could not show as it is, is left out.
std::vector<std::string> beginningWith(const std::vector<std::string>& candidates,
                                       const std::string& typed);

} // namespace cli
