#pragma once

#include "hosts/mmc/sheets/page_fonts.h"

#include <algorithm>

namespace mmc {

/// How much room a check box or an option button takes, its caption wrapped into a width, or on
/// one line for 0.
inline SIZE choiceSize(HFONT font, const DialogUnits& units, const std::wstring& caption, int width)
{
    constexpr int boxAndGap = 12; // in dialog units
    constexpr int usualHeight = 10;
    const int box = units.across(boxAndGap);
    const SIZE text = textSize(font, caption, width > 0 ? std::max(width - box, 1) : 0, 0);
    return {text.cx + box, std::max<LONG>(text.cy, units.down(usualHeight))};
}

} // namespace mmc
