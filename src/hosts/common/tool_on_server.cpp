#include "hosts/common/tool_on_server.h"

#include "core/trapped_error_listener.h"
#include "runtime/run_time_error.h"
#include "shell/snapin_definition.h"

#include <utility>

ToolOnServer::ToolOnServer(ServerAccess& server, ServerUse use, Desktop& desktop)
    : server_(server), use_(use), watched_(server.platform(desktop)),
      looking_(watched_.platform(),
               [this](const std::string& path) { return server_.isServers(path); }),
      definition_(snapinDefinition()), console_(definition_), codePage_(server.codePage())
{
    database().openFor(use);
    watched_.toolLog().onFailure([this](const std::string& why) { toolLogFailure_ = why; });
    forgetContext();
}

void ToolOnServer::startChanges()
{
    server_.startChanges();
    database().openFor(ServerUse::change);
    use_ = ServerUse::change;
    forgetContext();
}

void ToolOnServer::forgetContext()
{
    snapIn_.reset();
    context_.emplace(looksOnly() ? looking_.platform() : watched_.platform());
    snapIn_.emplace(*context_, console_);
}

void ToolOnServer::load()
{
    loaded_ = true;
    const TrappedErrorListener opening(
        *context_, [this](const RunTimeError& error, std::string_view procName) {
            if (procName == "[mdlOrvanDatabase]openOrvanDB") databaseFailure_ = error.description();
        });
    console_.load(*snapIn_);
}

void ToolOnServer::loadAndShow()
{
    load();
    console_.currentView().select(console_.root());
}

void ToolOnServer::unload(const TakeTurn& takeTurn)
{
    if (!loaded_) return;
    loaded_ = false;
    HeldTurn turn;
    try {
        if (takeTurn) turn = takeTurn();
    } catch (const RunTimeError&) {
        // What is put back is not left out for it.
    }
    console_.unload();
}

std::string ToolOnServer::takeToolLogFailure()
{
    return std::exchange(toolLogFailure_, {});
}
