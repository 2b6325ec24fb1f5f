#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Eight bytes at a time, as the fields of a log's lines are too short for a call to pay.
namespace timeline::bytes {

inline std::uint64_t wordAt(const char* bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    if constexpr (std::endian::native == std::endian::big) {
        std::uint64_t turned = 0;
        for (int byte = 0; byte < 8; ++byte, word >>= 8) turned = (turned << 8) | (word & 0xFF);
        word = turned;
    }
    return word; // the first byte is the lowest
}

/// The first place of a byte between two; the end for none.
inline const char* find(const char* from, const char* end, char wanted)
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x8080808080808080;
    const std::uint64_t pattern = ones * static_cast<unsigned char>(wanted);
    for (; end - from >= 8; from += 8) {
        const std::uint64_t differing = wordAt(from) ^ pattern;
        // The lowest high bit that is set belongs to the first byte that does not differ.
        if (const std::uint64_t same = (differing - ones) & ~differing & highBits; same != 0)
            return from + std::countr_zero(same) / 8;
    }
    while (from != end && *from != wanted) ++from;
    return from;
}

/// The place behind the last one of a byte between two; `from` for none.
inline const char* behindLast(const char* from, const char* end, char wanted)
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t lowBits = 0x7F7F7F7F7F7F7F7F;
    const std::uint64_t pattern = ones * static_cast<unsigned char>(wanted);
    for (; end - from >= 8; end -= 8) {
        const std::uint64_t differing = wordAt(end - 8) ^ pattern;
        // A high bit for each byte that does not differ.
        const std::uint64_t same = ~(((differing & lowBits) + lowBits) | differing | lowBits);
        if (same != 0) return end - std::countl_zero(same) / 8;
    }
    while (from != end && end[-1] != wanted) --end;
    return end;
}

inline constexpr std::uint64_t noClock = ~std::uint64_t{0};

/// The digits of "15:23:07", each in the byte where it stands, and zeros for the colons; `noClock`
/// for a text that is no two digits, a colon and so on.
inline std::uint64_t clockDigits(const char* text)
{
    constexpr std::uint64_t colons = 0x00003A00003A0000;
    constexpr std::uint64_t colonPlaces = 0x0000FF0000FF0000;
    constexpr std::uint64_t zeros = 0x3030003030003030;
    constexpr std::uint64_t pastNine = 0x7676007676007676;
    constexpr std::uint64_t highBits = 0x8080808080808080;
    const std::uint64_t word = wordAt(text);
    const std::uint64_t digits = (word & ~colonPlaces) - zeros;
    const bool sound =
        (word & colonPlaces) == colons && (((digits + pastNine) | digits) & highBits) == 0;
    return sound ? digits : noClock;
}

/// A number for eight bytes that puts them in the order of their texts.
inline std::uint64_t orderOf(std::uint64_t word)
{
    return __builtin_bswap64(word);
}

/// Whether eight bytes have the form of "15:23:07", with minutes and seconds that an hour has.
inline bool isClock(std::uint64_t word)
{
    constexpr std::uint64_t colons = 0x00003A00003A0000;
    constexpr std::uint64_t colonPlaces = 0x0000FF0000FF0000;
    constexpr std::uint64_t zeros = 0x3030003030003030;
    constexpr std::uint64_t pastFiveOrNine = 0x767A00767A007676;
    constexpr std::uint64_t highBits = 0x8080808080808080;
    const std::uint64_t digits = (word & ~colonPlaces) - zeros;
    return (word & colonPlaces) == colons && (((digits + pastFiveOrNine) | digits) & highBits) == 0;
}

/// The order of "23:59:59".
inline constexpr std::uint64_t lastClockOrder = 0x32333A35393A3539;

/// The order of the text of a second of the day.
inline std::uint64_t clockOrder(std::int32_t second)
{
    const auto pair = [](std::int32_t number) {
        return static_cast<std::uint64_t>(('0' + number / 10) << 8 | ('0' + number % 10));
    };
    constexpr std::uint64_t colon = ':';
    return pair(second / 3600) << 48 | colon << 40 | pair(second / 60 % 60) << 24 | colon << 16 |
           pair(second % 60);
}

/// The number of two of these digits.
inline std::int32_t pairOf(std::uint64_t digits, int place)
{
    const std::uint64_t two = digits >> (8 * place);
    return static_cast<std::int32_t>((two & 0xF) * 10 + ((two >> 8) & 0xF));
}

/// Seconds since midnight of such digits, also of a time that no day has.
inline std::int32_t secondsOf(std::uint64_t digits)
{
    return pairOf(digits, 0) * 3600 + pairOf(digits, 3) * 60 + pairOf(digits, 6);
}

} // namespace timeline::bytes
