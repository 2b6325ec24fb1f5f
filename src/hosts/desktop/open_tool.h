#pragma once

#include "backends/site/site_turn.h"
#include "hosts/common/tool_on_site.h"

#include <functional>
#include <optional>
#include <string>

namespace desktop {

/// The tool on a site: from its loading to its unloading.
class OpenTool final : public ToolOnSite {
public:
    /// Opens a site; `desktop` outlives the tool. Raises what `Site` raises. The console is there,
    /// for a window to observe, and the snap-in is not loaded yet. A site that may not be written
    /// to is opened for a look, which leaves nothing there.
    OpenTool(const std::string& folder, const std::string& installedData, const HostFacts& facts,
             Desktop& desktop);

    /// Loads the snap-in and selects the root. Raises what loading raises.
    void load() { loadAndShow(); }

    /// Unloads the snap-in, once, in a turn of its own where that can be had. Raises what unloading
    /// raises.
    void close();

    /// Runs what may change the site while no other program does; nothing is run where the person
    /// gives the wait for that up. Raises 70, with a sentence, when another one does not come to
    /// its end, and what `change` raises.
    void changing(const std::function<void()>& change);

    /// Lets other programs have their turn while the person is asked or told something, for as long
    /// as that takes: what is written before is whole. The rest of a change goes on without one.
    void letTurnGo() { turnOfChange_.reset(); }

    /// Takes the turn to change the site in a folder, or waits for it; gives none when the wait was
    /// given up. Null: the wait is one without a window, told on the terminal.
    std::function<std::optional<SiteTurn>(const std::string& siteFolder)> takeTurn;

    /// Whether the site's folder still is one.
    bool present() const;

    /// A file that the person picked, as the tool names it: a file of the site's drive by its
    /// drive, another one by its path on the machine. The tool may reach it from then on.
    std::string toolPath(const std::string& machinePath);

private:
    std::optional<SiteTurn> turn();
    std::string pathOfTool(const std::string& machinePath) const;

    bool changing_ = false;
    bool waiting_ = false; ///< for the turn to change
    std::optional<SiteTurn> turnOfChange_;
};

} // namespace desktop
