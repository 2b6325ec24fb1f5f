#pragma once

#include "runtime/run_time_error.h"

#include <string>

/// A failed system call as a run-time error, with the standard text of its number.
class SystemError : public RunTimeError {
public:
    /// `error` is the number that the call left in `errno`. A name that leads nowhere gives
    /// `missing`, which the caller chooses: 53 for a file, 76 for a folder.
    SystemError(int error, int missing);

    /// What the system itself says of it, such as "No space left on device".
    std::string systemMessage() const;

    /// The same error where a name that leads nowhere gives another number.
    SystemError whereMissingIs(int missing) const { return {error_, missing}; }

private:
    int error_;
};

/// The error of a failed system call.
SystemError systemError(int error, int missing);

/// The same error, told with what was tried: `what`, ": ", and the system's own words where a call
/// of it failed, else those that the error has.
RunTimeError toldWith(const std::string& what, const RunTimeError& error);
