#pragma once

#include <filesystem>
#include <map>
#include <string>

/// Everything in a folder and below, by its path there: kind, mode, owner, time of the last write
/// and of the last change of any kind, and content. The folder itself is "".
std::map<std::string, std::string> recordOf(const std::filesystem::path& folder);
