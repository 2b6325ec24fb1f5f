#include "system/child_process.h"

#include "system/machine_path.h"
#include "system/system_error.h"
#include "system/windows/handed_on.h"
#include "system/windows/nt_files.h"
#include "system/windows/passed_on.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cwchar>
#include <io.h>
#include <mutex>
#include <random>
#include <winternl.h>

namespace {

/// The system tells how a program ended by its handle alone.
std::mutex startedMutex;
std::map<std::int32_t, OwnedHandle> started;

std::mutex passedOnMutex;
std::vector<HANDLE> passedOnHandles;

/// One argument so that programs take it from their line as it is.
std::wstring quoted(const std::wstring& argument)
{
    if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == std::wstring::npos)
        return argument;
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : argument) {
        if (letter == L'\\') {
            ++backslashes;
            continue;
        }
        // Before a quotation mark they count as half as many, and elsewhere as themselves.
        text.append(letter == L'"' ? 2 * backslashes + 1 : backslashes, L'\\');
        backslashes = 0;
        text += letter;
    }
    text.append(2 * backslashes, L'\\');
    return text + L'"';
}

std::wstring commandLineOf(const ChildProcessPlan& plan)
{
    // The name of a program has no quotation mark, and its backslashes are themselves.
    std::wstring line = L"\"" + wideOf(plan.program) + L"\"";
    for (const auto& argument : plan.arguments) line += L" " + quoted(wideOf(argument));
    return line;
}

struct LessIgnoringCase {
    bool operator()(const std::wstring& one, const std::wstring& other) const
    {
        return ::CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_LESS_THAN;
    }
};

/// The environment as the system takes it: sorted by name, each ended by a zero, and one more.
std::wstring environmentWith(const std::map<std::string, std::string>& added)
{
    std::map<std::wstring, std::wstring, LessIgnoringCase> variables;
    wchar_t* const ours = ::GetEnvironmentStringsW();
    for (const wchar_t* at = ours; at != nullptr && *at != L'\0'; at += std::wcslen(at) + 1) {
        const std::wstring text = at;
        // The system's own variables begin with the sign.
        const auto sign = text.find(L'=', 1);
        if (sign != std::wstring::npos) variables[text.substr(0, sign)] = text.substr(sign + 1);
    }
    if (ours != nullptr) ::FreeEnvironmentStringsW(ours);
    for (const auto& [name, value] : added) variables[wideOf(name)] = wideOf(value);
    std::wstring block;
    for (const auto& [name, value] : variables) (block += name + L"=" + value) += L'\0';
    return block + L'\0';
}

/// The handle of an open file as a new program gets it.
OwnedHandle copyForChild(int file)
{
    HANDLE copy = nullptr;
    const auto own = reinterpret_cast<HANDLE>(::_get_osfhandle(file));
    ::DuplicateHandle(::GetCurrentProcess(), own, ::GetCurrentProcess(), &copy, 0, TRUE,
                      DUPLICATE_SAME_ACCESS);
    return OwnedHandle(copy);
}

[[noreturn]] void raiseNotStarted(DWORD error)
{
    using namespace runTimeErrors;
    const int number = errnoOf(error);
    if (number == ENOENT || number == ENOTDIR || number == EACCES)
        throw systemError(number, fileNotFound);
    throw RunTimeError(invalidCall);
}

/// Raises 53 for what is not there, 70 for what may not be read or is a folder.
void requireFile(const std::string& program)
{
    NtOpening opening;
    opening.access = FILE_EXECUTE;
    opening.options = FILE_NON_DIRECTORY_FILE;
    if (!openMachine(machinePathOf(program), opening).isOpen())
        throw systemError(errno, runTimeErrors::fileNotFound);
}

/// What ended a program that the system ended for a fault, as a signal's number; 0 where it ended
/// by itself.
int signalOf(DWORD status)
{
    switch (status) {
    case STATUS_ACCESS_VIOLATION:
    case STATUS_STACK_OVERFLOW:
    case STATUS_IN_PAGE_ERROR:
        return SIGSEGV;
    case STATUS_ILLEGAL_INSTRUCTION:
    case STATUS_PRIVILEGED_INSTRUCTION:
        return SIGILL;
    case STATUS_INTEGER_DIVIDE_BY_ZERO:
    case STATUS_FLOAT_DIVIDE_BY_ZERO:
        return SIGFPE;
    case STATUS_CONTROL_C_EXIT:
        return SIGINT;
    default:
        return 0;
    }
}

} // namespace

void passOn(HANDLE handle)
{
    ::SetHandleInformation(handle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    const std::lock_guard guard(passedOnMutex);
    if (std::find(passedOnHandles.begin(), passedOnHandles.end(), handle) == passedOnHandles.end())
        passedOnHandles.push_back(handle);
}

std::vector<HANDLE> passedOn()
{
    const std::lock_guard guard(passedOnMutex);
    // One that was closed, or is another file's by now, is not to be inherited any more.
    std::erase_if(passedOnHandles, [](HANDLE handle) {
        DWORD flags = 0;
        return ::GetHandleInformation(handle, &flags) == 0 || (flags & HANDLE_FLAG_INHERIT) == 0;
    });
    return passedOnHandles;
}

bool isPassedOn(HANDLE handle)
{
    const auto handles = passedOn();
    return std::find(handles.begin(), handles.end(), handle) != handles.end();
}

std::int32_t startChildProcess(const ChildProcessPlan& plan)
{
    requireFile(plan.program);
    const OwnedHandle input = openNowhere(GENERIC_READ);
    const OwnedHandle output = openNowhere(GENERIC_WRITE);
    const OwnedHandle errors =
        plan.standardError >= 0 ? copyForChild(plan.standardError) : openNowhere(GENERIC_WRITE);
    auto handles = passedOn();
    for (const auto* handle : {&input, &output, &errors}) {
        if (!handle->isOpen()) throw RunTimeError(runTimeErrors::invalidCall);
        handles.push_back(handle->get());
    }
    HandleList inherited(std::move(handles));
    if (!inherited.isUsable()) throw RunTimeError(runTimeErrors::invalidCall);

    STARTUPINFOEXW how{};
    how.StartupInfo.cb = sizeof how;
    how.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    how.StartupInfo.hStdInput = input.get();
    how.StartupInfo.hStdOutput = output.get();
    how.StartupInfo.hStdError = errors.get();
    how.lpAttributeList = inherited.get();
    std::wstring line = commandLineOf(plan);
    std::wstring variables = environmentWith(plan.variables);
    // The system begins a program in no folder whose path is written the long way.
    const std::wstring folder = filePathOf(plan.folder).make_preferred().wstring();
    const std::wstring program = filePathOf(plan.program).make_preferred().wstring();
    constexpr DWORD flags = CREATE_NO_WINDOW | CREATE_NEW_PROCESS_GROUP |
                            CREATE_UNICODE_ENVIRONMENT | EXTENDED_STARTUPINFO_PRESENT;
    PROCESS_INFORMATION made{};
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, flags,
                         variables.data(), folder.empty() ? nullptr : folder.c_str(),
                         &how.StartupInfo, &made) == 0)
        raiseNotStarted(::GetLastError());
    ::CloseHandle(made.hThread);
    const auto number = static_cast<std::int32_t>(made.dwProcessId);
    const std::lock_guard guard(startedMutex);
    started[number] = OwnedHandle(made.hProcess);
    return number;
}

ChildProcessState lookAtChildProcess(std::int32_t process, bool waits, ChildProcessEnd& end)
{
    HANDLE handle = nullptr;
    {
        const std::lock_guard guard(startedMutex);
        const auto found = started.find(process);
        if (found == started.end()) return ChildProcessState::unknown;
        handle = found->second.get();
    }
    const DWORD answer = ::WaitForSingleObject(handle, waits ? INFINITE : 0);
    if (answer == WAIT_TIMEOUT) return ChildProcessState::runs;
    DWORD status = 0;
    if (answer != WAIT_OBJECT_0 || ::GetExitCodeProcess(handle, &status) == 0)
        return ChildProcessState::unknown;
    end = {};
    end.signal = signalOf(status);
    if (end.signal == 0) end.status = static_cast<int>(status);
    const std::lock_guard guard(startedMutex);
    started.erase(process);
    return ChildProcessState::ended;
}

FileDescriptor makeMemoryFile()
{
    std::array<wchar_t, MAX_PATH + 2> place{};
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(place.size()), place.data());
    if (length == 0 || length > place.size()) return {};
    std::random_device random;
    const std::wstring name = std::wstring(place.data(), length) + L"orvan-words-" +
                              std::to_wstring(::GetCurrentProcessId()) + L"-" +
                              std::to_wstring(random());
    return descriptorOf(OwnedHandle(
        ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_NEW,
                      FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr)));
}
