#pragma once

#include <cstddef>
#include <string>
#include <vector>

class ToolOnServer;

/// The menu of the tool's about box by which the person chooses the language of its texts, for
/// hosts that show it without the box. Both need a tool that is loaded.
struct LanguageMenu {
    std::string caption;                ///< what the choice is called; empty for no menu
    std::vector<std::string> languages; ///< by their names, in the box's order

    /// The menu as the box would show it; looking changes nothing. Empty where the tool has no two
    /// languages to choose from.
    static LanguageMenu of(ToolOnServer& tool);
};

/// Chooses a language of the menu by its place from 0, as a click in the box does: texts that are
/// shown from now on are in it. Raises 9 for a place without one.
void chooseLanguage(ToolOnServer& tool, std::size_t place);
