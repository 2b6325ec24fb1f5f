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

    /// Whether the command has commands of its own, one of which may have been meant.
    bool mayBeCommand() const { return !command_->commands.empty(); }

    /// `no command "statsu"; did you mean status?`; also a command that stands elsewhere.
    std::string refuseCommand(const std::string& word) const;

    /// `no option "--jsn"; did you mean --json?`, or which commands have it. A value behind the
    /// sign of the option is left out.
    std::string refuseOption(const std::string& word) const;

    /// `unexpected words "now" and "then"`, in that order, with an option that the first may have
    /// been meant for.
    std::string refuseWords(const std::vector<std::string>& words) const;

private:
    const DescribedCommand& program_;
    const DescribedCommand* command_;  ///< the one of the path
    std::vector<std::string> options_; ///< that it takes, those of the commands around it too
};

} // namespace cli
