#pragma once

#include "controls/label.h"
#include "controls/sheet_page.h"
#include "core/text_id.h"

#include <initializer_list>

struct ToolContext;

/// A control and the id of the text that it shows.
struct CaptionText {
    CaptionedControl& control;
    TextId text;
};

/// Sets captions, in order, to the texts of the current language. Raises nothing.
void setCaptions(ToolContext& tool, std::initializer_list<CaptionText> captions);

/// Gives the font of the current language to each control of a page, in the order of their
/// declaration. Raises nothing.
void applyFontToControls(ToolContext& tool, const SheetPage& page);
