#pragma once

#include <functional>
#include <memory>
#include <windows.h>

namespace mmc {

/// The thread that a console's tool lives on, as other threads reach it: a console shows property
/// sheets on threads of their own.
///
/// Its way in is a window that takes messages alone, so that a thread which waits in a message loop
/// serves the others meanwhile.
class ToolThread {
public:
    /// The calling thread is the tool's. Raises 7 when the system gives no window.
    ToolThread();
    ~ToolThread();
    ToolThread(const ToolThread&) = delete;
    ToolThread& operator=(const ToolThread&) = delete;

    bool isCurrent() const { return GetCurrentThreadId() == thread_; }

    /// Runs a call on the tool's thread, and returns when it has run; at once where this is that
    /// thread. Raises what the call raises. Sent messages are served by the waiting thread, so that
    /// the tool may change what this thread shows.
    void run(const std::function<void()>& call) const;

    /// Runs a call on the tool's thread when its message loop comes to it, however many messages
    /// wait there; what it raises is lost. Calls that are not reached before the thread object goes
    /// are dropped. Raises nothing.
    void post(std::function<void()> call) const;

private:
    /// The calls that were posted, oldest first.
    class Waiting;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);

    DWORD thread_;
    HWND window_;
    std::shared_ptr<Waiting> waiting_;
};

} // namespace mmc
