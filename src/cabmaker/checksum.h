#pragma once

#include <cstdint>
#include <span>

namespace cabmaker {

/// The cabinet format's checksum of `bytes`: their little-endian 32-bit words, combined by
/// exclusive or with each other and with `seed`. One to three bytes past the last whole word count
/// in the order that the format asks, the first of them highest.
std::uint32_t checksum(std::span<const std::uint8_t> bytes, std::uint32_t seed = 0);

} // namespace cabmaker
