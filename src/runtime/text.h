#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Characters of `text` from `start`, counted from 1; fewer when the text ends before `length`.
/// A start behind the end gives the empty text. Raises 5 for a start below 1 or a negative length.
std::string_view mid(std::string_view text, int start, int length);

/// All of `text` from `start` on, counted from 1. Raises 5 for a start below 1.
std::string_view mid(std::string_view text, int start);

/// Position, counted from 1, of the first `wanted` at or after `start`; 0 when there is none.
/// Case-sensitive. A start behind the end gives 0. Raises 5 for a start below 1.
std::size_t positionOf(std::string_view text, std::string_view wanted, std::size_t start = 1);

/// `text` with every `wanted` replaced, binary comparison. An empty `wanted` changes nothing.
std::string replaceAll(std::string_view text, std::string_view wanted, std::string_view by);

/// Pieces of `text` between `separator`s. At most `limit` pieces when it is above 0: the last keeps
/// its separators. The empty text gives no piece at all.
std::vector<std::string> split(std::string_view text, char separator, int limit = 0);

/// ASCII letters in lower or upper case; other bytes stay.
std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);

/// Whether two texts are equal but for the case of ASCII letters.
bool equalIgnoringCase(std::string_view left, std::string_view right);

/// Whether `text` begins with `prefix`, case-sensitively.
bool beginsWith(std::string_view text, std::string_view prefix);

/// Without the blanks (no other white space) at both ends, or at the end.
std::string_view trim(std::string_view text);
std::string_view trimEnd(std::string_view text);

/// `text` in a field of `width` characters, filled with blanks on the left; a longer text is kept.
std::string rightAlign(std::string_view text, std::size_t width);

constexpr std::string_view lineBreak = "\r\n";
