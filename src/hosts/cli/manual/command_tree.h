#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace cli {

/// What an option or argument of the command line says of itself.
struct DescribedOption {
    std::vector<std::string> names;   ///< "--json"; of an argument none
    std::string argument;             ///< the name of an argument, or of an option's value; empty
                                      ///< for a flag
    std::vector<std::string> choices; ///< the words that the value is one of; empty for any
    std::string defaultValue;
    std::string description;
    bool required = false;

    bool isArgument() const { return names.empty(); }
};

/// A command as `--help` shows it; hidden ones are not there.
struct DescribedCommand {
    std::string path; ///< "gather frame"; empty for the program itself
    std::string summary;
    std::string explanation; ///< what stands below the options
    std::vector<DescribedOption> options;
    std::vector<DescribedCommand> commands;
};

DescribedOption describeOption(const CLI::Option& option);

/// The whole command line from `app` down.
DescribedCommand describeCommands(const CLI::App& app);

} // namespace cli
