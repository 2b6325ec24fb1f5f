#pragma once

#include <map>
#include <string>
#include <string_view>

/// The texts of one language, in UTF-8, by id.
using LanguageCatalogue = std::map<int, std::string>;

/// Reads a language catalogue: lines `id = text` in UTF-8, with or without a byte order mark.
///
/// An id is a decimal number from 1 to 65535. Blanks and tabs around id and text do not count; in
/// a text `\s` stands for a blank (needed at either end alone), `\n`, `\r` and `\t` for the control
/// characters, `\\` for a backslash. Empty lines and lines that begin with `#` are skipped.
/// Raises 321 with the number of the first line that is not so: no "=", a bad or second id, an
/// empty text, another escape, a control character, or bytes that are no UTF-8.
LanguageCatalogue parseLanguageCatalogue(std::string_view bytes);
