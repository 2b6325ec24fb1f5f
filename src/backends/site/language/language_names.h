#pragma once

#include <cstdint>
#include <string_view>

/// The name that the server's operating system gives to a language identifier, in English and
/// UTF-8, such as "French (France)"; "Language Neutral" for one that names no language and place.
std::string_view nameOfLanguageId(std::int32_t id);
