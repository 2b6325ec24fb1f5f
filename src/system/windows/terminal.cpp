#include "system/terminal.h"

#include <windows.h>

bool errorsGoToATerminal()
{
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

std::optional<int> widthOfErrorTerminal()
{
    CONSOLE_SCREEN_BUFFER_INFO facts{};
    if (::GetConsoleScreenBufferInfo(::GetStdHandle(STD_ERROR_HANDLE), &facts) == 0) return {};
    const int width = facts.srWindow.Right - facts.srWindow.Left + 1;
    if (width <= 0) return {};
    return width;
}
