#include "hosts/common/tool_on_site.h"

#include "core/trapped_error_listener.h"
#include "runtime/run_time_error.h"
#include "shell/snapin_definition.h"

#include <utility>

ToolOnSite::ToolOnSite(const std::string& folder, const std::string& installedData,
                       const HostFacts& facts, SiteUse use, Desktop& desktop)
    : use_(use), site_(folder, installedData, facts, use),
      traceDatabases_([this](const std::string& path) { return machinePath(path); },
                      site_.codePage()),
      database_(site_), watched_(site_.platform(desktop, traceDatabases_, database_)),
      looking_(watched_.platform(),
               [this](const std::string& path) { return site_.paths().isOfSite(path); }),
      definition_(snapinDefinition()), console_(definition_), codePage_(site_.codePage())
{
    database_.openFor(use);
    watched_.toolLog().onFailure([this](const std::string& why) { toolLogFailure_ = why; });
    forgetContext();
}

void ToolOnSite::startChanges()
{
    site_.startChanges();
    database_.openFor(SiteUse::change);
    use_ = SiteUse::change;
    forgetContext();
}

void ToolOnSite::forgetContext()
{
    snapIn_.reset();
    context_.emplace(looksOnly() ? looking_.platform() : watched_.platform());
    snapIn_.emplace(*context_, console_);
}

void ToolOnSite::load()
{
    loaded_ = true;
    const TrappedErrorListener opening(
        *context_, [this](const RunTimeError& error, std::string_view procName) {
            if (procName == "[mdlOrvanDatabase]openOrvanDB") databaseFailure_ = error.description();
        });
    console_.load(*snapIn_);
    console_.currentView().select(console_.root());
}

void ToolOnSite::unload(const TakeTurn& takeTurn)
{
    if (!loaded_) return;
    loaded_ = false;
    std::optional<SiteTurn> turn;
    try {
        if (takeTurn) turn = takeTurn();
    } catch (const RunTimeError&) {
        // What is put back is not left out for it.
    }
    console_.unload();
}

std::string ToolOnSite::takeToolLogFailure()
{
    return std::exchange(toolLogFailure_, {});
}
