#pragma once

#include "controls/font.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The three-letter code of a language identifier that the tool may be translated to; "ERROR" for
/// an identifier without a row.
std::string codeFromLanguageId(std::int32_t id);

/// The identifier of a code, without regard to case; 1033 for a code without a row.
std::int32_t languageIdFromCode(std::string_view code);

/// The font that a language's characters need; charset 1 and no name for most.
LanguageFont fontOfLanguage(std::int32_t id);
