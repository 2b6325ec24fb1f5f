#include "text/code_page.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr char missing = '?';
constexpr char32_t replacement = 0xFFFD; ///< stands where there is no character

/// One character of UTF-8, taken off the front of a text; 0xFFFD for a byte that begins none.
char32_t takeCharacter(std::string_view& text)
{
    constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (first < 0x80) return first;
    if (first < 0xC0 || first >= 0xF8) return replacement;
    const std::size_t tail = first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    if (text.size() < tail) return replacement;
    char32_t character = first & (0x3Fu >> tail);
    for (const char byte : text.substr(0, tail)) {
        if ((byte & 0xC0) != 0x80) return replacement;
        character = character << 6 | (byte & 0x3Fu);
    }
    if (character < least[tail]) return replacement;
    text.remove_prefix(tail);
    return character;
}

} // namespace

void CodePage::appendUtf8(std::string& target, std::string_view bytes) const
{
    const auto beyondAscii = [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; };
    for (;;) {
        const auto special = std::find_if(bytes.begin(), bytes.end(), beyondAscii);
        const auto plain = static_cast<std::size_t>(special - bytes.begin());
        target.append(bytes.substr(0, plain));
        if (plain == bytes.size()) return;

        const unsigned code = character(bytes[plain]);
        if (code < 0x80) {
            target.push_back(static_cast<char>(code));
        } else if (code < 0x800) {
            target.push_back(static_cast<char>(0xC0 | code >> 6));
            target.push_back(static_cast<char>(0x80 | (code & 0x3F)));
        } else {
            target.push_back(static_cast<char>(0xE0 | code >> 12));
            target.push_back(static_cast<char>(0x80 | (code >> 6 & 0x3F)));
            target.push_back(static_cast<char>(0x80 | (code & 0x3F)));
        }
        bytes.remove_prefix(plain + 1);
    }
}

std::string CodePage::bytesOf(std::string_view utf8) const
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) bytes.push_back(byteOf(takeCharacter(utf8)));
    return bytes;
}

char CodePage::byteOf(char32_t character) const
{
    if (character < 0x80) return static_cast<char>(character);
    const auto found = std::find(characters_.begin() + 0x80, characters_.end(), character);
    if (character == replacement || found == characters_.end()) return missing;
    return static_cast<char>(found - characters_.begin());
}

CodePage windows1252()
{
    constexpr std::array<char16_t, 32> middle = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    CodePage::Table characters;
    for (std::size_t code = 0; code < characters.size(); ++code)
        characters[code] = static_cast<char16_t>(code);
    std::copy(middle.begin(), middle.end(), characters.begin() + 0x80);
    return CodePage(characters);
}
