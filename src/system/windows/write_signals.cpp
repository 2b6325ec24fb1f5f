#include "system/write_signals.h"

void letWritesToClosedPipesFail()
{
    // They do: the system sends no signal.
}

void letWritesPastTheSizeLimitFail()
{
    // There is no such limit.
}
