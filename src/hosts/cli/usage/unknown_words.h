#pragma once

#include "hosts/cli/manual/command_tree.h"

#include <string>
#include <vector>

namespace cli {

/// Sentences that refuse words of a command line which nothing takes, each with what a person may
/// have meant. `path` is the command as far as it was understood, such as "gather"; empty for the
/// program itself.
class UnknownWords {
public:
    UnknownWords(const DescribedCommand& program, const std::string& path);

    /// Whether the command takes nothing but one of its own commands, which was meant then.
    bool mayBeCommand() const;

    /// `no command "statsu"; did you mean status?`; also a command that stands elsewhere.
    std::string refuseCommand(const std::string& word) const;

    /// `no option "--jsn"; did you mean --json?`, or which commands have it. A value behind the
    /// sign of the option is left out.
    std::string refuseOption(const std::string& word) const;

    /// `unexpected words "now" and "then"`, in that order, with a command or an option that the
    /// first may have been meant for.
    std::string refuseWords(const std::vector<std::string>& words) const;

private:
    std::vector<std::string> commandsHere() const;

    /// The option that a word, with dashes or without, may have been meant for, as a sentence's
    /// end.
    std::string optionMeant(const std::string& word) const;

    const DescribedCommand& program_;
    DescribedCommand command_;         ///< the one of the path; empty for one that is not shown
    std::vector<std::string> options_; ///< that it takes, those of the commands around it too
};

} // namespace cli
