#include "system/terminal.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

void writeUtf8ToTerminals()
{
    ::SetConsoleOutputCP(CP_UTF8);
    for (std::FILE* stream : {stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
}

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
