#include "hosts/common/shown_width.h"

#include "system/character_columns.h"
#include "text/utf8.h"

#include <algorithm>
#include <string>

std::size_t shownWidth(std::string_view text)
{
    const bool plain =
        std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (plain) return text.size();
    std::u32string characters;
    std::size_t strayBytes = 0;
    while (!text.empty()) {
        const std::size_t length = utf8CharacterLength(text);
        if (length == 0)
            ++strayBytes;
        else
            characters += utf8CodePoint(text.substr(0, length));
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return strayBytes + columnsOf(characters);
}
