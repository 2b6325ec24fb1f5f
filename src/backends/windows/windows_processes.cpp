#include "backends/windows/windows_processes.h"

#include "backends/windows/windows_error.h"
#include "runtime/run_time_error.h"
#include "system/windows/handed_on.h"

#include <algorithm>

namespace {

using namespace runTimeErrors;

/// The system's number for a program that an administrator alone may run.
constexpr DWORD elevationRequired = 740;

/// Why a command line was not started. Raises 53, 70, 5.
[[noreturn]] void refuse(const std::string& commandLine, DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
        throw RunTimeError(fileNotFound);
    case ERROR_ACCESS_DENIED:
    case elevationRequired:
    case ERROR_ACCESS_DISABLED_BY_POLICY:
    case ERROR_SHARING_VIOLATION:
        throw RunTimeError(permissionDenied,
                           commandLine + " is not run: the system does not allow it");
    default:
        throw RunTimeError(invalidCall);
    }
}

/// Waits for a process. What is sent to windows of this thread is handled meanwhile, so that a
/// program that sends it does not wait for us; what is posted stays where it is.
DWORD waitFor(HANDLE process, DWORD milliseconds)
{
    const ULONGLONG start = ::GetTickCount64();
    for (;;) {
        const ULONGLONG passed = ::GetTickCount64() - start;
        const DWORD left = milliseconds == INFINITE ? INFINITE
                           : passed >= milliseconds ? 0
                                                    : static_cast<DWORD>(milliseconds - passed);
        const DWORD result =
            ::MsgWaitForMultipleObjectsEx(1, &process, left, QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
        if (result != WAIT_OBJECT_0 + 1) return result;
        MSG unused;
        ::PeekMessageW(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
}

ProcessReport reportOf(HANDLE process)
{
    DWORD status = 0;
    if (!::GetExitCodeProcess(process, &status) || status == 0) return {};
    return {"it ended with status " + std::to_string(status), false};
}

} // namespace

std::int32_t WindowsProcesses::start(const std::string& commandLine, WindowStyle window)
{
    lastReport_ = {};
    std::wstring line = wideOf(std::string_view(commandLine).substr(0, commandLine.find('\0')));
    if (line.find_first_not_of(L" \t") == std::wstring::npos) throw RunTimeError(fileNotFound);
    // Left to itself the system has a program write among what this one writes.
    const OwnedHandle nowhere = openNowhere(GENERIC_READ | GENERIC_WRITE);
    HandleList handedOn({nowhere.get()});
    if (!nowhere.isOpen() || !handedOn.isUsable()) throw RunTimeError(invalidCall);
    STARTUPINFOEXW startup{};
    startup.StartupInfo.cb = sizeof startup;
    startup.StartupInfo.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
    startup.StartupInfo.wShowWindow =
        static_cast<WORD>(window == WindowStyle::hidden ? SW_HIDE : SW_SHOWNORMAL);
    startup.StartupInfo.hStdInput = nowhere.get();
    startup.StartupInfo.hStdOutput = nowhere.get();
    startup.StartupInfo.hStdError = nowhere.get();
    startup.lpAttributeList = handedOn.get();
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE,
                          EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr, &startup.StartupInfo,
                          &process))
        refuse(commandLine, ::GetLastError());
    const OwnedHandle thread(process.hThread);
    const auto id = static_cast<std::int32_t>(process.dwProcessId);
    started_[id] = OwnedHandle(process.hProcess);
    return id;
}

bool WindowsProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    OwnedHandle opened;
    const auto started = started_.find(processId);
    if (started == started_.end())
        opened = OwnedHandle(::OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE,
                                           static_cast<DWORD>(processId)));
    const HANDLE process = started == started_.end() ? opened.get() : started->second.get();
    if (process == nullptr || process == INVALID_HANDLE_VALUE) return false;
    const DWORD result =
        waitFor(process, milliseconds < 0 ? INFINITE : static_cast<DWORD>(milliseconds));
    if (result == WAIT_OBJECT_0) {
        lastReport_ = reportOf(process);
        if (started != started_.end()) started_.erase(started);
    }
    return result != WAIT_FAILED;
}
