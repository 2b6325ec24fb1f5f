#include "text/visible_text.h"

#include "text/utf8.h"

#include <algorithm>

namespace {

constexpr char32_t lowestOfTwoBytes = 0x80;

bool isPlain(char c)
{
    return (c >= ' ' && c <= '~') || c == '\t';
}

/// Of the characters past ASCII.
bool actsUnseen(char32_t point)
{
    const bool control = point >= lowestOfTwoBytes && point < 0xA0;
    const bool directionMark = point == 0x61C || point == 0x200E || point == 0x200F ||
                               (point >= 0x202A && point <= 0x202E) ||
                               (point >= 0x2066 && point <= 0x2069);
    const bool separator = point == 0x2028 || point == 0x2029;
    return control || directionMark || separator;
}

void appendHexadecimal(std::string& target, char32_t value, int digits)
{
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        target += "0123456789abcdef"[value >> shift & 0xF];
}

void appendByte(std::string& target, char byte)
{
    appendHexadecimal(target.append("\\x"), static_cast<unsigned char>(byte), 2);
}

void appendPoint(std::string& target, char32_t point)
{
    appendHexadecimal(target.append("\\u"), point, 4);
}

/// A character that is not plain, or the one byte that is none.
void appendCharacter(std::string& target, std::string_view character, bool isUtf8,
                     LineEnds lineEnds)
{
    const char lead = character.front();
    if (lead == '\n' && lineEnds == LineEnds::kept) {
        target += lead;
        return;
    }
    if (!isUtf8 || static_cast<unsigned char>(lead) < ' ') {
        appendByte(target, lead);
        return;
    }
    const char32_t point = utf8CodePoint(character);
    if (point == 0x7F || actsUnseen(point))
        appendPoint(target, point);
    else
        target += character;
}

} // namespace

void appendVisible(std::string& target, std::string_view text, LineEnds lineEnds)
{
    while (!text.empty()) {
        const auto plain = static_cast<std::size_t>(
            std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
        target += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) return;
        const std::size_t length = utf8CharacterLength(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        appendCharacter(target, character, length != 0, lineEnds);
        text.remove_prefix(character.size());
    }
}

std::string visibleText(std::string_view text, LineEnds lineEnds)
{
    std::string visible;
    visible.reserve(text.size());
    appendVisible(visible, text, lineEnds);
    return visible;
}
