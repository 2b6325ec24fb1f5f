#pragma once

#include "hosts/common/page_layout.h"
#include "hosts/mmc/sheets/control_view.h"
#include "hosts/mmc/sheets/native_sheet.h"
#include "hosts/mmc/sheets/page_placement.h"
#include "hosts/mmc/sheets/page_template.h"

#include <atomic>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

namespace mmc {

/// A page of the model's sheet in a page of the system's.
///
/// What the model changes is noted on the tool's thread, copied there into drawings, and drawn by
/// the windows' thread in the order of the copies.
class SheetPageWindow final : private ControlObserver, private ViewPage {
public:
    /// On the tool's thread, as its end. `sheet` outlives it.
    SheetPageWindow(NativeSheet& sheet, int position);
    ~SheetPageWindow();

    int position() const { return position_; }

    /// A page for the system, which keeps `hold` until it is destroyed; null when it is refused.
    HPROPSHEETPAGE make(const std::shared_ptr<NativeSheet>& hold);

    /// What stands for the page in the system; null before `make`.
    HPROPSHEETPAGE handle() const { return handle_; }

    /// Null before the page is shown for the first time, and after its end. On any thread.
    HWND window() const override { return window_; }

    // On the tool's thread.

    /// Copies what changed since the last time.
    void copyChanges();

    /// Has the windows' thread look at page and sheet when it comes to it, or now.
    void postUpdate();
    void sendUpdate();

    /// The model's page tells nothing any more.
    void leave();

    // On the windows' thread.

    /// Draws what was copied.
    void draw();

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    static UINT CALLBACK lifetime(HWND window, UINT message, PROPSHEETPAGEW* page);

    void changed(Control& control) override;
    void refreshed(Control& control) override;

    void act(ControlView& view, const std::function<void()>& what) override;
    void tell(const std::function<void()>& what) override;
    PageFonts& fonts() override { return *fonts_; }
    void setToolTip(HWND tool, const std::wstring& text) override;
    void rearrange() override { misplaced_ = true; }

    INT_PTR handle(HWND window, UINT message, WPARAM first, LPARAM second);
    INT_PTR notified(const NMHDR& note);
    LRESULT sheetNotified(const PSHNOTIFY& note);
    void create(HWND window);
    void destroy();
    void place();
    void paintBand(HDC context) const;
    bool isOnBand(HWND label) const;
    void showTimers(const std::vector<UINT>& intervals);
    void timeOver(UINT_PTR id);
    void setChanged(bool changed);
    ControlView* viewOf(HWND window) const;

    NativeSheet& sheet_;
    const int position_;
    const PageLayout layout_;
    ControlViews views_;
    std::vector<Timer*> timers_;
    std::optional<PageTemplate> template_;
    HPROPSHEETPAGE handle_ = nullptr;
    std::atomic<HWND> window_{nullptr};

    // Of the tool's thread.
    std::set<const Control*> noted_;
    std::vector<UINT> copiedIntervals_;
    bool copiedChanged_ = false;
    ControlFont copiedFont_;
    bool left_ = false;

    /// From the tool's thread to that of the windows.
    std::mutex mutex_;
    std::vector<Drawing> copied_;
    std::atomic<bool> updatePosted_{false};
    std::vector<std::atomic<bool>> ticking_; ///< timers, on the tool's thread when that is another

    // Of the windows' thread.
    std::optional<PageFonts> fonts_;
    std::map<HWND, std::wstring> toolTips_;
    HWND toolTipWindow_ = nullptr;
    std::vector<UINT> intervals_; ///< of the timers that run; 0 for others
    int bandHeight_ = 0;
    bool drawing_ = false;
    bool misplaced_ = false;
};

} // namespace mmc
