#pragma once

#include "platform/font.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct ToolContext;

/// The text of an id, from the language's library or else from the English table; the empty text
/// for an id of neither. Raises nothing.
std::string myLoadResString(ToolContext& tool, int id);

/// Loads the current language's library, remembers the choice in the registry and lists the
/// libraries beside the tool. A failed step is shown in a message box, and the next one runs.
void InitalizeLanguages(ToolContext& tool);

/// The font of the current language, for one object or for many.
void applyLanguageFont(ToolContext& tool, FontTarget& control);
void applyLanguageFontToAll(ToolContext& tool, const std::vector<FontTarget*>& controls);
LanguageFont fontOfLanguage(std::int32_t languageId);

/// "ERROR" for an identifier without a row.
std::string codeFromLanguageId(std::int32_t id);

/// 1033 for a code without a row.
std::int32_t languageIdFromCode(std::string_view code);

/// The language's name in words, such as "French (France)"; "Language Neutral" for an identifier
/// that names none.
std::string languageName(std::int32_t id);
std::string languageNameFromCode(std::string_view code);

/// The code of the user's default language.
std::string userLanguageCode(ToolContext& tool);
