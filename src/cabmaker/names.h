#pragma once

#include <string>
#include <string_view>

namespace cabmaker {

/// UTF-8 of a text in the single-byte code page Windows-1252. Its five free bytes become the
/// control characters of the same numbers.
std::string utf8FromWindows1252(std::string_view bytes);

/// Whether bytes are UTF-8: each character in its shortest form, and none of the surrogates'.
bool isUtf8(std::string_view bytes);

/// A UTF-8 name with its letters in lower case, as far as Windows-1252 has them: two names are the
/// same on the server when these are.
std::string foldedName(std::string_view name);

/// What stands behind the last `\` or `/` of a path.
std::string_view baseName(std::string_view path);

} // namespace cabmaker
