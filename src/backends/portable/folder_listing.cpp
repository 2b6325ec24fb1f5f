#include "backends/portable/folder_listing.h"

#include "backends/portable/posix_errors.h"
#include "backends/portable/utf8.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int pathNotFound = runTimeErrors::pathNotFound;

std::vector<std::string> unsortedNames(const std::string& machinePath)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(machinePath.c_str()), ::closedir);
    if (!listing) throw posixError(errno, pathNotFound);
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(listing.get());
        if (entry == nullptr && errno != 0) throw posixError(errno, pathNotFound);
        if (entry == nullptr) return names;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
}

struct stat factsOfLink(const std::string& path)
{
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) != 0) throw posixError(errno, pathNotFound);
    return facts;
}

} // namespace

std::string pathIn(const std::string& folder, std::string_view name)
{
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    return path.append(folder).append(1, '/').append(name);
}

std::vector<std::string> namesInFolder(const std::string& machinePath)
{
    auto names = unsortedNames(machinePath);
    std::erase_if(names,
                  [](const std::string& name) { return name.find('\\') != std::string::npos; });
    return sortedNames(std::move(names));
}

std::vector<std::string> sortedNames(std::vector<std::string> names)
{
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (auto& name : names) keyed.emplace_back(foldCase(name), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    keyed.erase(std::unique(keyed.begin(), keyed.end()), keyed.end());
    names.clear();
    for (auto& [key, name] : keyed) names.push_back(std::move(name));
    return names;
}

std::int64_t sizeOfFolder(const std::string& machinePath)
{
    std::int64_t size = 0;
    for (const auto& name : unsortedNames(machinePath)) {
        const auto path = pathIn(machinePath, name);
        struct stat facts {};
        if (::lstat(path.c_str(), &facts) != 0) continue; // gone since the listing
        if (S_ISREG(facts.st_mode)) size += facts.st_size;
        if (S_ISDIR(facts.st_mode)) size += sizeOfFolder(path);
    }
    return size;
}

void removeWholeFolder(const std::string& machinePath)
{
    for (const auto& name : unsortedNames(machinePath)) {
        const auto path = pathIn(machinePath, name);
        const auto facts = factsOfLink(path);
        if (S_ISDIR(facts.st_mode)) {
            removeWholeFolder(path);
        } else if (S_ISREG(facts.st_mode) && (facts.st_mode & S_IWUSR) == 0) {
            throw RunTimeError(runTimeErrors::permissionDenied);
        } else if (::unlink(path.c_str()) != 0) {
            throw posixError(errno, pathNotFound);
        }
    }
    if (::rmdir(machinePath.c_str()) != 0) throw posixError(errno, pathNotFound);
}
