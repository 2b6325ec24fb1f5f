#pragma once

#include <string>

#include "runtime/run_time_error.h"

namespace cabmaker {

/// The run-time error of a failed system call: the number that suits `systemError` (an errno
/// value), and `what`, ": ", the system's text as description.
RunTimeError fileError(const std::string& what, int systemError);

} // namespace cabmaker
