#pragma once

#include "hosts/mmc/sheets/native_sheet.h"
#include "hosts/mmc/tool_thread.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <windows.h>

// Sheets stand on the system's basic header.
#include <commctrl.h>

namespace mmc {

/// The tool's side of sheets in a test: its thread, and what it was asked.
struct ToolSide {
    NativeSheet::Around around();

    ToolThread thread;
    bool busy = false;
    std::vector<std::string> told; ///< what was raised, for the person
};

/// Handles this thread's messages as long as there are some, or until something holds; the latter
/// for some seconds at most, and then false.
void settle();
bool waitFor(const std::function<bool()>& condition);

/// A sheet's frame on this thread: what a console does with the pages it is given.
class Frame {
public:
    /// Shows a sheet without waiting for its end. `sheet` outlives it.
    Frame(NativeSheet& sheet, const std::vector<HPROPSHEETPAGE>& pages, bool wizard);
    ~Frame();
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    HWND window() const { return window_; }

    /// The page on show; null when the sheet is over.
    HWND page() const;

    /// Destroys the window of a sheet that is over, as its maker does; whether it is.
    bool over();

    /// The person presses one of `PSBTN_...`.
    void press(int button) const;

    HWND button(int number) const { return GetDlgItem(window_, number); }

    // The system's own numbers of its buttons.
    static constexpr int ok = IDOK;
    static constexpr int cancel = IDCANCEL;
    static constexpr int apply = 0x3021;
    static constexpr int back = 0x3023;
    static constexpr int next = 0x3024;
    static constexpr int finish = 0x3025;

private:
    HWND window_ = nullptr;
};

/// A sheet of the model and its frame, both on this thread.
class SheetOnShow {
public:
    /// Shows the model's sheet, at its first page, and then the windows.
    SheetOnShow(ToolSide& tool, std::shared_ptr<OpenSheet> sheet);

    NativeSheet& native() { return *native_; }
    Frame& frame() { return *frame_; }

    /// A window of the page on show: the one of a kind that comes behind `number` others.
    HWND find(const wchar_t* kind, int number = 0) const;

    /// Whether the window of the sheet is gone; makes it so when the sheet is over.
    bool gone();

private:
    std::shared_ptr<NativeSheet> native_;
    std::unique_ptr<Frame> frame_;
};

/// The children of a window of a kind, in their order.
std::vector<HWND> childrenOf(HWND parent, const wchar_t* kind);

std::wstring shownText(HWND window);

} // namespace mmc
