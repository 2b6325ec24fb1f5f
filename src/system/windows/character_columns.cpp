#include "system/character_columns.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace {

struct Range {
    char32_t first;
    char32_t last;

    bool holds(char32_t character) const { return first <= character && character <= last; }
};

/// The blocks of wide letters and signs; the system tells of none.
constexpr std::array<Range, 15> wideRanges = {{
    {0x1100, 0x115F},
    {0x2E80, 0x303E},
    {0x3041, 0x33FF},
    {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF},
    {0xA960, 0xA97F},
    {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},
    {0xFE10, 0xFE19},
    {0xFE30, 0xFE6F},
    {0xFF01, 0xFF60},
    {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F9FF},
    {0x20000, 0x3FFFD},
}};

/// Joiners, marks of direction and variants of the character before.
constexpr std::array<Range, 4> emptyRanges = {{
    {0x0300, 0x036F},
    {0x200B, 0x200F},
    {0xFE00, 0xFE0F},
    {0xE0100, 0xE01EF},
}};

template <typename Ranges>
bool isIn(const Ranges& ranges, char32_t character)
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return range.holds(character); });
}

bool isCombining(char32_t character)
{
    if (character > 0xFFFF) return false;
    const auto unit = static_cast<wchar_t>(character);
    WORD kind = 0;
    return ::GetStringTypeW(CT_CTYPE3, &unit, 1, &kind) != 0 && (kind & C3_NONSPACING) != 0 &&
           (kind & C3_ALPHA) == 0;
}

std::size_t columnsOf(char32_t character)
{
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    if (isControl || isIn(emptyRanges, character)) return 0;
    if (isIn(wideRanges, character)) return 2;
    return isCombining(character) ? 0 : 1;
}

} // namespace

std::size_t columnsOf(std::u32string_view characters)
{
    std::size_t columns = 0;
    for (const char32_t character : characters) columns += columnsOf(character);
    return columns;
}
