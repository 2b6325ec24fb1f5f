#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "runtime/dates.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The moment that a file's name carries as `_YYYYMMDD_HHMMSS` before its ending; nothing when it
/// carries none, or one that is no date.
std::optional<Date> stampOfName(std::string_view name);

/// When a file came to be, local time: its name's stamp, else the file system's birth time, else
/// `modified`. The file is `nameInFolder` in an open folder, not followed when it is a link; an
/// empty one is what is open itself.
Date creationTime(int folder, const std::string& nameInFolder, std::string_view name,
                  const PosixTimeZone& zone, Date modified);
