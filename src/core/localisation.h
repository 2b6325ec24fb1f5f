#pragma once

#include "core/language_table.h"
#include "core/text_id.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class HostModule;
struct ToolContext;

/// A window of the tool, from its opening to its closing in `LanguageState::openForms`: what a new
/// choice of language reaches.
class OpenForm {
public:
    virtual ~OpenForm() = default;

    /// Everything on it that may take a font.
    virtual std::vector<FontTarget*> controls() = 0;

    /// Sets all its captions again.
    virtual void autoInit() = 0;

    /// Asks each control to show itself now.
    virtual void refreshControls() = 0;
};

/// The text of an id, from the language's library or else from the English table; the empty text
/// for an id of neither. Raises nothing.
std::string myLoadResString(ToolContext& tool, TextId id);

/// The path of a language's library beside the tool, which may not be there.
std::string languageLibraryPath(const HostModule& module, std::int32_t language);

/// Loads the current language's library, remembers the choice in the registry, lists the libraries
/// beside the tool and gives the open forms the language's font. A failed step is shown in a
/// message box, and the next one runs.
void InitalizeLanguages(ToolContext& tool);

/// Codes of the language libraries beside the tool, in the order of the folder. Raises 76.
std::vector<std::string> libraryCodes(ToolContext& tool);

/// Gives the font of the current language to one object or to many. Raises nothing.
void applyLanguageFont(ToolContext& tool, FontTarget& control);
void applyLanguageFontToAll(ToolContext& tool, const std::vector<FontTarget*>& controls);

/// The language's name in the system's words, such as "French (France)"; "(error)" where the system
/// gives none. A code without a row is English.
std::string languageName(ToolContext& tool, std::int32_t id);
std::string languageNameFromCode(ToolContext& tool, std::string_view code);

/// The code of the user's default language.
std::string userLanguageCode(ToolContext& tool);
