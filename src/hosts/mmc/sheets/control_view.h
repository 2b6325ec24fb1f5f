#pragma once

#include "controls/sheet_page.h"
#include "hosts/mmc/sheets/page_fonts.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

// The controls stand on the system's basic header.
#include <commctrl.h>

namespace mmc {

class ControlView;

/// Draws a state of the model as it was when it was copied.
using Drawing = std::function<void()>;

/// What a page does for the views on it. On the windows' thread.
class ViewPage {
public:
    /// Runs what the person did on the tool's thread, unless the tool is busy, and has the view
    /// drawn anew either way: its windows may show by now what the model does not hold.
    virtual void act(ControlView& view, const std::function<void()>& what) = 0;

    /// The same for what no window shows by itself.
    virtual void tell(const std::function<void()>& what) = 0;

    virtual HWND window() const = 0;
    virtual PageFonts& fonts() = 0;

    /// Gives a window a text that shows while the pointer rests on it; none for the empty one.
    virtual void setToolTip(HWND window, const std::wstring& text) = 0;

    /// A view has come, has gone, or takes another room than before.
    virtual void rearrange() = 0;

protected:
    ~ViewPage() = default;
};

/// A control of a page and the windows that show it.
///
/// It is made, asked for drawings and let go of on the tool's thread; all else is for the thread of
/// the windows, which looks at nothing of the model's.
class ControlView {
public:
    ControlView(Control& control, ControlRole role) : control_(control), role_(role) {}
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const { return control_; }
    ControlRole role() const { return role_; }

    /// Copies the state of the control. On the tool's thread.
    Drawing drawing();

    /// Makes the windows, which show nothing yet. `page` outlives them.
    void create(ViewPage& page);

    /// The page's fonts are other ones than before.
    void showFont();

    const std::vector<HWND>& windows() const { return windows_; }
    bool has(HWND window) const;

    /// Whether the control takes room on the page.
    virtual bool takesRoom() const { return visible_; }

    /// In pixels: the height that it needs at a width, and the width of what it holds.
    virtual int heightFor(int width) const = 0;
    virtual int ownWidth() const = 0;

    /// How much of a width what it holds takes when it is wrapped into it: more where a word is
    /// longer.
    virtual int widthFor(int /*width*/) const { return ownWidth(); }

    virtual void place(const RECT& area);

    /// A WM_COMMAND of one of the windows.
    virtual void commanded(HWND, int /*code*/) {}

    /// A WM_NOTIFY of one of the windows; what the window is to be answered, or nothing.
    virtual std::optional<LRESULT> notified(const NMHDR&) { return {}; }

    /// The windows are about to be destroyed.
    virtual void windowsGoing() {}

protected:
    virtual void makeWindows() = 0;

    /// Copies what the kind of control holds beside what all have.
    virtual Drawing ownDrawing() = 0;

    HWND make(const wchar_t* kind, DWORD style, DWORD extendedStyle = 0);
    HWND window() const { return windows_.front(); }
    ViewPage& page() const { return *page_; }

    /// The view's own font, as it is drawn with, and how large things are in it.
    virtual HFONT font() const { return page_->fonts().font(font_); }
    DialogUnits units() const { return page_->fonts().units(); }
    const ControlFont& shownFont() const { return font_; }

private:
    struct State {
        bool visible;
        bool enabled;
        std::wstring toolTip;
        ControlFont font;
    };

    void show(const State& state);
    void leaveFocus() const;

    Control& control_;
    const ControlRole role_;

    ViewPage* page_ = nullptr;
    std::vector<HWND> windows_;
    std::wstring toolTip_;
    ControlFont font_;
    bool visible_ = true;
};

/// The text of a window; sets it only where it is another one.
std::wstring textOf(HWND window);
void setText(HWND window, const std::wstring& text);

/// A text of the model as windows show it, lines ended in the way of multi-line fields or by "\n"
/// alone.
std::wstring fieldText(const std::string& text);
std::wstring labelText(const std::string& text);

} // namespace mmc
