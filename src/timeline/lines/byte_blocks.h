#pragma once

#include "timeline/lines/byte_words.h"

#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Sixty-four bytes at a time, as a number with a bit for each: the first byte has the lowest one.
namespace timeline::bytes {

inline constexpr std::size_t blockSize = 64;

/// What sets two letters of ASCII apart that differ in their case.
inline constexpr char caseBit = 0x20;

/// The bits of those bytes of a block that are `wanted` once the bits of `ignored` are set in them.
inline std::uint64_t placesOf(const char* block, char wanted, char ignored = 0)
{
    std::uint64_t places = 0;
#ifdef __SSE2__
    constexpr int laneSize = 16;
    const __m128i sought = _mm_set1_epi8(wanted);
    const __m128i set = _mm_set1_epi8(ignored);
    for (int at = 0; at < static_cast<int>(blockSize); at += laneSize) {
        const __m128i lane = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + at));
        const __m128i same = _mm_cmpeq_epi8(_mm_or_si128(lane, set), sought);
        places |= static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(same))) << at;
    }
#else
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t lowBits = 0x7F7F7F7F7F7F7F7F;
    constexpr std::uint64_t oneBitEach = 0x0102040810204080;
    for (int at = 0; at < static_cast<int>(blockSize); at += 8) {
        const std::uint64_t word = wordAt(block + at) | ones * static_cast<unsigned char>(ignored);
        const std::uint64_t differing = word ^ (ones * static_cast<unsigned char>(wanted));
        // A high bit for each byte that differs, without a carry from one byte into the next.
        const std::uint64_t unequal = ((differing & lowBits) + lowBits) | differing;
        const std::uint64_t same = (~unequal >> 7) & ones;
        places |= (same * oneBitEach >> 56) << at;
    }
#endif
    return places;
}

} // namespace timeline::bytes
