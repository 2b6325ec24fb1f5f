#include "backends/windows/language/windows_languages.h"

#include "backends/windows/files/tool_path.h"
#include "backends/windows/language/library_file.h"
#include "runtime/run_time_error.h"
#include "system/windows/windows_calls.h"

WindowsLanguages::~WindowsLanguages()
{
    for (const auto& library : loaded_) ::FreeLibrary(library.second);
}

std::int32_t WindowsLanguages::userDefaultLanguage() const
{
    return ::GetUserDefaultLangID();
}

std::string WindowsLanguages::languageName(std::int32_t id) const
{
    constexpr DWORD longestName = 256;
    wchar_t name[longestName] = {};
    const DWORD length = ::VerLanguageNameW(static_cast<DWORD>(id), name, longestName);
    // The length counts the zero at the end where the name comes from another place of the system.
    return length < longestName ? utf8Of(static_cast<const wchar_t*>(name)) : std::string();
}

std::int32_t WindowsLanguages::loadLibrary(const std::string& path)
{
    std::wstring file;
    try {
        file = plainPath(path);
    } catch (const RunTimeError&) {
        return 0; // no library has such a name
    }
    if (!isWholeLibrary(file)) return 0;
    const HMODULE library = ::LoadLibraryExW(
        file.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES | LOAD_LIBRARY_AS_DATAFILE);
    if (library == nullptr) return 0;
    loaded_.emplace(++lastHandle_, library);
    return lastHandle_;
}

void WindowsLanguages::freeLibrary(std::int32_t handle)
{
    const auto library = loaded_.find(handle);
    if (library == loaded_.end()) return;
    ::FreeLibrary(library->second);
    loaded_.erase(library);
}

std::optional<std::string> WindowsLanguages::text(std::int32_t handle, int id) const
{
    constexpr int roomForText = 1200;
    constexpr int largestId = 0xFFFF;
    const auto library = loaded_.find(handle);
    if (library == loaded_.end() || id < 0 || id > largestId) return {};
    wchar_t text[roomForText] = {};
    const int length = ::LoadStringW(library->second, static_cast<UINT>(id), text, roomForText);
    if (length < 1) return {};
    return utf8Of({text, static_cast<std::size_t>(length)});
}
