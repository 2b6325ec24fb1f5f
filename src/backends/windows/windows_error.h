#pragma once

#include "system/system_error.h"
#include "system/windows/windows_calls.h"

/// A failed call of the system as a run-time error, by the number that the call gave; a name that
/// leads nowhere gives `missing`.
inline SystemError windowsError(DWORD error, int missing)
{
    return systemError(errnoOf(error), missing);
}

/// The same of the latest call.
inline SystemError latestError(int missing)
{
    return windowsError(::GetLastError(), missing);
}
