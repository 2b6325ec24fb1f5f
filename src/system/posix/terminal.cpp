#include "system/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

void writeUtf8ToTerminals() {}

bool errorsGoToATerminal()
{
    return ::isatty(STDERR_FILENO) == 1;
}

std::optional<int> widthOfErrorTerminal()
{
    winsize size{};
    if (!errorsGoToATerminal() || ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 ||
        size.ws_col == 0)
        return {};
    return size.ws_col;
}
