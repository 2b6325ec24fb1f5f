#include "hosts/common/places.h"

#include <cctype>
#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::string places::defaultSite()
{
    if (const auto site = environment("ORVAN_SITE"); !site.empty()) return site;
    fs::path data = environment("XDG_DATA_HOME");
    if (data.empty()) data = fs::path(environment("HOME")) / ".local" / "share";
    return (data / "orvandiag" / "site").string();
}

std::string places::installedData()
{
    std::error_code none;
    const fs::path program = fs::read_symlink("/proc/self/exe", none);
    if (none) return {};
    const fs::path prefix = program.parent_path().parent_path();
    for (const fs::path& folder : {prefix / "share" / "orvandiag", prefix / "data"})
        if (fs::is_directory(folder, none)) return folder.string();
    return {};
}

std::string places::wholePath(const std::string& typed)
{
    const bool drive = typed.size() >= 2 && typed[1] == ':' &&
                       std::isalpha(static_cast<unsigned char>(typed[0])) != 0;
    if (drive || typed.empty()) return typed;
    return fs::absolute(typed).lexically_normal().string();
}
