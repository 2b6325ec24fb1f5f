#pragma once

#include "hosts/mmc/console/handed.h"

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace stand_in {

/// The sheets that a console has on the screen, of whatever thread.
class SheetRegister {
public:
    ~SheetRegister();

    /// A sheet is up, or gone; `marker` is a window of its thread that takes messages alone.
    void opened(HWND sheet, HWND marker);
    void closed(HWND sheet);

    std::vector<HWND> windows() const;

    /// The next sheet that nobody took so far; null when none comes in time.
    HWND take(int milliseconds);
    HWND markerOf(HWND sheet) const;

    /// Has a sheet run on a thread of its own.
    void start(std::function<void()> body);

    /// Whether a thread of a sheet is still running.
    bool anyRunning() const { return running_ > 0; }

private:
    struct Open {
        HWND sheet;
        HWND marker;
        bool taken;
    };

    mutable std::mutex lock_;
    std::vector<Open> open_;
    std::vector<std::thread> threads_;
    std::atomic<int> running_{0};
};

/// A sheet in the making, as `IPropertySheetProvider` makes one, and its run.
class SheetFrame {
public:
    std::wstring title;
    bool wizard = false;
    DWORD options = 0;
    Held<IDataObject> object; ///< that it is for
    std::vector<HPROPSHEETPAGE> pages;
    HBITMAP watermark = nullptr;
    HBITMAP header = nullptr;
    bool hasPrimaryPages = false;

    /// Frees pages that were never shown.
    ~SheetFrame();

    /// Shows it on the calling thread, until it is closed. Gives what `PropertySheetW` gives.
    INT_PTR run(SheetRegister& sheets, HWND owner, int firstPage);
};

/// A sheet on the screen, as a person sees it and acts on it: for any thread but its own. What
/// cannot be done throws `std::runtime_error`, with what the page shows.
///
/// Each action waits until the sheet's thread handled it. Controls are counted from 0, in the order
/// of the page, those that are visible alone.
class Sheet {
public:
    enum class Button { back, next, finish, cancel, ok, apply, help };

    Sheet(HWND window, HWND marker) : window_(window), marker_(marker) {}

    HWND window() const { return window_; }
    std::string title() const;
    bool isOpen() const { return IsWindow(window_) != FALSE; }

    bool isEnabled(Button button) const;
    std::string textOf(Button button) const;
    void press(Button button);
    void next() { press(Button::next); }
    void back() { press(Button::back); }
    void finish() { press(Button::finish); }
    void cancel() { press(Button::cancel); }

    HWND page() const;

    /// All that the page shows: labels, captions, what fields hold.
    std::string pageText() const;

    /// The n-th control of a window class on the page. Throws.
    HWND control(const wchar_t* windowClass, int number = 0) const;
    int count(const wchar_t* windowClass) const;

    /// Push buttons, ticks and options by their caption, without its "&".
    HWND button(const std::string& caption) const;
    void click(const std::string& caption);
    bool isTicked(const std::string& caption) const;

    std::string edit(int number = 0) const;
    void type(const std::string& text, int number = 0);

    std::vector<std::string> comboItems(int number = 0) const;
    std::string comboChoice(int number = 0) const;
    void chooseInCombo(const std::string& item, int number = 0);

    void chooseInList(const std::string& item, int number = 0);

    /// Nodes of the page's tree: their texts from the root down, with "/" between them.
    std::vector<std::string> treeNodes(int number = 0) const;
    std::vector<std::string> tickedNodes(int number = 0) const;
    bool isNodeTicked(const std::string& path, int number = 0) const;
    void tickNode(const std::string& path, int number = 0);

    /// A moment in a picker of dates or times.
    SYSTEMTIME moment(int number) const;
    void setMoment(int number, const SYSTEMTIME& moment);

    /// Waits until something holds; throws when it does not in time.
    void waitUntil(const std::function<bool()>& holds, const char* what,
                   int milliseconds = 20000) const;
    void waitForText(const std::string& part, int milliseconds = 20000) const;

    /// Waits until the sheet's thread handled what was posted to it before, or the sheet is gone.
    void settle() const;

    [[noreturn]] void fail(const std::string& what) const;

private:
    HWND buttonWindow(Button button) const;
    HTREEITEM nodeAt(HWND tree, const std::string& path) const;

    HWND window_;
    HWND marker_;
};

} // namespace stand_in
