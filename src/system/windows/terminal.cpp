#include "system/terminal.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// A stream of the program as its console had it. A console outlives the program, and what is set
/// there holds for the next one, too.
struct ConsoleStream {
    DWORD number;
    bool isConsole = false;
    DWORD mode = 0;

    HANDLE handle() const { return ::GetStdHandle(number); }

    void begin()
    {
        isConsole = ::GetConsoleMode(handle(), &mode) != 0;
        if (isConsole)
            ::SetConsoleMode(handle(),
                             mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }

    void restore() const
    {
        if (isConsole) ::SetConsoleMode(handle(), mode);
    }
};

bool isTerminal(DWORD stream)
{
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(stream), &mode) != 0 &&
           (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

std::optional<int> widthOfTerminal(DWORD stream)
{
    CONSOLE_SCREEN_BUFFER_INFO facts{};
    if (::GetConsoleScreenBufferInfo(::GetStdHandle(stream), &facts) == 0) return {};
    const int width = facts.srWindow.Right - facts.srWindow.Left + 1;
    if (width <= 0) return {};
    return width;
}

ConsoleStream streams[] = {{STD_OUTPUT_HANDLE}, {STD_ERROR_HANDLE}};
UINT codePageBefore = 0;

void restoreConsole()
{
    for (const ConsoleStream& stream : streams) stream.restore();
    if (codePageBefore != 0) ::SetConsoleOutputCP(codePageBefore);
}

/// Called where nobody keeps an event that ends the program.
BOOL WINAPI restoreAndGoOn(DWORD)
{
    restoreConsole();
    return FALSE;
}

} // namespace

void writeUtf8ToTerminals()
{
    for (ConsoleStream& stream : streams) stream.begin();
    codePageBefore = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
    std::atexit(restoreConsole);
    ::SetConsoleCtrlHandler(restoreAndGoOn, TRUE);
    for (std::FILE* stream : {stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
}

bool errorsGoToATerminal()
{
    return isTerminal(STD_ERROR_HANDLE);
}

std::optional<int> widthOfErrorTerminal()
{
    return widthOfTerminal(STD_ERROR_HANDLE);
}

bool outputGoesToATerminal()
{
    return isTerminal(STD_OUTPUT_HANDLE);
}

std::optional<int> widthOfOutputTerminal()
{
    return widthOfTerminal(STD_OUTPUT_HANDLE);
}
