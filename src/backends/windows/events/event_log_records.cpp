#include "backends/windows/events/event_log_records.h"

#include "backends/windows/windows_error.h"
#include "runtime/run_time_error.h"

#include <utility>
#include <vector>

namespace {

using namespace runTimeErrors;

class OpenLog final : public EventLogRecords {
public:
    explicit OpenLog(HANDLE log) : log_(log), buffer_(roomAtFirst) {}
    ~OpenLog() override { ::CloseEventLog(log_); }
    OpenLog(const OpenLog&) = delete;
    OpenLog& operator=(const OpenLog&) = delete;

    std::uint32_t count() const override
    {
        DWORD count = 0;
        if (!::GetNumberOfEventLogRecords(log_, &count)) throw latestError(fileNotFound);
        return count;
    }

    std::string_view next() override
    {
        for (;;) {
            DWORD size = 0;
            DWORD needed = 0;
            if (::ReadEventLogW(log_, EVENTLOG_SEQUENTIAL_READ | EVENTLOG_FORWARDS_READ, 0,
                                buffer_.data(), static_cast<DWORD>(buffer_.size()), &size, &needed))
                return {buffer_.data(), size};
            const DWORD error = ::GetLastError();
            if (error == ERROR_HANDLE_EOF) return {};
            if (error != ERROR_INSUFFICIENT_BUFFER || needed <= buffer_.size())
                throw windowsError(error, fileNotFound);
            buffer_.resize(needed);
        }
    }

private:
    static constexpr std::size_t roomAtFirst = 64U << 10;

    HANDLE log_;
    std::vector<char> buffer_;
};

/// Whether the machine has an event log of that name: the system would open its application log in
/// place of one that it does not know.
bool isEventLog(const std::wstring& name)
{
    if (name.empty() || name.find_first_of(std::wstring_view(L"\\/\0", 3)) != std::wstring::npos)
        return false;
    const std::wstring path = L"System\\CurrentControlSet\\Services\\EventLog\\" + name;
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_QUERY_VALUE, &key) ==
        ERROR_FILE_NOT_FOUND)
        return false;
    if (key != nullptr) ::RegCloseKey(key);
    return true;
}

} // namespace

std::unique_ptr<EventLogRecords> openEventLog(const std::string& name)
{
    const std::wstring log = wideOf(name);
    if (!isEventLog(log)) throw RunTimeError(fileNotFound);
    const HANDLE opened = ::OpenEventLogW(nullptr, log.c_str());
    if (opened == nullptr) throw latestError(fileNotFound);
    return std::make_unique<OpenLog>(opened);
}
