#pragma once

#include "backends/portable/site_host_module.h"
#include "hosts/cli/command.h"

#include <memory>
#include <string>
#include <vector>

/// The whole command line: global options and one subcommand for each command.
///
/// Parsing it fills `options` and the commands, which must outlive it.
std::unique_ptr<CLI::App>
describeCommandLine(GlobalOptions& options, const std::vector<std::unique_ptr<Command>>& commands);

/// The version that the tool shows as its own.
ModuleVersion moduleVersion();

/// "orvandiag 1.0.0".
std::string versionText();

/// $ORVAN_SITE, else the site folder below the user's data folder.
std::string defaultSite();

/// The folder of what ships with the tool: beside the program when it is built, below share/ when
/// it is installed. The empty text when there is none.
std::string installedDataFolder();
