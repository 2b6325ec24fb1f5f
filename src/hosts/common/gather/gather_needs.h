#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The logs in a server's log folder that a time frame is looked for in, by their names: diagnostic
/// logs and data files, without formatted copies. Empty for a folder that can't be listed.
std::vector<std::string> logsForFrames(const FileSystem& files, const std::string& folder);

/// What the file system tells of a log; nothing for one that can't be looked at.
std::optional<FileInfo> logFacts(const FileSystem& files, const std::string& folder,
                                 const std::string& name);

/// Bytes that this user may write below a folder of this machine, which need not be there yet;
/// nothing where that can't be told.
std::optional<std::int64_t> roomBelow(std::filesystem::path folder);
