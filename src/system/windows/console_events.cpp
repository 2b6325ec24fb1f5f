#include "system/windows/console_events.h"

#include <atomic>
#include <windows.h>

namespace {

/// The system calls on a thread of its own.
std::atomic<KeepsConsoleEvent> keeper = nullptr;
std::atomic<bool> came = false;
std::atomic<long> noted = -1;

BOOL WINAPI onEvent(DWORD event)
{
    const KeepsConsoleEvent keeps = keeper;
    if (keeps == nullptr || !keeps(event)) return FALSE;
    noted = static_cast<long>(event);
    came = true;
    // Once the console closes or the session ends, the program lives until this returns.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) ::Sleep(INFINITE);
    return TRUE;
}

} // namespace

void listenToConsole(KeepsConsoleEvent keeps)
{
    keeper = keeps;
    noted = -1;
    came = false;
    ::SetConsoleCtrlHandler(onEvent, TRUE);
}

void stopListeningToConsole()
{
    ::SetConsoleCtrlHandler(onEvent, FALSE);
    keeper = nullptr;
    came = false;
}

bool consoleEventCame()
{
    return came;
}

std::optional<unsigned long> takeConsoleEvent()
{
    const long event = noted.exchange(-1);
    if (event < 0) return {};
    return static_cast<unsigned long>(event);
}

void endAsConsoleWould()
{
    ::ExitProcess(STATUS_CONTROL_C_EXIT);
}
