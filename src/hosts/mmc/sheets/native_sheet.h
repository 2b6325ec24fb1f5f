#pragma once

#include "console/open_sheet.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

// The system's sheets stand on its basic header.
#include <commctrl.h>

namespace mmc {

class SheetPageWindow;
class ToolThread;

/// A sheet of the model in a property sheet, or a wizard, of the system: a page of theirs for each
/// of the model's. The model decides which page is on show and what the buttons do; the native
/// sheet follows, and hands on what the person does.
///
/// The native sheet may live on a thread of its own. Whatever touches the model runs on the tool's
/// thread, one call at a time; a page draws from what that call copied.
class NativeSheet final : public std::enable_shared_from_this<NativeSheet>, private SheetObserver {
public:
    /// What the sheet asks of the adapter around it; called on the tool's thread.
    struct Around {
        /// Runs a person's action on the model, in the manner of every call into the console: what
        /// it raises is told to the person.
        std::function<void(const std::function<void()>&)> act;

        /// Whether the tool takes no action now, as it is at work.
        std::function<bool()> busy;

        /// As `act`, for what may change the server: while no other program does. None: `act`.
        std::function<void(OpenSheet& sheet, const std::function<void()>&)> change;
    };

    /// For `sheet`, which is shown already. On the tool's thread; `thread` and what `around` refers
    /// to outlive the native sheet's windows.
    static std::shared_ptr<NativeSheet> make(const ToolThread& thread, Around around,
                                             std::shared_ptr<OpenSheet> sheet);
    ~NativeSheet() override;

    OpenSheet& sheet() { return *sheet_; }

    /// The title of its window: that of the model's first page.
    std::wstring title() const;

    /// A page of the system's for each of the model's, in order, for whoever makes the sheet: the
    /// console, or `PropertySheetW`. Each keeps this object until it is destroyed, also one that is
    /// never shown. A null handle stands for a page that the system refused.
    std::vector<HPROPSHEETPAGE> makePages();

    /// The flags that the sheet's header needs beside those of its maker (`PSH_WIZARD97`, ...), and
    /// the page that is on show first, from 0.
    DWORD headerFlags() const;
    int firstPage() const;

    /// Lets the model's sheet go without the person, as its windows could not be made or the
    /// console is ending: cancels it, whatever its page says, and closes the windows. On the tool's
    /// thread.
    void abandon();

    /// Whether a message belonged to a sheet's dialog, of whichever sheet, and was handled: for the
    /// loop that pumps messages while the tool works. On any thread.
    static bool takesMessage(MSG& message);

private:
    friend class SheetPageWindow;

    /// What the windows show of the model's sheet beside the controls of its pages.
    struct State {
        bool closed = false;
        bool atWork = false;
        int position = 0;
        DWORD buttons = 0; ///< of a wizard, as the system numbers them
        std::wstring finishText;
    };

    enum class When { idle, always };
    enum class Effect { none, change };

    NativeSheet(const ToolThread& thread, Around around, std::shared_ptr<OpenSheet> sheet);

    void pageShown(OpenSheet& sheet) override;
    void buttonsChanged(OpenSheet& sheet) override;
    void closed(OpenSheet& sheet) override;

    // On the tool's thread.
    State state();
    void letModelGo();

    // On the windows' thread.

    /// Runs something on the tool's thread, and draws what changed there.
    State onTool(const std::function<void()>& what);

    /// Runs what the person did there, unless the sheet is closed, or the tool busy and not asked
    /// always.
    State act(const std::function<void()>& what, When when = When::idle,
              Effect effect = Effect::none);

    /// The same for what may change the server.
    State change(const std::function<void()>& what)
    {
        return act(what, When::idle, Effect::change);
    }

    /// On the tool's thread.
    void run(const std::function<void()>& what, Effect effect);

    /// What the system tells a page of its sheet; gives what the page answers.
    LRESULT notified(SheetPageWindow& page, const PSHNOTIFY& note);
    LRESULT activated(SheetPageWindow& page);
    LRESULT turnedByPerson(const SheetPageWindow& page, bool forward);
    LRESULT applied(bool closing);
    LRESULT ended(const State& state);

    void update() { follow(onTool({})); }
    void follow(const State& state);
    void turn(int position);
    void showButtons(const State& state);
    void close(const State& state);
    void hideAtWork(const State& state) const;
    void windowMade(HWND page);
    void windowGone(HWND page);

    const ToolThread& thread_;
    Around around_;
    std::shared_ptr<OpenSheet> sheet_;
    std::vector<std::shared_ptr<SheetPageWindow>> pages_;

    // Of the windows' thread.
    HWND frame_ = nullptr;
    int windows_ = 0;   ///< pages that have one
    int active_ = 0;    ///< the page that the system shows; 0 before the first
    int answering_ = 0; ///< notifications under way whose answer turns the page
    bool turning_ = false;
    bool closing_ = false;
    std::optional<State> shown_;
};

} // namespace mmc
