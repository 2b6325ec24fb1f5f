#pragma once

#include <cstddef>
#include <cstdint>

namespace cabmaker {

/// Numbers in the byte order of the cabinet format. The target has room for them.
inline void store16(std::uint8_t* target, std::uint32_t value)
{
    target[0] = static_cast<std::uint8_t>(value);
    target[1] = static_cast<std::uint8_t>(value >> 8);
}

inline void store32(std::uint8_t* target, std::uint32_t value)
{
    store16(target, value);
    store16(target + 2, value >> 16);
}

} // namespace cabmaker
