#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Whether this machine's own paths begin with a drive.
bool machineHasDrives();

/// A path of the machine, which is UTF-8 with "/" between its names, for the standard library. One
/// on a drive of Windows may have a "/" before its drive.
std::filesystem::path filePathOf(std::string_view path);

/// The other way: a whole path begins with "/", on Windows as "/C:/x", so that none is taken for
/// one on a drive of the server.
std::string machineTextOf(const std::filesystem::path& path);

/// A whole path in the way in which people of this machine write it, on Windows as "C:\x"; any
/// other text as it is.
std::string shownPathOf(std::string_view path);

/// What a path leads to from the current folder of this program, as a whole path.
std::string wholePathOf(std::string_view path);
