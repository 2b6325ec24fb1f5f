#include "hosts/common/tool_on_site.h"

ToolOnSite::ToolOnSite(const std::string& folder, const std::string& installedData,
                       const HostFacts& facts, SiteUse use, Desktop& desktop)
    : AroundToolOnSite{SiteServer(folder, installedData, facts, use)},
      ToolOnServer(site_, use == SiteUse::look ? ServerUse::look : ServerUse::change, desktop)
{}
