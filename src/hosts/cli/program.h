#pragma once

#include "backends/site/site_host_module.h"
#include "hosts/cli/command.h"

#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

/// What an exit status says.
struct ExitStatus {
    int status;
    const char* meaning;
};

constexpr ExitStatus exitStatuses[] = {
    {0, "done"},
    {1, "the command could not do it"},
    {2, "wrong usage"},
};

/// What the program is for, in one line; and where its output goes.
constexpr const char* purpose = "diagnose an Orvan voice-messaging server";
constexpr const char* outputNote = "Results go to standard output, messages to standard error.\n"
                                   "orvandiag COMMAND --help tells more of a command.";

/// The whole command line: global options and one subcommand for each command.
///
/// Parsing it fills `options` and the commands, which must outlive it.
std::unique_ptr<CLI::App>
describeCommandLine(GlobalOptions& options, const std::vector<std::unique_ptr<Command>>& commands);

/// The version that the tool shows as its own.
ModuleVersion moduleVersion();

/// "orvandiag 1.0.0".
std::string versionText();

} // namespace cli
