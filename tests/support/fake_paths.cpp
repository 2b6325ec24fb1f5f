#include "support/fake_paths.h"

#include <algorithm>
#include <vector>

namespace fakePaths {

std::string lower(std::string_view text)
{
    std::string result(text);
    for (char& letter : result)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return result;
}

namespace {

std::vector<std::string> partsOf(const std::string& path)
{
    std::vector<std::string> parts;
    std::string part;
    for (const char letter : path + "\\") {
        if (letter != '\\' && letter != '/') {
            part += letter;
            continue;
        }
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
        part.clear();
    }
    return parts;
}

bool isSeparator(char letter)
{
    return letter == '\\' || letter == '/';
}

bool matchesLowered(std::string_view name, std::string_view pattern)
{
    if (pattern.empty()) return name.empty();
    if (pattern.front() == '*') {
        for (std::size_t taken = 0; taken <= name.size(); ++taken)
            if (matchesLowered(name.substr(taken), pattern.substr(1))) return true;
        return false;
    }
    if (name.empty()) return false;
    return (pattern.front() == '?' || pattern.front() == name.front()) &&
           matchesLowered(name.substr(1), pattern.substr(1));
}

} // namespace

std::string full(const std::string& path, const std::string& currentFolder)
{
    std::string drive = currentFolder.substr(0, 2);
    std::string rest = path;
    if (path.size() > 1 && path[1] == ':') {
        drive = path.substr(0, 2);
        rest = path.substr(2);
    }
    const bool fromCurrent = !rest.empty() && !isSeparator(rest.front()) &&
                             lower(drive) == lower(currentFolder.substr(0, 2));
    if (fromCurrent || path.empty()) rest = currentFolder.substr(2) + "\\" + rest;
    std::string result = drive;
    for (const std::string& part : partsOf(rest)) result.append("\\").append(part);
    return result;
}

std::string parent(const std::string& fullPath)
{
    const std::size_t end = fullPath.rfind('\\');
    return end == std::string::npos ? "" : fullPath.substr(0, end);
}

std::string lastPart(const std::string& path)
{
    const std::size_t end = path.find_last_of("\\/");
    return end == std::string::npos ? path : path.substr(end + 1);
}

bool matches(std::string_view name, std::string_view pattern)
{
    return pattern == "*.*" || matchesLowered(lower(name), lower(pattern));
}

} // namespace fakePaths
