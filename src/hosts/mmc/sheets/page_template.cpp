#include "hosts/mmc/sheets/page_template.h"

namespace mmc {

PageTemplate::PageTemplate(int width, int height, const LOGFONTW& font, int points)
{
    constexpr WORD none = 0;
    constexpr WORD extendedVersion = 1;
    constexpr WORD extendedSignature = 0xFFFF;
    words_ = {extendedVersion, extendedSignature};
    add(DWORD{0}); // help
    add(WS_EX_CONTROLPARENT);
    add(WS_CHILD | DS_CONTROL | DS_SETFONT);
    words_.insert(words_.end(),
                  {none, none, none, static_cast<WORD>(width), static_cast<WORD>(height)});
    words_.insert(words_.end(), {none, none, none}); // menu, class, title
    words_.push_back(static_cast<WORD>(points));
    words_.push_back(static_cast<WORD>(font.lfWeight));
    words_.push_back(static_cast<WORD>(font.lfItalic | font.lfCharSet << 8));
    add(font.lfFaceName);
}

void PageTemplate::add(DWORD value)
{
    words_.push_back(LOWORD(value));
    words_.push_back(HIWORD(value));
}

void PageTemplate::add(const wchar_t* text)
{
    do words_.push_back(static_cast<WORD>(*text));
    while (*text++);
}

} // namespace mmc
