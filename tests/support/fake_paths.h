#pragma once

#include <string>
#include <string_view>

/// How the fakes see Windows paths and names.
namespace fakePaths {

/// ASCII letters in lower case.
std::string lower(std::string_view text);

/// The full path with single backslashes, without `.`, `..` and a trailing separator; a drive's
/// root is "C:". `..` stops at the root.
std::string full(const std::string& path, const std::string& currentFolder);

/// What stands before the last separator of a full path; the empty text for a root.
std::string parent(const std::string& fullPath);

/// What stands behind the last separator.
std::string lastPart(const std::string& path);

/// Whether a name matches a pattern of `*` and `?`, without regard to case. "*.*" matches all.
bool matches(std::string_view name, std::string_view pattern);

} // namespace fakePaths
