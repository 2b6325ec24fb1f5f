#include "backends/site/site_workstation.h"

#include <climits>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

std::string machineName()
{
    char name[HOST_NAME_MAX + 1] = {};
    if (::gethostname(name, sizeof name - 1) != 0) return {};
    const std::string whole = name;
    return whole.substr(0, whole.find('.'));
}

std::string loginName()
{
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr)
        return found->pw_name;
    const char* variable = std::getenv("USER");
    return variable == nullptr ? std::string() : variable;
}

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
