#include "hosts/machine/open_machine.h"

#include "runtime/run_time_error.h"

bool machineIsAServer()
{
    return false;
}

std::unique_ptr<ServerAccess> openMachine(const MachineFacts&)
{
    throw RunTimeError(runTimeErrors::fileNotFound);
}
