#pragma once

#include "hosts/viewer/calls/call_rows.h"

#include <string>

namespace viewer {

/// A line as a raw log has it that writes call ids.
std::string callLine(int millisecondsOfDay, const std::string& callId, int level,
                     const std::string& trace);

/// Rows of a call that looks random, the same each time: so many, over lanes and levels, in the
/// order of time from a moment on, many of them at the same one. Their places are 0, 1, ...
CallRows someCall(std::size_t rows, std::size_t lanes, timeline::Moment first);

} // namespace viewer
