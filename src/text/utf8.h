#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Bytes of the UTF-8 character that `text` begins with; 0 when it begins with none. Overlong
/// forms, surrogates and what lies past U+10FFFF are no characters; nor is the empty text.
std::size_t utf8CharacterLength(std::string_view text);

/// Whether a text has such characters alone.
bool isUtf8(std::string_view text);

/// `text` with U+FFFD for each byte that belongs to no character.
std::string validUtf8(std::string_view text);

/// The code point of a whole character, as `utf8CharacterLength` delimits it.
char32_t utf8CodePoint(std::string_view character);

/// The characters of a text in UTF-8: its bytes without those that go on with one.
std::size_t characterCount(std::string_view text);

/// The first `count` of them; all of a text that has no more.
std::string_view firstCharacters(std::string_view text, std::size_t count);

void appendUtf8(std::string& text, char32_t codePoint);

/// UTF-16 to UTF-8; U+FFFD for a lone surrogate.
std::string utf8OfUtf16(std::u16string_view units);

/// The same of bytes; U+FFFD for a lone surrogate, and for an odd byte at the end.
std::string utf8OfUtf16(std::string_view bytes, bool bigEndian = false);

/// Appends the UTF-16 of a text in UTF-8; U+FFFD for each byte that belongs to no character.
void appendUtf16(std::u16string& units, std::string_view text);

/// UTF-8 to UTF-16, lowest byte first; U+FFFD for each byte that belongs to no character.
std::string utf16LittleEndian(std::string_view text);

/// `text` with every letter in the one case by which names are compared. A byte that belongs to no
/// character stays as it is.
std::string foldCase(std::string_view text);
