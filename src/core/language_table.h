#pragma once

#include "platform/font.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The three-letter code of a language identifier that the tool may be translated to; "ERROR" for
/// an identifier without a row.
std::string codeFromLanguageId(std::int32_t id);

/// The identifier of a code in capitals; 1033 for a code without a row.
std::int32_t languageIdFromCode(std::string_view code);

/// The language's name in words, such as "French (France)", for every identifier that is a user's
/// default language; "Language Neutral" for one that names none.
std::string languageName(std::int32_t id);
std::string languageNameFromCode(std::string_view code);

/// The font that a language's characters need; charset 1 and no name for most.
LanguageFont fontOfLanguage(std::int32_t id);
