#include "cabmaker/names.h"

#include <cstdint>

namespace cabmaker {

namespace {

// The characters of bytes 0x80 to 0x9F; the others are their own numbers.
constexpr char16_t upperControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& text, char16_t character)
{
    const std::uint32_t code = character;
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// Of a character that takes two bytes in UTF-8: all that have a case in the code page do.
char16_t lowerCase(char16_t character)
{
    if (character >= 0xC0 && character <= 0xDE && character != 0xD7) return character + 0x20;
    switch (character) {
    case 0x0152:
    case 0x0160:
    case 0x017D:
        return character + 1;
    case 0x0178:
        return 0xFF;
    default:
        return character;
    }
}

} // namespace

std::string utf8FromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80] : byte);
    }
    return text;
}

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto lead = static_cast<unsigned char>(bytes.front());
        std::size_t length = 1;
        if (lead >= 0x80) length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || bytes.size() < length) return false;
        std::uint32_t code = lead & (length == 1 ? 0x7FU : 0xFFU >> (length + 1));
        for (std::size_t i = 1; i < length; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            if ((byte & 0xC0) != 0x80) return false;
            code = code << 6 | (byte & 0x3F);
        }
        const bool shortest = length < 3 || code >= (length == 3 ? 0x800U : 0x10000U);
        if (!shortest || (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string foldedName(std::string_view name)
{
    std::string folded;
    folded.reserve(name.size());
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto byte = static_cast<unsigned char>(name[i]);
        if (byte >= 'A' && byte <= 'Z') {
            folded += static_cast<char>(byte + 0x20);
        } else if (byte >= 0xC2 && byte <= 0xDF && i + 1 < name.size() &&
                   (static_cast<unsigned char>(name[i + 1]) & 0xC0) == 0x80) {
            const int low = static_cast<unsigned char>(name[++i]) & 0x3F;
            appendUtf8(folded, lowerCase(static_cast<char16_t>((byte & 0x1F) << 6 | low)));
        } else {
            folded += name[i];
        }
    }
    return folded;
}

std::string_view baseName(std::string_view path)
{
    const std::size_t separator = path.find_last_of("\\/");
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

} // namespace cabmaker
