#include "hosts/mmc/console_desktop.h"

#include "backends/windows/desktop/folder_browser.h"
#include "hosts/mmc/sheets/native_sheet.h"
#include "system/windows/windows_calls.h"

namespace mmc {

namespace {

UINT styleOf(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::information:
        return MB_OK | MB_ICONINFORMATION;
    case MessageIcon::exclamation:
        return MB_OK | MB_ICONEXCLAMATION;
    case MessageIcon::critical:
        return MB_OK | MB_ICONERROR;
    case MessageIcon::none:
        break;
    }
    return MB_OK;
}

} // namespace

void ConsoleDesktop::messageBox(const std::string& text, const std::string& title, MessageIcon icon)
{
    if (onBox) onBox();
    const std::wstring shownText = wideOf(text);
    const std::wstring shownTitle = wideOf(title);
    const UINT style = styleOf(icon);
    int answer = 0;
    // The console may let go of this while its box is up.
    const ComPointer<IConsole2> console = console_;
    if (console &&
        SUCCEEDED(console->MessageBox(shownText.c_str(), shownTitle.c_str(), style, &answer)))
        return;
    ::MessageBox(mainWindow(), shownText.c_str(), shownTitle.c_str(), style);
}

std::string ConsoleDesktop::pickFolder(const std::string& title)
{
    return pickInBrowser({windowInUse(), title, false});
}

std::string ConsoleDesktop::pickFile(const std::string& title)
{
    return pickInBrowser({windowInUse(), title, true});
}

void ConsoleDesktop::pumpMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            if (onQuit) onQuit();
            return;
        }
        if (NativeSheet::takesMessage(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

int ConsoleDesktop::showHelp(const std::string& file, int topic)
{
    const HWND shown = help_.show(mainWindow(), file, topic);
    return static_cast<int>(reinterpret_cast<INT_PTR>(shown));
}

HWND ConsoleDesktop::mainWindow() const
{
    HWND window = nullptr;
    if (!console_ || FAILED(console_->GetMainWindow(&window))) return nullptr;
    return window;
}

HWND ConsoleDesktop::windowInUse() const
{
    const HWND active = GetActiveWindow();
    return active ? active : mainWindow();
}

} // namespace mmc
