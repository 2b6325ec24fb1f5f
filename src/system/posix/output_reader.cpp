#include "system/output_reader.h"

#include <poll.h>
#include <unistd.h>

bool outputHasAReader()
{
    pollfd output{STDOUT_FILENO, 0, 0};
    return poll(&output, 1, 0) <= 0 || (output.revents & POLLERR) == 0;
}
