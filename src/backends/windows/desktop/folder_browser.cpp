#include "backends/windows/desktop/folder_browser.h"

#include "system/windows/windows_calls.h"

#include <shlobj.h>

namespace {

/// The shell's picker needs the component library on its thread.
class ComponentLibrary {
public:
    ComponentLibrary() : entered_(SUCCEEDED(::OleInitialize(nullptr))) {}
    ~ComponentLibrary()
    {
        if (entered_) ::OleUninitialize();
    }
    ComponentLibrary(const ComponentLibrary&) = delete;
    ComponentLibrary& operator=(const ComponentLibrary&) = delete;

private:
    bool entered_;
};

} // namespace

std::string pickInBrowser(const FolderBrowser& browser)
{
    const ComponentLibrary library;
    const std::wstring title = wideOf(browser.title);
    BROWSEINFOW wanted{};
    wanted.hwndOwner = browser.owner;
    wanted.lpszTitle = title.c_str();
    wanted.ulFlags = BIF_RETURNONLYFSDIRS | BIF_DONTGOBELOWDOMAIN | BIF_NEWDIALOGSTYLE;
    if (browser.showsFiles) wanted.ulFlags |= BIF_BROWSEINCLUDEFILES;
    const PIDLIST_ABSOLUTE picked = ::SHBrowseForFolderW(&wanted);
    if (picked == nullptr) return {};
    wchar_t path[MAX_PATH] = {};
    const bool hasPath = ::SHGetPathFromIDListW(picked, path) != FALSE;
    ::CoTaskMemFree(picked);
    return hasPath ? utf8Of(path) : std::string();
}
