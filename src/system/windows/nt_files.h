#pragma once

#include "system/windows/windows_calls.h"

#include <string>

/// What becomes of links, and of folders mounted elsewhere, on the way to a file.
enum class Links {
    within, ///< followed as long as they stay in the folder; an absolute one leads out
    none,   ///< not followed
};

/// What becomes of a link that bears the last name.
enum class LinkItself {
    followed,
    refused,
    opened,
};

/// How a file or a folder is opened, in the system's own terms. Others may read, write, rename and
/// remove it meanwhile.
struct NtOpening {
    ACCESS_MASK access = FILE_READ_ATTRIBUTES; ///< besides what every use takes
    ULONG disposition = 1;                     ///< FILE_OPEN
    ULONG options = 0;
    LinkItself link = LinkItself::followed;
    Links links = Links::within;
    void* security = nullptr; ///< of what is made: a security descriptor
};

/// Opens what `path`, names parted by "/" or "\", leads to below an open folder; the empty path is
/// the folder itself. Not open, with `errno`, where that fails: `EXDEV` stands for a way out of the
/// folder, `ELOOP` for a link that is not followed, `EACCES` also for a name that the system would
/// take for another one.
///
/// Each name is looked up in the folder that is held open, so that nobody can exchange one of those
/// before it.
OwnedHandle openBeneath(HANDLE folder, const std::string& path, const NtOpening& opening);

/// Opens one name in an open folder, a link as itself. The empty name is the folder.
OwnedHandle openIn(HANDLE folder, const std::wstring& name, NtOpening opening);

/// Opens a path of the machine, as `machinePathOf` gives it, through any links.
OwnedHandle openMachine(const std::wstring& path, const NtOpening& opening);

/// Whether what is open is a link, or a folder mounted elsewhere, and no file or folder.
bool isLink(HANDLE handle);

/// Whether the program asks the system for a name and gets another: "a." and "a ", "CON", "a:b".
bool isNameOfAnother(const std::wstring& name);

/// Gives what is open, with the right to remove it, another name in `folder`; `replaces`: over a
/// file that has it, be it read or read-only. False with `errno`.
bool renameTo(HANDLE handle, HANDLE folder, const std::wstring& name, bool replaces);

/// Removes what is open with the right to do so. False with `errno`.
bool removeOpen(HANDLE handle);
