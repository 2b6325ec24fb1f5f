#include "system/write_signals.h"

#include <csignal>

void letWritesToClosedPipesFail()
{
    std::signal(SIGPIPE, SIG_IGN);
}

void letWritesPastTheSizeLimitFail()
{
    std::signal(SIGXFSZ, SIG_IGN);
}
