#pragma once

#include "controls/control.h"

#include <map>
#include <string>
#include <tuple>
#include <windows.h>

namespace mmc {

/// The units that dialogs are measured in, as pixels of a font.
struct DialogUnits {
    int width = 8;   ///< of four units
    int height = 16; ///< of eight units

    int across(int units) const { return MulDiv(units, width, 4); }
    int down(int units) const { return MulDiv(units, height, 8); }
};

/// The fonts of a page, made when they are first asked for, in the size of the system's message
/// font on the window's screen.
class PageFonts {
public:
    explicit PageFonts(HWND window);
    ~PageFonts();
    PageFonts(const PageFonts&) = delete;
    PageFonts& operator=(const PageFonts&) = delete;

    /// The font of a control; the page's own for one without a name, else the system's.
    HFONT font(const ControlFont& asked, bool bold = false);

    /// The page's own font: of the system for one without a name. False when it was that before.
    bool setPageFont(const ControlFont& font);

    /// The window is on a screen of another density. Fonts that were given out are gone.
    void measureScreen(HWND window);

    /// By the page's own font.
    DialogUnits units();

private:
    using Key = std::tuple<std::string, int, bool>;

    void forget();

    LOGFONTW base_{};
    ControlFont pageFont_;
    std::map<Key, HFONT> fonts_;
    DialogUnits units_;
    bool measured_ = false;
};

/// The system's message font, for a window's screen where the system tells that; null for the
/// main one.
LOGFONTW messageFont(HWND window);

/// The size of a font for the main screen, in points.
int pointsOf(const LOGFONTW& font);

/// How much room a text takes in a font: wrapped into a width, or in lines of its own for 0.
/// `format` is more of what `DrawTextW` takes.
SIZE textSize(HFONT font, const std::wstring& text, int width, UINT format);

} // namespace mmc
