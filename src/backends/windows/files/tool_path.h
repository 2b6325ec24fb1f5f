#pragma once

#include <string>

/// A path of the tool as the system takes it: whole, from the current folder of its drive, behind
/// "\\?\" so that it may be of any length, and without a separator at its end unless it is a root.
/// Raises 52 for the empty path, one with a zero byte and one that names a stream of a file, and 70
/// for a device such as "CON".
std::wstring systemPath(const std::string& path);

/// The same without "\\?\", for the calls that take no other form.
std::wstring plainPath(const std::string& path);

/// Whether a path that `systemPath` gave is the root of a drive or of a share.
bool isRootPath(const std::wstring& path);

/// Parts such a path: the folder with a separator at its end, and the last name, which a root
/// lacks.
std::wstring folderOf(const std::wstring& path);
std::wstring lastNameOf(const std::wstring& path);

/// As the interfaces of the system's files take it: UTF-8, without "\\?\".
std::string machinePath(const std::wstring& path);
