#include "hosts/cli/open_tool.h"

#include "hosts/cli/naming/long_paths.h"
#include "hosts/cli/program.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/places.h"
#include "hosts/common/site_server.h"
#include "hosts/machine/open_machine.h"
#include "runtime/run_time_error.h"
#include "system/file_facts.h"

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
    facts.language = options.settings.language();
    return facts;
}

MachineFacts machineFacts(const GlobalOptions& options)
{
    MachineFacts facts;
    facts.toolFolder = options.toolFolder;
    facts.developmentHost = options.developmentHost;
    facts.interrupted = interruptNoted;
    return facts;
}

/// Refuses a folder that is no site, or where a tool that changes something can't keep its log and
/// its registry.
void requireUsableSite(const std::string& folder, ToolUse use)
{
    if (folder.empty()) throw CommandFailure("the folder of the site has no name");
    requireShortEnough("the site", folder);
    if (!isSite(folder))
        throw CommandFailure(folder +
                             " is not a site (no site.ini, registry.reg or drive_c in it); " +
                             "orvandiag sample makes one to try things on");
    if (use == ToolUse::change && !mayWrite(folder))
        throw CommandFailure("the site " + folder + " is read-only");
}

std::unique_ptr<ServerAccess> serverToOpen(const GlobalOptions& options, ToolUse use)
{
    if (options.site) requireUsableSite(*options.site, use);
    return serverToExamine(options);
}

} // namespace

std::unique_ptr<ServerAccess> serverToExamine(const GlobalOptions& options)
{
    requireShortEnough("the tool folder", options.toolFolder);
    if (!options.site) {
        if (!machineIsAServer())
            throw CommandFailure("no site is named, and there is no usual one, as HOME names no "
                                 "folder; name one with --site or ORVAN_SITE");
        return openMachine(machineFacts(options));
    }
    return std::make_unique<SiteServer>(*options.site, places::installedData(), hostFacts(options),
                                        SiteUse::look);
}

OpenTool::OpenTool(const GlobalOptions& options, ToolUse use, const Check& check)
    : AroundTool{{}, serverToOpen(options, use), {}, {}},
      ToolOnServer(*access_, ServerUse::look, desktop_), use_(use)
{
    const bool changes = use != ToolUse::look && writable();
    database().waitAsOneRun();
    if (check) check(*this);
    if (use == ToolUse::change) turn_ = takeTurn();
    if (use != ToolUse::look) interrupt_.emplace();
    if (changes)
        startChanges();
    else
        forgetContext();
    loadAndShow();
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

HeldTurn OpenTool::takeTurn()
{
    return server().takeTurn(printMessage);
}

bool OpenTool::keeps(const std::string& path)
{
    return writable() || !server().isServers(path);
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
