#include "hosts/cli/open_tool.h"

#include "hosts/cli/program.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/places.h"
#include "runtime/run_time_error.h"

namespace cli {

namespace {

constexpr int processesPosition = 2;

HostFacts hostFacts(const GlobalOptions& options)
{
    HostFacts facts;
    facts.version = moduleVersion();
    facts.commandLine = "orvandiag";
    facts.developmentHost = options.developmentHost;
    facts.interrupted = interruptNoted;
    facts.notice = printMessage;
    if (!options.toolFolder.empty()) facts.toolFolder = places::wholePath(options.toolFolder);
    return facts;
}

/// The site's folder, once it is sure that a tool that changes something can keep its log and its
/// registry there.
const std::string& usableSite(const std::string& folder, ToolUse use)
{
    if (!isSite(folder))
        throw CommandFailure(folder +
                             " is not a site (no site.ini, registry.reg or drive_c in it); " +
                             "orvandiag sample makes one to try things on");
    if (use == ToolUse::change && !mayWrite(folder))
        throw CommandFailure("the site " + folder + " is read-only");
    return folder;
}

} // namespace

OpenTool::OpenTool(const GlobalOptions& options, ToolUse use, const Check& check)
    : ToolOnSite(usableSite(options.site, use), places::installedData(), hostFacts(options),
                 SiteUse::look, desktop_),
      use_(use)
{
    const bool changes = use != ToolUse::look && writable();
    database().waitAsOneRun();
    if (check) check(*this);
    if (use == ToolUse::change) turn_.emplace(takeTurn());
    if (use != ToolUse::look) interrupt_.emplace();
    if (changes)
        startChanges();
    else
        forgetContext();
    load();
    registry().forget(); // what the tool notes as it starts is no part of a command
    if (!interrupted()) return;
    close();
    throw CommandFailure("cancelled before anything was done");
}

OpenTool::~OpenTool()
{
    try {
        if (loaded()) close();
    } catch (...) {
        // The failure that is on its way says why the command ends; there may be no memory left.
    }
}

void OpenTool::close()
{
    const bool needsTurn = use_ == ToolUse::add && !looksOnly();
    unload(needsTurn ? TakeTurn([this] { return takeTurn(); }) : TakeTurn());
    turn_.reset();
    if (const std::string failure = takeToolLogFailure(); !failure.empty())
        printMessage("the tool's own log can't be written: " + failure);
    if (use_ == ToolUse::change && !registry().refusal().empty())
        throw CommandFailure(registry().refusal());
}

SiteTurn OpenTool::takeTurn()
{
    return SiteTurn(site().folder(), SiteTurn::usualPatience, printMessage);
}

bool OpenTool::keeps(const std::string& path)
{
    return writable() || !site().paths().isOfSite(path);
}

std::string OpenTool::toolPath(const std::string& typed)
{
    std::string path = places::wholePath(typed);
    site().paths().permit(path);
    return path;
}

void OpenTool::requireDatabase()
{
    if (context().g_connection.state() == 1) return;
    throw CommandFailure("cannot connect to the server's database" +
                         (databaseFailure().empty() ? "" : ": " + databaseFailure()));
}

ScopeItem& OpenTool::processes()
{
    ScopeItem& node = console().scopeItems().item(processesPosition);
    console().expand(node);
    return node;
}

} // namespace cli
