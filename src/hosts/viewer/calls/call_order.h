#pragma once

#include "timeline/counts/calls.h"

#include <cstdint>
#include <vector>

namespace viewer {

/// The columns of the list of calls.
enum class CallColumn { id, start, length, lines, errors, warnings, processes };
inline constexpr int callColumns = 7;

/// The places of calls in the order of a column, those that it does not tell apart in the order in
/// which they are given. Many thousands take some milliseconds.
std::vector<std::uint32_t> orderOf(const std::vector<timeline::Call>& calls, CallColumn column,
                                   bool descending);

/// From the first row to the last, in milliseconds; -1 where rows have no moment.
timeline::Moment lengthOf(const timeline::Call& call);

} // namespace viewer
