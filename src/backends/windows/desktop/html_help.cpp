#include "backends/windows/desktop/html_help.h"

#include "system/windows/windows_calls.h"

namespace {

// The viewer's commands.
constexpr UINT displayTopic = 0;
constexpr UINT helpContext = 15;
constexpr UINT closeAll = 18;

using Show = HWND(WINAPI*)(HWND owner, const wchar_t* file, UINT command, DWORD_PTR data);

Show callOf(HMODULE library)
{
    if (library == nullptr) return nullptr;
    return reinterpret_cast<Show>(reinterpret_cast<void*>(::GetProcAddress(library, "HtmlHelpW")));
}

} // namespace

HtmlHelp::~HtmlHelp()
{
    if (library_ == nullptr) return;
    // Windows whose code is unloaded under them would take the program with them.
    if (const Show call = callOf(library_)) call(nullptr, nullptr, closeAll, 0);
    ::FreeLibrary(library_);
}

HWND HtmlHelp::show(HWND owner, const std::string& file, int topic)
{
    if (library_ == nullptr)
        library_ = ::LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const Show call = callOf(library_);
    if (call == nullptr) return nullptr;
    const std::wstring path = wideOf(file);
    if (topic > 0) return call(owner, path.c_str(), helpContext, static_cast<DWORD_PTR>(topic));
    return call(owner, path.c_str(), displayTopic, 0);
}
