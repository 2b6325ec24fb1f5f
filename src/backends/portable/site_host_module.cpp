#include "backends/portable/site_host_module.h"

#include <utility>

SiteHostModule::SiteHostModule(std::string folder, HostFacts facts)
    : folder_(std::move(folder)), facts_(std::move(facts))
{}

void SiteHostModule::debugOutput(const std::string& text)
{
    if (facts_.debugListener) facts_.debugListener(text);
}
