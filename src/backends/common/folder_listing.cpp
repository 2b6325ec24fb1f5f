#include "backends/common/folder_listing.h"

#include "text/utf8.h"

#include <algorithm>
#include <utility>

std::vector<std::string> sortedNames(std::vector<std::string> names)
{
    std::erase_if(names,
                  [](const std::string& name) { return name.find('\\') != std::string::npos; });
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (auto& name : names) keyed.emplace_back(foldCase(name), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    keyed.erase(std::unique(keyed.begin(), keyed.end()), keyed.end());
    names.clear();
    for (auto& [key, name] : keyed) names.push_back(std::move(name));
    return names;
}
