#include "backends/site/site_host_module.h"

#include <utility>

namespace {
/// How often a developer at a debugger has a statement run.
constexpr int mostTries = 10;
} // namespace

SiteHostModule::SiteHostModule(std::string folder, HostFacts facts)
    : folder_(std::move(folder)), facts_(std::move(facts))
{}

bool SiteHostModule::isDevelopmentHost(int failuresInARow) const
{
    return facts_.developmentHost && failuresInARow < mostTries &&
           !(facts_.interrupted && facts_.interrupted());
}

void SiteHostModule::debugOutput(const std::string& text)
{
    if (facts_.debugListener) facts_.debugListener(text);
}
