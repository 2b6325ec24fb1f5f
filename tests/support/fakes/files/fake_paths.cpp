#include "support/fakes/files/fake_paths.h"

#include "text/utf8.h"

#include <algorithm>
#include <vector>

namespace fakePaths {

std::string folded(std::string_view text)
{
    return foldCase(text);
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

/// A name that has no point ends in one, as far as a pattern asks for it.
bool matchesFolded(std::string_view name, std::string_view pattern)
{
    if (pattern.empty()) return name.empty();
    if (name.empty() && pattern.front() == '.' && pattern.size() > 1)
        return pattern.find_first_not_of("*?", 1) == std::string_view::npos;
    if (pattern.front() == '*') {
        for (std::size_t taken = 0; taken <= name.size(); ++taken)
            if (matchesFolded(name.substr(taken), pattern.substr(1))) return true;
        return false;
    }
    if (pattern.front() == '?') {
        const bool standsForNone = name.empty() || name.front() == '.';
        const auto taken = standsForNone ? 0 : utf8CharacterLength(name);
        return matchesFolded(name.substr(taken), pattern.substr(1));
    }
    return !name.empty() && pattern.front() == name.front() &&
           matchesFolded(name.substr(1), pattern.substr(1));
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
                             folded(drive) == folded(currentFolder.substr(0, 2));
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
    return pattern == "*.*" || matchesFolded(folded(name), folded(pattern));
}

} // namespace fakePaths
