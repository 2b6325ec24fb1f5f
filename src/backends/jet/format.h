#pragma once

#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// The layout of a Jet 4 file: sizes, marks and the places of numbers within a page.
namespace jet {

static_assert(std::endian::native == std::endian::little,
              "numbers are stored as they lie in memory");

constexpr std::size_t pageSize = 4096;

/// The last safe size, 2,147,418,112 bytes: the format ends 16 pages later, and a cabinet carries
/// no more than 8 of those.
constexpr std::uint32_t largestFilePages = 524'272;
constexpr std::uint32_t formatFilePages = 524'288;

enum class PageType : unsigned char {
    header = 0,
    data = 1,
    tableDefinition = 2,
    indexLeaf = 4,
    usageBitmap = 5,
};

/// Pages whose numbers are the same in every file.
constexpr std::uint32_t globalMapPage = 1;
constexpr std::uint32_t catalogPage = 2;

/// Data pages: a head, slots of two bytes that grow upward, rows that grow downward.
namespace dataPage {
constexpr std::size_t freeBytes = 0x02;
constexpr std::size_t owner = 0x04;
constexpr std::size_t stamp = 0x08; // of the chain that begins here
constexpr std::size_t rowCount = 0x0C;
constexpr std::size_t slots = 0x0E;
constexpr std::uint16_t offsetMask = 0x1FFF;
constexpr std::uint16_t flagMask = 0xC000;
constexpr std::uint16_t movedFlag = 0x4000; // alone: the row lies elsewhere
constexpr unsigned mostRows = 255;
constexpr std::size_t longestRow = 4060;
constexpr std::uint32_t longValueOwner = 0x4C41564C; // "LVAL"
} // namespace dataPage

/// Long values: a head of twelve bytes in the row, the text inline or on pages of its own.
namespace longValue {
constexpr std::size_t head = 12;
constexpr std::uint32_t inlineKind = 0x8000'0000;
constexpr std::uint32_t oneRowKind = 0x4000'0000;
constexpr std::uint32_t lengthMask = 0x3FFF'FFFF;
constexpr std::size_t longestInline = 64; // as plain bytes, whatever the stored form takes
constexpr std::size_t longestRow = 3804;  // likewise: the engine makes chains of longer ones
constexpr std::size_t longestPiece = 4076;
constexpr std::size_t pieceBytes = longestPiece - 4;
constexpr std::size_t longest = 16'777'215;
constexpr std::size_t longestCompressed = 4096; // bytes in that form
} // namespace longValue

namespace tableDefinition {
constexpr std::size_t nextPage = 0x04;
constexpr std::size_t length = 0x08;
constexpr std::size_t rowCount = 0x10;
constexpr std::size_t columns = 0x3F; // after the counters of the indexes
} // namespace tableDefinition

/// Usage maps: sets of pages, as bits in a row or on pages that the row points at.
namespace usageMap {
constexpr std::size_t rowBytes = 69;
constexpr std::size_t bits = 5;
constexpr std::size_t pointers = 1;
constexpr std::size_t bitmapHead = 4;
constexpr std::uint32_t pagesPerBitmap = (pageSize - bitmapHead) * 8;
} // namespace usageMap

inline std::uint16_t load16(const char* from)
{
    std::uint16_t value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

inline std::uint32_t load32(const char* from)
{
    std::uint32_t value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

inline void store16(char* to, std::size_t value)
{
    const auto stored = static_cast<std::uint16_t>(value);
    std::memcpy(to, &stored, sizeof stored);
}

inline void store32(char* to, std::uint32_t value)
{
    std::memcpy(to, &value, sizeof value);
}

/// Everything written before this line is in the file before anything written after it: what a
/// program leaves behind when it is killed between two lines has an order. The processor keeps a
/// thread's own stores in order; it is the compiler that is held back here.
inline void inThisOrder()
{
    std::atomic_thread_fence(std::memory_order_release);
}

/// A row of a page, as four bytes in the file: the row, then the page.
struct RowPointer {
    std::uint32_t page = 0;
    std::uint8_t row = 0;

    static RowPointer load(const char* from)
    {
        const std::uint32_t stored = load32(from);
        return {stored >> 8, static_cast<std::uint8_t>(stored)};
    }
    std::uint32_t stored() const { return page << 8 | row; }
};

} // namespace jet
