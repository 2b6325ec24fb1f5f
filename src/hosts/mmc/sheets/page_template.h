#pragma once

#include <vector>
#include <windows.h>

namespace mmc {

/// A dialog template in memory without controls, for a page of a sheet.
class PageTemplate {
public:
    /// A size in dialog units of a font, which is as high as a number of points.
    PageTemplate(int width, int height, const LOGFONTW& font, int points);

    /// Stays valid as long as this object.
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

private:
    void add(DWORD value);
    void add(const wchar_t* text);

    std::vector<WORD> words_;
};

} // namespace mmc
