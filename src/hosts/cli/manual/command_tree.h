#pragma once

#include "hosts/cli/manual/values.h"

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
    std::string bounds;               ///< of a number, such as "1 to 9"; empty for any
    std::string defaultValue;
    std::string description;
    Values values = Values::any; ///< of which kind the value is
    bool required = false;
    bool repeated = false;  ///< may be given again and again
    bool takesMany = false; ///< takes the words behind its value, too

    bool isArgument() const { return names.empty(); }

    bool takesValue() const { return !argument.empty(); }

    /// What `--help` and the manual page say of it: its description, and in words which values it
    /// takes and what is taken where none is given.
    std::string told() const;
};

/// A command as `--help` shows it; hidden ones are not there.
struct DescribedCommand {
    std::string path; ///< "gather frame"; empty for the program itself
    std::string summary;
    std::string explanation; ///< what stands below the options
    std::vector<DescribedOption> options;
    std::vector<DescribedCommand> commands;
    bool needsCommand = false; ///< one of those below has to be given

    /// The last word of the path.
    std::string name() const { return path.substr(path.rfind(' ') + 1); }

    /// How it is called, such as "[OPTIONS] DIR", with a blank before each part.
    std::string usage() const;
};

DescribedOption describeOption(const CLI::Option& option);

/// Whether an option is one by which a command tells of itself, and does nothing else.
bool isHelpOption(const DescribedOption& option);

/// The whole command line from `app` down.
DescribedCommand describeCommands(const CLI::App& app);

} // namespace cli
