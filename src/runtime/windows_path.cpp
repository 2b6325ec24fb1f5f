#include "runtime/windows_path.h"

#include <algorithm>

namespace {

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

bool beginsWithDrive(std::string_view path)
{
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

std::string_view baseName(std::string_view path)
{
    return path.substr(path.find_last_of("\\/") + 1);
}

void followPath(std::vector<std::string>& names, std::string_view path)
{
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        const std::string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name.empty() || name == ".") continue;
        if (name != "..")
            names.emplace_back(name);
        else if (!names.empty())
            names.pop_back();
    }
}
