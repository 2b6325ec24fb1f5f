#include "backends/site/site_workstation.h"

#include "system/machine_names.h"

SiteWorkstation::SiteWorkstation(const SiteSettings& settings)
    : computer_(settings.computer ? *settings.computer : machineName()),
      user_(settings.user ? *settings.user : loginName())
{}

std::optional<WorkstationDetails> SiteWorkstation::details() const
{
    constexpr int ntPlatformId = 500;
    WorkstationDetails details;
    details.platformId = ntPlatformId;
    details.computerName = computer_;
    details.loggedOnUsers = 1;
    return details;
}

std::optional<LoggedOnUser> SiteWorkstation::user() const
{
    LoggedOnUser user;
    user.userName = user_;
    return user;
}
