#include "system/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

void writeUtf8ToTerminals() {}

namespace {

bool isTerminal(int descriptor)
{
    return ::isatty(descriptor) == 1;
}

std::optional<int> widthOfTerminal(int descriptor)
{
    winsize size{};
    if (!isTerminal(descriptor) || ::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return {};
    return size.ws_col;
}

} // namespace

bool errorsGoToATerminal()
{
    return isTerminal(STDERR_FILENO);
}

std::optional<int> widthOfErrorTerminal()
{
    return widthOfTerminal(STDERR_FILENO);
}

bool outputGoesToATerminal()
{
    return isTerminal(STDOUT_FILENO);
}

std::optional<int> widthOfOutputTerminal()
{
    return widthOfTerminal(STDOUT_FILENO);
}
