#include "text/utf8.h"

#include "text/upper_case.h"

#include <algorithm>

namespace {

constexpr char32_t replacement = 0xFFFD;

/// Bytes of a character of more than one byte that begins with `lead`; 0 when none does.
std::size_t lengthAfter(unsigned lead)
{
    if (lead < 0xC2) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF5 ? 4 : 0;
}

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

bool isSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

/// Calls `take` with each code point, and with its bytes or the one byte that is none.
template <typename Take>
void forEachCharacter(std::string_view text, Take take)
{
    while (!text.empty()) {
        const std::size_t length = utf8CharacterLength(text);
        const auto bytes = text.substr(0, std::max<std::size_t>(length, 1));
        take(length == 0 ? std::nullopt : std::optional(utf8CodePoint(bytes)), bytes);
        text.remove_prefix(bytes.size());
    }
}

} // namespace

std::size_t utf8CharacterLength(std::string_view text)
{
    if (text.empty()) return 0;
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lengthAfter(lead);
    if (length == 0 || text.size() < length) return 0;
    for (std::size_t index = 1; index < length; ++index)
        if ((byte(index) & 0xC0U) != 0x80) return 0;
    const unsigned second = byte(1);
    const bool impossible = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                            (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return impossible ? 0 : length;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = utf8CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string validUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    forEachCharacter(text, [&](std::optional<char32_t> codePoint, std::string_view bytes) {
        if (codePoint) {
            result += bytes;
        } else {
            appendUtf8(result, replacement);
        }
    });
    return result;
}

char32_t utf8CodePoint(std::string_view character)
{
    const auto lead = static_cast<unsigned char>(character.front());
    if (character.size() == 1) return lead;
    char32_t codePoint = lead & (0x7FU >> character.size());
    for (const char next : character.substr(1))
        codePoint = codePoint << 6 | (static_cast<unsigned char>(next) & 0x3FU);
    return codePoint;
}

std::size_t characterCount(std::string_view text)
{
    return text.size() -
           static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isContinuation));
}

std::string_view firstCharacters(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    for (; end < text.size(); ++end)
        if (!isContinuation(text[end]) && count-- == 0) break;
    return text.substr(0, end);
}

void appendUtf8(std::string& text, char32_t codePoint)
{
    const auto continuation = [&](int shift) {
        text += static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | codePoint >> 6);
        continuation(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0 | codePoint >> 12);
        continuation(6);
        continuation(0);
    } else {
        text += static_cast<char>(0xF0 | codePoint >> 18);
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

std::string utf8OfUtf16(std::u16string_view units)
{
    std::string text;
    text.reserve(units.size());
    for (std::size_t at = 0; at < units.size(); ++at) {
        const char32_t unit = units[at];
        const char32_t next = unit < 0xDC00 && at + 1 < units.size() ? units[at + 1] : 0;
        if (!isSurrogate(unit)) {
            appendUtf8(text, unit);
        } else if (next >= 0xDC00 && next <= 0xDFFF) {
            appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            ++at;
        } else {
            appendUtf8(text, replacement);
        }
    }
    return text;
}

std::string utf8OfUtf16(std::string_view bytes, bool bigEndian)
{
    std::u16string units;
    units.reserve(bytes.size() / 2 + 1);
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        const int unit = bigEndian ? first << 8 | second : second << 8 | first;
        units += static_cast<char16_t>(unit);
    }
    if (bytes.size() % 2 != 0) units += static_cast<char16_t>(replacement);
    return utf8OfUtf16(units);
}

void appendUtf16(std::u16string& units, std::string_view text)
{
    forEachCharacter(text, [&](std::optional<char32_t> codePoint, std::string_view) {
        const char32_t value = codePoint.value_or(replacement);
        if (value < 0x10000) {
            units += static_cast<char16_t>(value);
        } else {
            units += static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF));
        }
    });
}

std::string utf16LittleEndian(std::string_view text)
{
    std::u16string units;
    appendUtf16(units, text);
    std::string bytes;
    bytes.reserve(units.size() * 2);
    for (const char16_t unit : units) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string foldCase(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    forEachCharacter(text, [&](std::optional<char32_t> codePoint, std::string_view bytes) {
        if (!codePoint) {
            folded += bytes;
        } else if (*codePoint < 0x80) {
            const char letter = bytes.front();
            folded += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
        } else {
            appendUtf8(folded, upperCaseOf(*codePoint));
        }
    });
    return folded;
}
