#include "hosts/cli/terminal/interrupt.h"

#include "system/interruptions.h"

namespace cli {

InterruptWish::InterruptWish(Repeated repeated)
{
    noteInterruptions(repeated == Repeated::ends ? FurtherInterruptions::end
                                                 : FurtherInterruptions::areIgnored);
}

InterruptWish::~InterruptWish()
{
    stopNotingInterruptions();
}

bool InterruptWish::made() const
{
    return interruptNoted();
}

bool interruptNoted()
{
    return interruptionCame();
}

} // namespace cli
