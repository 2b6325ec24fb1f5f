#include "backends/windows/files/current_folders.h"

#include "backends/windows/files/folder_entries.h"
#include "backends/windows/files/tool_path.h"
#include "backends/windows/windows_error.h"
#include "runtime/run_time_error.h"
#include "runtime/windows_path.h"

namespace {

constexpr int deviceUnavailable = 68;

std::wstring currentFolder()
{
    std::wstring folder(::GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

wchar_t upperLetter(wchar_t letter)
{
    return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
}

bool hasDrive(const std::wstring& path)
{
    return path.size() >= 2 && path[1] == L':';
}

/// Notes the current folder of its drive where the system looks for it: in a variable of the
/// process called "=C:".
void rememberFolder(const std::wstring& folder)
{
    if (!hasDrive(folder)) return;
    const wchar_t name[] = {L'=', upperLetter(folder[0]), L':', L'\0'};
    ::SetEnvironmentVariableW(name, folder.c_str());
}

} // namespace

void changeCurrentDrive(const std::string& drive)
{
    if (drive.empty()) return;
    if (!beginsWithDrive(drive)) throw RunTimeError(deviceUnavailable);
    const std::string letter = drive.substr(0, 2);
    const std::wstring root = plainPath(letter + "\\");
    if (!isFolderPath(root)) throw RunTimeError(deviceUnavailable);
    rememberFolder(currentFolder());
    if (!::SetCurrentDirectoryW(plainPath(letter).c_str()) && !::SetCurrentDirectoryW(root.c_str()))
        throw RunTimeError(deviceUnavailable);
}

void changeCurrentFolder(const std::string& path)
{
    const std::wstring folder = plainPath(path);
    if (!isFolderPath(systemPath(path))) throw RunTimeError(runTimeErrors::pathNotFound);
    const std::wstring before = currentFolder();
    const bool elsewhere =
        hasDrive(folder) && hasDrive(before) && upperLetter(folder[0]) != upperLetter(before[0]);
    if (!elsewhere && !::SetCurrentDirectoryW(folder.c_str()))
        throw latestError(runTimeErrors::pathNotFound);
    rememberFolder(folder);
}
