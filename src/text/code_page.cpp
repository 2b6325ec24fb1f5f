#include "text/code_page.h"

#include "text/utf8.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr char missing = '?';
constexpr char32_t replacement = 0xFFFD; ///< stands where there is no character

bool isBeyondAscii(char byte)
{
    return static_cast<unsigned char>(byte) >= 0x80;
}

/// The bytes that `text` begins with and that stand for themselves in every code page.
std::string_view asciiHead(std::string_view text)
{
    const auto end = std::find_if(text.begin(), text.end(), isBeyondAscii);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

} // namespace

void CodePage::appendUtf8(std::string& target, std::string_view bytes) const
{
    for (;;) {
        const std::string_view plain = asciiHead(bytes);
        target.append(plain);
        if (plain.size() == bytes.size()) return;
        ::appendUtf8(target, character(bytes[plain.size()]));
        bytes.remove_prefix(plain.size() + 1);
    }
}

std::string CodePage::bytesOf(std::string_view utf8) const
{
    std::string bytes;
    bytes.reserve(utf8.size());
    for (;;) {
        const std::string_view plain = asciiHead(utf8);
        bytes.append(plain);
        utf8.remove_prefix(plain.size());
        if (utf8.empty()) return bytes;
        const std::size_t length = utf8CharacterLength(utf8);
        bytes.push_back(length == 0 ? missing : byteOf(utf8CodePoint(utf8.substr(0, length))));
        utf8.remove_prefix(std::max<std::size_t>(length, 1));
    }
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
