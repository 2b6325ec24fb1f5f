#pragma once

#include <cstdint>
#include <string_view>

struct ToolContext;

namespace mdlTraces {

/// The mask of a trace level. Raises 9 outside 0 to 31.
std::int32_t levelMask(const ToolContext& tool, int level);

/// The level that a text begins with; 0 for a text without a leading number. Raises 6 past 16 bits.
std::int16_t leadingLevel(std::string_view text);

} // namespace mdlTraces
