#pragma once

#include "console/console.h"
#include "core/tool_context.h"
#include "hosts/common/looking_services.h"
#include "hosts/common/server_access.h"
#include "hosts/common/watched_services.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "text/code_page.h"

#include <functional>
#include <optional>
#include <string>

class Desktop;

/// The tool on a server, as every host opens it: the server's services, watched for what the tool
/// tells nobody, and in front of them, for a tool that only looks, services that write nothing;
/// with the tool's context, a console and the snap-in. When it is loaded, in whose turn it changes
/// the server and what it tells are the host's.
class ToolOnServer {
public:
    ToolOnServer(const ToolOnServer&) = delete;
    ToolOnServer& operator=(const ToolOnServer&) = delete;

    ServerAccess& server() { return server_; }
    const ServerAccess& server() const { return server_; }
    ServerDatabase& database() { return server_.database(); }
    ToolContext& context() { return *context_; }
    Console& console() { return console_; }
    snapinOrvanDiagnostics& snapIn() { return *snapIn_; }

    /// How the server's log texts are encoded.
    const CodePage& codePage() const { return codePage_; }

    /// What the registry refused to take from the tool.
    WatchedRegistry& registry() { return watched_.registry(); }

    /// What the tool saw of the server's logs.
    GatherReport& report() { return watched_.report(); }

    /// Whether nothing of the server is changed, because the host wants it so or it may not be
    /// written to.
    bool looksOnly() const { return use_ == ServerUse::look; }

    /// As of `ServerAccess`.
    bool writable() const { return server_.writable(); }
    std::string machinePath(const std::string& path) { return server_.machinePath(path); }

    /// Why the database could not be opened when the tool was loaded; empty when it was, and
    /// before.
    const std::string& databaseFailure() const { return databaseFailure_; }

    /// Why the tool's own log could not be written, the first time that it is asked for since then;
    /// empty for nothing new.
    std::string takeToolLogFailure();

protected:
    /// Gives the turn to change the server, or none where the wait for it was given up. Raises 70.
    using TakeTurn = std::function<HeldTurn()>;

    /// `server`, opened for `use`, and `desktop` outlive this. The snap-in is not loaded yet, so
    /// that the console can be observed from the beginning.
    ToolOnServer(ServerAccess& server, ServerUse use, Desktop& desktop);
    ~ToolOnServer() = default;

    /// Makes a server that was opened for a look one to change. The snap-in must not be loaded yet.
    /// Raises what `ServerAccess::startChanges` raises.
    void startChanges();

    /// Gives the tool a context as a program that was just started has it. The snap-in must not be
    /// loaded yet.
    void forgetContext();

    /// Loads the snap-in into the console; nothing is selected. Raises what loading raises; it
    /// counts as loaded then, and is to be unloaded, too.
    void load();

    /// Loads the snap-in and selects the root, as the first thing on show. Raises as `load`.
    void loadAndShow();

    bool loaded() const { return loaded_; }

    /// Unloads the snap-in, once, in the turn that `takeTurn` gives where there is one and it
    /// comes: what the tool puts back as it goes is changed like anything else, but is not left out
    /// for a turn that does not come. Raises what unloading raises.
    void unload(const TakeTurn& takeTurn = {});

private:
    ServerAccess& server_;
    ServerUse use_;
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
