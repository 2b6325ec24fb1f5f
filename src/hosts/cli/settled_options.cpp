#include "hosts/cli/settled_options.h"

#include "hosts/cli/command.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/places.h"
#include "hosts/machine/open_machine.h"
#include "system/environment.h"

namespace cli {

namespace {

/// The site that is taken where none is named; nothing for the machine itself, and for none.
std::optional<std::string> usualSite()
{
    const std::string site = machineIsAServer() ? "" : places::usualSite();
    return site.empty() ? std::nullopt : std::optional(site);
}

} // namespace

void settleOptionsQuietly(GlobalOptions& options)
{
    GivenOptions given;
    given.site = options.site;
    if (!options.toolFolder.empty()) given.toolFolder = options.toolFolder;
    options.settings =
        settledSettings(given, environmentVariable, readConfigFile(configFilePath()), usualSite());
    options.site = options.settings.of("site").value;
    options.toolFolder = options.settings.of("tool-folder").value.value_or("");
}

void settleOptions(GlobalOptions& options)
{
    settleOptionsQuietly(options);
    for (const std::string& warning : options.settings.file.warnings) printMessage(warning);
}

} // namespace cli
