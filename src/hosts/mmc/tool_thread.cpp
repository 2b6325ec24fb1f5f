#include "hosts/mmc/tool_thread.h"

#include "hosts/mmc/com/call_guard.h"
#include "runtime/run_time_error.h"

#include <deque>
#include <exception>
#include <mutex>
#include <utility>

namespace mmc {

namespace {

constexpr const wchar_t* windowClass = L"OrvanDiagnosticsToolThread";
constexpr UINT runNow = WM_APP;         ///< the second parameter is a `Run`
constexpr UINT runLater = WM_APP + 1;   ///< the oldest of the calls that wait
constexpr UINT runByTimer = WM_APP + 2; ///< all calls that wait, when the timer comes
constexpr UINT_PTR timer = 1;

/// A call that another thread waits for.
struct Run {
    const std::function<void()>& call;
    std::exception_ptr raised;
    bool returned = false;

    void operator()()
    {
        try {
            call();
        } catch (...) {
            raised = std::current_exception();
        }
        returned = true;
    }
};

/// The module of this code, whichever program or library it is a part of.
HINSTANCE module()
{
    HMODULE found = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&windowClass), &found);
    return found;
}

} // namespace

class ToolThread::Waiting {
public:
    void add(std::function<void()> call)
    {
        const std::lock_guard lock(mutex_);
        calls_.push_back(std::move(call));
    }

    /// Runs the oldest; false where none was left.
    bool runOne()
    {
        std::function<void()> call;
        {
            const std::lock_guard lock(mutex_);
            if (calls_.empty()) return false;
            call = std::move(calls_.front());
            calls_.pop_front();
        }
        guarded([&]() -> HRESULT {
            call();
            return S_OK;
        });
        return true;
    }

    /// What the calls hold may be the last that holds something which posts as it goes.
    void drop()
    {
        std::deque<std::function<void()>> dropped;
        const std::lock_guard lock(mutex_);
        dropped.swap(calls_);
    }

private:
    std::mutex mutex_;
    std::deque<std::function<void()>> calls_;
};

ToolThread::ToolThread()
    : thread_(GetCurrentThreadId()), window_(nullptr), waiting_(std::make_shared<Waiting>())
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = procedure;
    kind.hInstance = module();
    kind.lpszClassName = windowClass;
    // Every tool but the first finds the class there.
    RegisterClassW(&kind);
    window_ = CreateWindowExW(0, windowClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                              kind.hInstance, nullptr);
    if (!window_) throw RunTimeError(runTimeErrors::outOfMemory);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&waiting_));
}

ToolThread::~ToolThread()
{
    DestroyWindow(window_);
    waiting_->drop();
}

void ToolThread::run(const std::function<void()>& call) const
{
    if (isCurrent()) return call();
    Run run{call, nullptr};
    SendMessageW(window_, runNow, 0, reinterpret_cast<LPARAM>(&run));
    if (run.raised) std::rethrow_exception(run.raised);
    // The thread has ended, and its windows with it.
    if (!run.returned) throw RunTimeError(runTimeErrors::invalidCall);
}

/// A queue of messages takes some thousand. What is sent is not queued there, nor is a timer, which
/// a thread can have for windows of its own alone. The call may be the end of the thread object
/// before this returns.
void ToolThread::post(std::function<void()> call) const
{
    const HWND window = window_;
    const auto waiting = waiting_;
    waiting->add(std::move(call));
    if (!PostMessageW(window, runLater, 0, 0)) SendNotifyMessageW(window, runByTimer, 0, 0);
}

/// A call may be the end of the thread object, so nothing is asked of that behind one.
LRESULT CALLBACK ToolThread::procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    const auto waiting = [window] {
        return *reinterpret_cast<std::shared_ptr<Waiting>*>(
            GetWindowLongPtrW(window, GWLP_USERDATA));
    };
    switch (message) {
    case runNow:
        (*reinterpret_cast<Run*>(second))();
        return 0;
    case runLater:
        waiting()->runOne();
        return 0;
    case runByTimer:
        SetTimer(window, timer, USER_TIMER_MINIMUM, nullptr);
        return 0;
    case WM_TIMER: {
        KillTimer(window, timer);
        const auto all = waiting();
        while (all->runOne()) {
        }
        return 0;
    }
    default:
        return DefWindowProcW(window, message, first, second);
    }
}

} // namespace mmc
