#pragma once

#include "hosts/common/site_server.h"
#include "hosts/common/tool_on_server.h"

#include <string>

/// What has to be there before a tool on a site and as long as it.
struct AroundToolOnSite {
    SiteServer site_;
};

/// The tool on a site, for a host that works on sites alone.
class ToolOnSite : private AroundToolOnSite, public ToolOnServer {
public:
    Site& site() { return site_.site(); }
    const Site& site() const { return site_.site(); }

protected:
    /// Opens the site in a folder of the machine; what ships with the tool is looked for in
    /// `installedData`. `desktop` outlives this. Raises what `Site` raises.
    ToolOnSite(const std::string& folder, const std::string& installedData, const HostFacts& facts,
               SiteUse use, Desktop& desktop);
    ~ToolOnSite() = default;
};
