#pragma once

#include "runtime/dates.h"

#include <cstdint>
#include <windows.h>

/// A moment in the machine's local time, by the rules of its year; the zero date for one outside
/// of the years of a date.
Date localDate(const FILETIME& moment);

/// The same of seconds since 1970.
Date localDate(std::int64_t seconds);
