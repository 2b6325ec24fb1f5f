#include "hosts/mmc/console_desktop.h"

#include <gmock/gmock.h>

namespace mmc {
namespace {

constexpr UINT triedMessage = WM_APP + 7;

/// A window that counts what comes to it.
class CountingWindow {
public:
    CountingWindow()
        : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                  nullptr))
    {
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    }
    ~CountingWindow() { DestroyWindow(window_); }
    CountingWindow(const CountingWindow&) = delete;
    CountingWindow& operator=(const CountingWindow&) = delete;

    void post() { PostMessageW(window_, triedMessage, 0, 0); }
    int count() const { return count_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second)
    {
        auto* self = reinterpret_cast<CountingWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == triedMessage) ++self->count_;
        return DefWindowProcW(window, message, first, second);
    }

    HWND window_;
    int count_ = 0;
};

TEST(ConsoleDesktop, HandlesWhatWaitsWhileTheToolWorks)
{
    ConsoleDesktop desktop;
    CountingWindow window;
    window.post();
    window.post();

    desktop.pumpMessages();

    EXPECT_EQ(2, window.count());
}

TEST(ConsoleDesktop, LeavesAWishToEndToTheLoopBelowAndTellsTheToolOfIt)
{
    ConsoleDesktop desktop;
    int told = 0;
    desktop.onQuit = [&] { ++told; };
    CountingWindow window;
    window.post();
    PostQuitMessage(42);

    desktop.pumpMessages();
    desktop.pumpMessages();

    EXPECT_EQ(1, window.count());
    EXPECT_GE(told, 1);
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
    EXPECT_EQ(42U, message.wParam);
}

TEST(ConsoleDesktop, HasNoWindowWithoutAConsole)
{
    EXPECT_EQ(nullptr, ConsoleDesktop().mainWindow());
}

} // namespace
} // namespace mmc
