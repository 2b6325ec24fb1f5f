#pragma once

#include "runtime/dates.h"

#include <string>

namespace cli {

/// A moment typed as "YYYY-MM-DD HH:MM". Raises UsageError for anything else.
Date frameStart(const std::string& typed);

/// The text of a duration of 1 to 999 whole hours, as typed. Raises UsageError for anything else.
const std::string& frameDuration(const std::string& typed);

} // namespace cli
