#pragma once

#include "system/windows/nt_files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

/// How a folder is opened to be listed.
NtOpening forListing();

/// To be removed or to get another name, itself and nothing that it leads to.
NtOpening forRemoving(ULONG options);

/// What a folder tells of one that is in it.
struct FolderEntry {
    std::wstring name;
    DWORD attributes = 0;
    std::int64_t size = 0;

    bool isFolder() const
    {
        // One that is a link, or mounted from elsewhere, is none of this folder's.
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
               (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
    }
};

/// What is in an open folder, without "." and "..". Raises 76, 70.
std::vector<FolderEntry> entriesOf(HANDLE folder);

/// The bytes of all files below an open folder. Raises as `entriesOf`.
std::int64_t sizeOf(HANDLE folder);

/// Removes all that lies in an open folder. Raises 70 at the first that may only be read, and as
/// `entriesOf`; what came before it is gone.
void removeContents(HANDLE folder);

/// A name in the case that it has on the disk, in which the system looks up any; nothing when there
/// is no such name. Raises as `entriesOf`.
std::optional<std::string> nameOnDisk(HANDLE folder, const std::string& wanted);
