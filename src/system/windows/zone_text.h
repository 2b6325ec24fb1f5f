#pragma once

#include <string>
#include <windows.h>

/// A time zone of the system's as a POSIX TZ text. Its parts are called "STD" and "DST": the
/// system's names for them have blanks and letters that such a text can't hold. A change on one day
/// of one year counts as one on that day of every year.
std::string zoneTextOf(const TIME_ZONE_INFORMATION& zone);
