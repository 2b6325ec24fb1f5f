#pragma once

#include <string>
#include <windows.h>

/// The system's viewer of help files, loaded when it is first asked for.
class HtmlHelp {
public:
    HtmlHelp() = default;
    ~HtmlHelp();
    HtmlHelp(const HtmlHelp&) = delete;
    HtmlHelp& operator=(const HtmlHelp&) = delete;

    /// Shows a file at its first page, or at a numeric topic above 0. Null where the machine has no
    /// viewer, or that shows nothing.
    HWND show(HWND owner, const std::string& file, int topic);

private:
    HMODULE library_ = nullptr;
};
