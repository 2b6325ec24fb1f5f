#include "system/machine_path.h"

#include "system/windows/windows_calls.h"

#include <algorithm>
#include <cctype>

namespace {

/// Whether a drive stands at a place of a path.
bool hasDriveAt(std::string_view path, std::size_t place)
{
    return path.size() > place + 1 && path[place + 1] == ':' &&
           std::isalpha(static_cast<unsigned char>(path[place])) != 0;
}

} // namespace

bool machineHasDrives()
{
    return true;
}

std::filesystem::path filePathOf(std::string_view path)
{
    if (path.starts_with('/') && hasDriveAt(path, 1)) path.remove_prefix(1);
    return wideOf(path); // plain text would be taken for the code page of the machine
}

std::string machineTextOf(const std::filesystem::path& path)
{
    const std::string text = utf8Of(path.generic_wstring());
    return path.has_root_directory() && hasDriveAt(text, 0) ? "/" + text : text;
}

std::string shownPathOf(std::string_view path)
{
    std::string shown(path);
    if (!path.starts_with('/') || !hasDriveAt(path, 1)) return shown;
    shown.erase(0, 1);
    std::replace(shown.begin(), shown.end(), '/', '\\');
    return shown;
}

std::string wholePathOf(std::string_view path)
{
    return machineTextOf(std::filesystem::absolute(filePathOf(path)));
}
