#include "hosts/common/places.h"

#include "system/environment.h"
#include "system/machine_path.h"
#include "system/process.h"

#include <cctype>
#include <filesystem>

namespace fs = std::filesystem;

std::string places::defaultSite()
{
    if (const auto site = environmentVariable("ORVAN_SITE"); site && !site->empty()) return *site;
    return machineTextOf(filePathOf(userDataFolder()) / "orvandiag" / "site");
}

std::string places::installedData()
{
    std::error_code none;
    const fs::path program = filePathOf(ownProgramFile());
    if (program.empty()) return {};
    const fs::path prefix = program.parent_path().parent_path();
    for (const fs::path& folder : {prefix / "share" / "orvandiag", prefix / "data"})
        if (fs::is_directory(folder, none)) return machineTextOf(folder);
    return {};
}

std::string places::wholePath(const std::string& typed)
{
    const bool drive = typed.size() >= 2 && typed[1] == ':' &&
                       std::isalpha(static_cast<unsigned char>(typed[0])) != 0;
    if (drive || typed.empty()) return typed;
    return machineTextOf(fs::absolute(filePathOf(typed)).lexically_normal());
}
