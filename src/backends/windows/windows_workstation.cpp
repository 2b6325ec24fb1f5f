#include "backends/windows/windows_workstation.h"

#include "system/windows/windows_calls.h"

#include <windows.h>

#include <lm.h>

namespace {

/// What the workstation service tells, given back to it at the end.
template <typename Record>
class ServiceRecord {
public:
    ServiceRecord() = default;
    ~ServiceRecord()
    {
        if (bytes_ != nullptr) ::NetApiBufferFree(bytes_);
    }
    ServiceRecord(const ServiceRecord&) = delete;
    ServiceRecord& operator=(const ServiceRecord&) = delete;

    BYTE** address() { return &bytes_; }
    const Record* get() const { return reinterpret_cast<const Record*>(bytes_); }

private:
    BYTE* bytes_ = nullptr;
};

std::string textOf(const wchar_t* text)
{
    return text == nullptr ? std::string() : utf8Of(text);
}

} // namespace

int WindowsWorkstation::platform() const
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return ::GetVersionExW(&version) ? static_cast<int>(version.dwPlatformId) : 0;
}

std::optional<WorkstationDetails> WindowsWorkstation::details() const
{
    constexpr DWORD withUsers = 102;
    ServiceRecord<WKSTA_INFO_102> record;
    if (::NetWkstaGetInfo(nullptr, withUsers, record.address()) != NERR_Success || !record.get())
        return {};
    const WKSTA_INFO_102& told = *record.get();
    WorkstationDetails details;
    details.platformId = static_cast<std::int32_t>(told.wki102_platform_id);
    details.computerName = textOf(told.wki102_computername);
    details.domain = textOf(told.wki102_langroup);
    details.versionMajor = static_cast<std::int32_t>(told.wki102_ver_major);
    details.versionMinor = static_cast<std::int32_t>(told.wki102_ver_minor);
    details.lanRoot = textOf(told.wki102_lanroot);
    details.loggedOnUsers = static_cast<std::int32_t>(told.wki102_logged_on_users);
    return details;
}

std::optional<LoggedOnUser> WindowsWorkstation::user() const
{
    constexpr DWORD withDomains = 1;
    ServiceRecord<WKSTA_USER_INFO_1> record;
    if (::NetWkstaUserGetInfo(nullptr, withDomains, record.address()) != NERR_Success ||
        !record.get())
        return {};
    const WKSTA_USER_INFO_1& told = *record.get();
    LoggedOnUser user;
    user.userName = textOf(told.wkui1_username);
    user.logonDomain = textOf(told.wkui1_logon_domain);
    user.otherDomains = textOf(told.wkui1_oth_domains);
    user.logonServer = textOf(told.wkui1_logon_server);
    return user;
}
