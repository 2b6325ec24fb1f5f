#include "system/machine_names.h"

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
