#pragma once

#include "system/file_facts.h"

#include <optional>
#include <windows.h>

/// Of an open file or folder; nothing, with `errno`, where the system does not tell.
std::optional<FileFacts> factsOfHandle(HANDLE handle);

/// Which file is open: zeros where the system does not tell.
FileIdentity identityOf(HANDLE handle);

/// Whether what is open is a file of a disk, and no folder. A link is what it is made as.
bool isFileOnDisk(HANDLE handle);
bool isFolderOnDisk(HANDLE handle);

/// The system's moment, and back.
FileMoment momentOf(std::int64_t time);
std::int64_t systemTimeOf(FileMoment moment);
