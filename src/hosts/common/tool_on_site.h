#pragma once

#include "backends/jet/jet_engine.h"
#include "backends/site/site.h"
#include "backends/site/site_turn.h"
#include "console/console.h"
#include "core/tool_context.h"
#include "hosts/common/directory_database.h"
#include "hosts/common/looking_services.h"
#include "hosts/common/watched_services.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "system/file_facts.h"
#include "text/code_page.h"

#include <functional>
#include <optional>
#include <string>

class Desktop;

/// The tool on a site, as every host opens it: the site's services and the trace databases, watched
/// for what the tool tells nobody, and in front of them, for a tool that only looks, services that
/// write nothing; with the tool's context, a console and the snap-in. When it is loaded, in whose
/// turn it changes the site and what it tells are the host's.
class ToolOnSite {
public:
    ToolOnSite(const ToolOnSite&) = delete;
    ToolOnSite& operator=(const ToolOnSite&) = delete;

    Site& site() { return site_; }
    const Site& site() const { return site_; }
    DirectoryDatabase& database() { return database_; }
    ToolContext& context() { return *context_; }
    Console& console() { return console_; }
    snapinOrvanDiagnostics& snapIn() { return *snapIn_; }

    /// How the server's log texts are encoded.
    const CodePage& codePage() const { return codePage_; }

    /// What the registry refused to take from the tool.
    WatchedRegistry& registry() { return watched_.registry(); }

    /// What the tool saw of the server's logs.
    GatherReport& report() { return watched_.report(); }

    /// Whether nothing of the site is changed, because the host wants it so or the site may not be
    /// written to.
    bool looksOnly() const { return use_ == SiteUse::look; }

    /// Whether the site can be written to now.
    bool writable() const { return mayWrite(site_.folder()); }

    /// Where a path of the tool lies on this machine. Raises 76, and 70 for one that leads out of
    /// the site and that no person named.
    std::string machinePath(const std::string& path) { return site_.paths().machinePath(path); }

    /// Why the database could not be opened when the tool was loaded; empty when it was, and
    /// before.
    const std::string& databaseFailure() const { return databaseFailure_; }

    /// Why the tool's own log could not be written, the first time that it is asked for since then;
    /// empty for nothing new.
    std::string takeToolLogFailure();

protected:
    /// Gives the turn to change the site, or none where the wait for it was given up. Raises 70.
    using TakeTurn = std::function<std::optional<SiteTurn>()>;

    /// Opens the site in a folder of the machine; what ships with the tool is looked for in
    /// `installedData`. `desktop` outlives this. The snap-in is not loaded yet, so that the console
    /// can be observed from the beginning. Raises what `Site` raises.
    ToolOnSite(const std::string& folder, const std::string& installedData, const HostFacts& facts,
               SiteUse use, Desktop& desktop);
    ~ToolOnSite() = default;

    /// Makes a site that was opened for a look one to change. The snap-in must not be loaded yet.
    /// Raises what `Site::startChanges` raises.
    void startChanges();

    /// Gives the tool a context as a program that was just started has it. The snap-in must not be
    /// loaded yet.
    void forgetContext();

    /// Loads the snap-in into the console and selects the root. Raises what loading raises; it
    /// counts as loaded then, and is to be unloaded, too.
    void load();

    bool loaded() const { return loaded_; }

    /// Unloads the snap-in, once, in the turn that `takeTurn` gives where there is one and it
    /// comes: what the tool puts back as it goes is changed like anything else, but is not left out
    /// for a turn that does not come. Raises what unloading raises.
    void unload(const TakeTurn& takeTurn = {});

private:
    SiteUse use_;
    Site site_;
    jet::JetEngine traceDatabases_;
    DirectoryDatabase database_;
    WatchedServices watched_;
    LookingServices looking_;
    SnapInDefinition definition_;
    Console console_;
    std::optional<ToolContext> context_;
    std::optional<snapinOrvanDiagnostics> snapIn_;
    CodePage codePage_;
    std::string toolLogFailure_;
    std::string databaseFailure_;
    bool loaded_ = false;
};
