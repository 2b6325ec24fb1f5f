#pragma once

#include <string>
#include <string_view>

/// How the fakes see Windows paths and names.
namespace fakePaths {

/// Letters in the one case by which names are compared.
std::string folded(std::string_view text);

/// The full path with single backslashes, without `.`, `..` and a trailing separator; a drive's
/// root is "C:". `..` stops at the root.
std::string full(const std::string& path, const std::string& currentFolder);

/// What stands before the last separator of a full path; the empty text for a root.
std::string parent(const std::string& fullPath);

/// What stands behind the last separator.
std::string lastPart(const std::string& path);

/// Whether a name matches a pattern of `*` and `?` as FileSystem::matching tells.
bool matches(std::string_view name, std::string_view pattern);

} // namespace fakePaths
