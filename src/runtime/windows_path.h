#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Whether a character parts the names of a path: `\` or `/`.
constexpr bool isPathSeparator(char c)
{
    return c == '\\' || c == '/';
}

/// Whether a path begins with a drive such as "C:".
bool beginsWithDrive(std::string_view path);

/// What stands behind the last `\` or `/` of a path.
std::string_view baseName(std::string_view path);

/// Walks from the place that `names` leads to along the names of `path`. Empty names and "." stay
/// where they are; ".." goes back a name, and stops at the top.
void followPath(std::vector<std::string>& names, std::string_view path);
