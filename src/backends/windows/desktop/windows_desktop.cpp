#include "backends/windows/desktop/windows_desktop.h"

#include "backends/windows/desktop/folder_browser.h"
#include "system/windows/windows_calls.h"

namespace {

UINT systemsIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::information:
        return MB_ICONINFORMATION;
    case MessageIcon::exclamation:
        return MB_ICONEXCLAMATION;
    case MessageIcon::critical:
        return MB_ICONERROR;
    case MessageIcon::none:
        break;
    }
    return 0;
}

} // namespace

void WindowsDesktop::messageBox(const std::string& text, const std::string& title, MessageIcon icon)
{
    ::MessageBoxW(owner_, wideOf(text).c_str(), wideOf(title).c_str(), MB_OK | systemsIcon(icon));
}

std::string WindowsDesktop::pickFolder(const std::string& title)
{
    return pickInBrowser({owner_, title, false});
}

std::string WindowsDesktop::pickFile(const std::string& title)
{
    return pickInBrowser({::GetForegroundWindow(), title, true});
}

void WindowsDesktop::pumpMessages()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

int WindowsDesktop::showHelp(const std::string& file, int topic)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(help_.show(owner_, file, topic)));
}
