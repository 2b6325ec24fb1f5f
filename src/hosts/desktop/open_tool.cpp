#include "hosts/desktop/open_tool.h"

#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "text/visible_text.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <memory>
#include <utility>

namespace desktop {

OpenTool::OpenTool(const std::string& folder, const std::string& installedData,
                   const HostFacts& facts, Desktop& desktop)
    : ToolOnSite(folder, installedData, facts, mayWrite(folder) ? SiteUse::change : SiteUse::look,
                 desktop)
{}

void OpenTool::close()
{
    unload([this]() -> HeldTurn {
        if (looksOnly() || !present()) return {};
        auto taken = turn();
        return taken ? std::make_shared<SiteTurn>(std::move(*taken)) : nullptr;
    });
}

std::optional<SiteTurn> OpenTool::turn()
{
    if (takeTurn) return takeTurn(site().folder());
    return SiteTurn(site().folder(), SiteTurn::usualPatience, [](const std::string& text) {
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

bool OpenTool::present() const
{
    return isSite(site().folder());
}

std::string OpenTool::toolPath(const std::string& machinePath)
{
    std::string path = pathOfTool(machinePath);
    site().paths().permit(path);
    return path;
}

std::string OpenTool::pathOfTool(const std::string& machinePath) const
{
    const std::string drives = site().folder() + "/drive_";
    if (machinePath.compare(0, drives.size(), drives) != 0) return machinePath;
    std::string inside = machinePath.substr(drives.size());
    if (inside.empty() || (inside.size() > 1 && inside[1] != '/')) return machinePath;
    std::replace(inside.begin(), inside.end(), '/', '\\');
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(inside[0])));
    const std::string below = inside.size() > 1 ? inside.substr(1) : "\\";
    return std::string(1, letter) + ":" + below;
}

} // namespace desktop
