#include "backends/jet/pages/index_page.h"

#include "backends/jet/format.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

constexpr std::size_t entryMask = 0x1B;
constexpr std::size_t entryArea = 0x1E0;
constexpr char hasValue = 0x7F;

void appendBigEndian(std::string& to, std::uint32_t value, int bytes)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        to.push_back(static_cast<char>(value >> shift));
}

/// The place of a character in the engine's general sort order.
std::string_view sortCode(char character)
{
    constexpr std::string_view letters = "\x4A\x4C\x4D\x4F\x51\x53\x55\x57\x59\x5B\x5C\x5E\x60"
                                         "\x62\x64\x66\x68\x69\x6B\x6D\x6F\x71\x73\x75\x76\x78";
    constexpr std::string_view digits = "\x36\x38\x3A\x3C\x3E\x40\x42\x44\x46\x48";
    constexpr std::string_view blank = "\x07";
    constexpr std::string_view underscore = "\x2B\x03";
    const auto nth = [&](std::string_view codes, char first) {
        return codes.substr(static_cast<std::size_t>(character - first), 1);
    };
    if (character >= 'a' && character <= 'z') return nth(letters, 'a');
    if (character >= 'A' && character <= 'Z') return nth(letters, 'A');
    if (character >= '0' && character <= '9') return nth(digits, '0');
    if (character == ' ') return blank;
    if (character == '_') return underscore;
    throw RunTimeError(runTimeErrors::invalidCall, "A name's character can't be sorted.");
}

} // namespace

std::string indexKey(std::uint32_t number)
{
    std::string key(1, hasValue);
    appendBigEndian(key, number ^ 0x8000'0000, 4); // so that unsigned order is signed order
    return key;
}

std::string indexKey(std::string_view text)
{
    std::string key(1, hasValue);
    for (const char character : text) key += sortCode(character);
    key.append("\1\0", 2);
    return key;
}

std::string indexKey(RowPointer row)
{
    std::string key;
    appendBigEndian(key, row.page, 3);
    key.push_back(static_cast<char>(row.row));
    return key;
}

void writeIndexLeaf(char* page, std::uint32_t table, std::vector<std::string> entries)
{
    std::sort(entries.begin(), entries.end());
    std::size_t used = 0;
    for (const auto& entry : entries) {
        if (entryArea + used + entry.size() > pageSize)
            throw RunTimeError(runTimeErrors::invalidCall, "The schema has too many tables.");
        std::memcpy(page + entryArea + used, entry.data(), entry.size());
        used += entry.size();
        char& byte = page[entryMask + used / 8];
        byte = static_cast<char>(byte | 1 << (used % 8));
    }
    page[0] = static_cast<char>(PageType::indexLeaf);
    page[1] = 1;
    store16(page + 2, pageSize - entryArea - used);
    store32(page + 4, table);
}

} // namespace jet
