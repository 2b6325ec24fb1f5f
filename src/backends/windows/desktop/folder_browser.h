#pragma once

#include <string>
#include <windows.h>

/// Lets a person pick below the desktop in the shell's own picker.
struct FolderBrowser {
    HWND owner = nullptr;
    std::string title;
    bool showsFiles = false; ///< files can be picked, too
};

/// What the person picked; the empty text when the person cancels, or picks what has no path.
std::string pickInBrowser(const FolderBrowser& browser);
