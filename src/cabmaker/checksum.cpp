#include "cabmaker/checksum.h"

namespace cabmaker {

std::uint32_t checksum(std::span<const std::uint8_t> bytes, std::uint32_t seed)
{
    std::uint32_t sum = seed;
    while (bytes.size() >= 4) {
        sum ^= static_cast<std::uint32_t>(bytes[0]) | static_cast<std::uint32_t>(bytes[1]) << 8 |
               static_cast<std::uint32_t>(bytes[2]) << 16 |
               static_cast<std::uint32_t>(bytes[3]) << 24;
        bytes = bytes.subspan(4);
    }
    std::uint32_t rest = 0;
    for (const std::uint8_t byte : bytes) rest = rest << 8 | byte;
    return sum ^ rest;
}

} // namespace cabmaker
