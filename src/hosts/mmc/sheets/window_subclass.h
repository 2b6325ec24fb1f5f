#pragma once

#include <windows.h>

// Subclassing stands on the system's basic header.
#include <commctrl.h>

namespace mmc {

/// Stands before a window's own procedure until the window is destroyed.
class WindowSubclass {
protected:
    ~WindowSubclass() = default;

    void subclass(HWND window)
    {
        SetWindowSubclass(window, procedure, 0, reinterpret_cast<DWORD_PTR>(this));
    }

    /// Answers a message, or gives it on by `DefSubclassProc`. May raise; the message counts as
    /// handled then.
    virtual LRESULT handle(HWND window, UINT message, WPARAM first, LPARAM second) = 0;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second,
                                      UINT_PTR, DWORD_PTR self)
    {
        if (message == WM_NCDESTROY) {
            RemoveWindowSubclass(window, procedure, 0);
            return DefSubclassProc(window, message, first, second);
        }
        try {
            return reinterpret_cast<WindowSubclass*>(self)->handle(window, message, first, second);
        } catch (...) {
            return 0; // a window's procedure lets nothing out
        }
    }
};

} // namespace mmc
