#pragma once

#include "hosts/cli/config/person_settings.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace cli {

class Arguments;
class Output;

/// What stands before the command on the command line.
struct GlobalOptions {
    std::optional<std::string> site; ///< folder of the site; none for the machine itself, or none
    std::string toolFolder;          ///< the person's own; empty for that of the site
    bool json = false;
    bool developmentHost = false;
    PersonSettings settings; ///< what is in force, once the command line has been read
};

/// The command could not do it: one clear line on standard error, exit status 1. The empty text is
/// for a failure that a message box has told already.
class CommandFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command line makes no sense: one line on standard error, exit status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// The help of another command than the chosen one tells more, such as "orvandiag gather".
    UsageError(const std::string& sentence, std::string command)
        : std::runtime_error(sentence), command_(std::move(command))
    {}

    /// Empty for the chosen command.
    const std::string& command() const { return command_; }

private:
    std::string command_;
};

/// A command of orvandiag. It lives as long as the program, so that options can write into it.
class Command {
public:
    virtual ~Command() = default;

    virtual std::string name() const = 0;

    /// One line for the list of commands.
    virtual std::string summary() const = 0;

    /// What `--help` of the command teaches below its options: how it behaves, with examples.
    virtual std::string explanation() const { return {}; }

    /// Whether it goes by what the person has set, which has to be right then.
    virtual bool takesSettings() const { return true; }

    /// Whether the list of commands leaves it out.
    virtual bool hidden() const { return false; }

    /// Adds the command's own options and arguments.
    virtual void declare(Arguments& arguments) = 0;

    /// Does it. Raises CommandFailure, UsageError, RunTimeError.
    virtual void run(const GlobalOptions& options, Output& output) = 0;
};

/// Every command, in the order of the help text.
std::vector<std::unique_ptr<Command>> allCommands();

} // namespace cli
