#include "system/posix/permissions.h"

#include <cstdlib>
#include <fstream>
#include <string>

mode_t newFileMode(OthersMay others)
{
    switch (others) {
    case OthersMay::write:
        return 0666;
    case OthersMay::read:
        return 0644;
    case OthersMay::nothing:
        break;
    }
    return 0600;
}

mode_t newFolderMode(OthersMay others)
{
    switch (others) {
    case OthersMay::write:
        return 0777;
    case OthersMay::read:
        return 0755;
    case OthersMay::nothing:
        break;
    }
    return 0700;
}

mode_t ordinaryFileMode()
{
    // To ask the system itself would change the settings for a moment, for every thread.
    mode_t kept = 0077;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("Umask:", 0) == 0) {
            kept = static_cast<mode_t>(std::strtoul(line.c_str() + 6, nullptr, 8));
            break;
        }
    return newFileMode(OthersMay::write) & ~kept;
}
