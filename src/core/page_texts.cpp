#include "core/page_texts.h"

#include "core/localisation.h"

void setCaptions(ToolContext& tool, std::initializer_list<CaptionText> captions)
{
    for (const CaptionText& caption : captions)
        caption.control.setCaption(myLoadResString(tool, caption.text));
}

void applyFontToControls(ToolContext& tool, const SheetPage& page)
{
    for (const PageControl& declared : page.controls()) applyLanguageFont(tool, *declared.control);
}
