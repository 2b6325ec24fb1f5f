#pragma once

#include "runtime/run_time_error.h"

/// The run-time error number of a failed system call. A name that leads nowhere gives `missing`,
/// which the caller chooses: 53 for a file, 76 for a folder.
int runTimeErrorNumber(int error, int missing);

/// The error itself, with its standard text.
RunTimeError systemError(int error, int missing);
