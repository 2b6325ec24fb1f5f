#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "runtime/dates.h"
#include "system/root_folder.h"

#include <optional>
#include <string>
#include <string_view>

/// The moment that a file's name carries as `_YYYYMMDD_HHMMSS` before its ending; nothing when it
/// carries none, or one that is no date.
std::optional<Date> stampOfName(std::string_view name);

/// When a file came to be, local time: the stamp of the name that it is listed by, else the file
/// system's birth time of what `path` leads to, else `modified`.
Date creationTime(std::string_view name, const RootFolder& root, const std::string& path,
                  const PosixTimeZone& zone, Date modified);
