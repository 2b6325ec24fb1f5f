#include "hosts/common/places.h"

#include "platform/tool_files.h"
#include "system/environment.h"
#include "system/machine_path.h"
#include "system/process.h"

#include <cctype>
#include <filesystem>

namespace fs = std::filesystem;

std::string places::siteOfEnvironment()
{
    return environmentVariable("ORVAN_SITE").value_or("");
}

std::string places::usualSite()
{
    const std::string data = userDataFolder();
    return data.empty() ? "" : machineTextOf(filePathOf(data) / "orvandiag" / "site");
}

std::string places::defaultSite()
{
    const std::string site = siteOfEnvironment();
    return site.empty() ? usualSite() : site;
}

std::string places::installedData()
{
    std::error_code none;
    const fs::path program = filePathOf(ownProgramFile());
    if (program.empty()) return {};
    const fs::path own = program.parent_path();
    // On Windows the tool's folder holds programs and data alike.
    if (fs::is_regular_file(own / toolFiles::blankDatabase, none)) return machineTextOf(own);
    const fs::path prefix = own.parent_path();
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
