#include "hosts/cli/open_tool.h"

#include "core/trapped_error_listener.h"
#include "hosts/cli/program.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/places.h"
#include "shell/snapin_definition.h"
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

/// The services with another registry.
Platform withRegistry(const Platform& services, Registry& registry)
{
    return {services.files,         registry,
            services.clock,         services.timeZone,
            services.eventReporter, services.eventLogExporter,
            services.processes,     services.workstation,
            services.module,        services.languages,
            services.desktop,       services.connection,
            services.xml,           services.traceDatabases};
}

} // namespace

OpenTool::OpenTool(const GlobalOptions& options, ToolUse use, const Check& check)
    : use_(use), looksOnly_(use == ToolUse::look || !mayWrite(options.site)),
      site_(usableSite(options.site, use), places::installedData(), hostFacts(options),
            SiteUse::look),
      traceDatabases_([this](const std::string& path) { return machinePath(path); },
                      site_.codePage()),
      registry_(site_.platform(desktop_, traceDatabases_).registry),
      platform_(withRegistry(site_.platform(desktop_, traceDatabases_), registry_)),
      watched_(platform_),
      looking_(watched_.platform(),
               [this](const std::string& path) { return site_.paths().isOfSite(path); }),
      definition_(snapinDefinition()), console_(definition_), codePage_(site_.codePage())
{
    site_.database().another().waitAsOneRun(); // all connections share the patience
    if (check) {
        context_.emplace(looking_.platform());
        check(*this);
    }
    if (use == ToolUse::change)
        turn_.emplace(site_.folder(), SiteTurn::usualPatience, printMessage);
    if (use != ToolUse::look) interrupt_.emplace();
    if (!looksOnly_) site_.startChanges();
    watched_.toolLog().onFailure([this](const std::string& why) { toolLogFailure_ = why; });
    context_.emplace(looksOnly_ ? looking_.platform() : watched_.platform());
    snapIn_.emplace(*context_, console_);
    {
        const TrappedErrorListener opening(
            *context_, [this](const RunTimeError& error, std::string_view procName) {
                if (procName == "[mdlOrvanDatabase]openOrvanDB")
                    databaseFailure_ = error.description();
            });
        console_.load(*snapIn_);
    }
    loaded_ = true;
    registry_.forget(); // what the tool notes as it starts is no part of a command
    if (!interrupted()) return;
    close();
    throw CommandFailure("cancelled before anything was done");
}

OpenTool::~OpenTool()
{
    try {
        if (loaded_) close();
    } catch (...) {
        // The failure that is on its way says why the command ends; there may be no memory left.
    }
}

void OpenTool::close()
{
    loaded_ = false;
    // What the tool puts back as it goes is changed like anything else.
    if (use_ == ToolUse::add && !looksOnly_) takeTurnIfItComes();
    console_.unload();
    turn_.reset();
    if (!toolLogFailure_.empty())
        printMessage("the tool's own log can't be written: " + toolLogFailure_);
    toolLogFailure_.clear();
    if (use_ == ToolUse::change && !registry_.refusal().empty())
        throw CommandFailure(registry_.refusal());
}

void OpenTool::takeTurnIfItComes()
try {
    turn_.emplace(site_.folder(), SiteTurn::usualPatience, printMessage);
} catch (const RunTimeError&) {
    // What was gathered is not lost for it.
}

bool OpenTool::keeps(const std::string& path)
{
    return mayWrite(site_.folder()) || !site_.paths().isOfSite(path);
}

std::string OpenTool::toolPath(const std::string& typed)
{
    std::string path = places::wholePath(typed);
    site_.paths().permit(path);
    return path;
}

void OpenTool::requireDatabase()
{
    if (context_->g_connection.state() == 1) return;
    throw CommandFailure("cannot connect to the server's database" +
                         (databaseFailure_.empty() ? "" : ": " + databaseFailure_));
}

ScopeItem& OpenTool::processes()
{
    ScopeItem& node = console_.scopeItems().item(processesPosition);
    console_.expand(node);
    return node;
}

} // namespace cli
