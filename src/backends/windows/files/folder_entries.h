#pragma once

#include "platform/file_system.h"

#include <optional>
#include <string>
#include <vector>
#include <windows.h>

/// The attributes of what a path of `systemPath` leads to; nothing when nothing is there. Raises
/// 70, 57.
std::optional<DWORD> attributesOf(const std::wstring& path);

bool isFolderPath(const std::wstring& path); ///< false also where that can't be told

/// The attributes of a plain file. Raises 53, also for a folder; 70, 57.
DWORD attributesOfFile(const std::wstring& path);

/// The facts of a plain file, with its name as the disk has it. Raises 53, also for a folder; 70,
/// 57.
FileInfo factsOfFile(const std::wstring& path);

/// What lies in a folder, in no order, without "." and "..". Raises 76, 70, 57.
std::vector<FileInfo> entriesOf(const std::wstring& folder);

/// The size of all files in a folder and below; links are not followed. Raises 76, 70, 57.
std::int64_t sizeOfFolder(const std::wstring& folder);
