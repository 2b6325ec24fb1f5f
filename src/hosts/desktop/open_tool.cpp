#include "hosts/desktop/open_tool.h"

#include "runtime/run_time_error.h"
#include "runtime/visible_text.h"
#include "shell/snapin_definition.h"
#include "system/file_facts.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace desktop {

OpenTool::OpenTool(const std::string& folder, const std::string& installedData,
                   const HostFacts& facts, Desktop& desktop)
    : use_(mayWrite(folder) ? SiteUse::change : SiteUse::look),
      site_(folder, installedData, facts, use_),
      traceDatabases_([this](const std::string& path) { return site_.paths().machinePath(path); },
                      site_.codePage()),
      platform_(site_.platform(desktop, traceDatabases_)), watched_(platform_),
      looking_(watched_.platform(),
               [this](const std::string& path) { return site_.paths().isOfSite(path); }),
      context_(looksOnly() ? looking_.platform() : watched_.platform()),
      definition_(snapinDefinition()), console_(definition_), snapIn_(context_, console_)
{
    watched_.toolLog().onFailure([this](const std::string& why) { toolLogFailure_ = why; });
}

void OpenTool::load()
{
    loaded_ = true;
    console_.load(snapIn_);
}

void OpenTool::close()
{
    if (!loaded_) return;
    loaded_ = false;
    std::optional<SiteTurn> turnOfEnd;
    try {
        if (!looksOnly() && present()) turnOfEnd = turn();
    } catch (const RunTimeError&) {
        // What is put back is not left out for it.
    }
    console_.unload();
}

std::optional<SiteTurn> OpenTool::turn()
{
    if (takeTurn) return takeTurn(site_.folder());
    return SiteTurn(site_.folder(), SiteTurn::usualPatience, [](const std::string& text) {
        std::fprintf(stderr, "orvandiag-console: %s\n", visibleText(text).c_str());
    });
}

void OpenTool::changing(const std::function<void()>& change)
{
    // A site that has gone has no turns; what is tried on it fails by itself.
    if (looksOnly() || changing_ || !present()) return change();
    if (waiting_) return; // for the change that was wished first
    waiting_ = true;
    try {
        turnOfChange_ = turn();
    } catch (...) {
        waiting_ = false;
        throw;
    }
    waiting_ = false;
    if (!turnOfChange_) return;
    changing_ = true;
    try {
        change();
    } catch (...) {
        changing_ = false;
        turnOfChange_.reset();
        throw;
    }
    changing_ = false;
    turnOfChange_.reset();
}

bool OpenTool::writable() const
{
    return mayWrite(site_.folder());
}

bool OpenTool::present() const
{
    return isSite(site_.folder());
}

std::string OpenTool::toolPath(const std::string& machinePath)
{
    std::string path = pathOfTool(machinePath);
    site_.paths().permit(path);
    return path;
}

std::string OpenTool::pathOfTool(const std::string& machinePath) const
{
    const std::string drives = site_.folder() + "/drive_";
    if (machinePath.compare(0, drives.size(), drives) != 0) return machinePath;
    std::string inside = machinePath.substr(drives.size());
    if (inside.empty() || (inside.size() > 1 && inside[1] != '/')) return machinePath;
    std::replace(inside.begin(), inside.end(), '/', '\\');
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(inside[0])));
    const std::string below = inside.size() > 1 ? inside.substr(1) : "\\";
    return std::string(1, letter) + ":" + below;
}

} // namespace desktop
